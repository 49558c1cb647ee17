#pragma once

#include "KTExitCode.h"

#include <KTArticle.h>
#include <KTCatalogueReader.h>

#include <QFile>

#include <functional>
#include <memory>
#include <optional>

/** A catalogue named on the command line. */
class KTCatalogueFile
{
public:
    /** "-" names standard input. */
    explicit KTCatalogueFile(const QString &name);

    /**
     * Calls the function with each article, or with the first one that has the number, and reads to the end
     * of the file, so that a broken file is found out wherever it is broken. An exit code means that the file
     * was refused, which is then reported.
     */
    std::optional<KTExitCode> forEachArticle(const std::function<void(const KTCatalogueArticle &)> &function,
                                             std::optional<int> articleId = std::nullopt);

    /** Reads the first article with the number, if there is one, and the file to its end as above. */
    std::optional<KTExitCode> readArticle(int articleId, std::optional<KTArticle> *article);

private:
    std::optional<KTExitCode> reportFailure() const;

    QString myName;
    QFile myFile;
    /** Why the file cannot be opened. */
    QString myOpenError;
    std::unique_ptr<KTCatalogueReader> myReader;
};
