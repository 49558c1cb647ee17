#pragma once

#include "KTExitCode.h"
#include "KTProgressLine.h"

#include <KTArticle.h>
#include <KTCatalogueReader.h>

#include <QFile>

#include <memory>
#include <optional>

/** A catalogue named on the command line. */
class KTCatalogueFile
{
public:
    /** "-" names standard input. */
    explicit KTCatalogueFile(const QString &name);

    /**
     * Calls the function with each article, to the end of the file, so that a broken file is found out
     * wherever it is broken. An exit code means that the file was refused, which is then reported.
     */
    template <typename Function>
    std::optional<KTExitCode> forEachArticle(Function function)
    {
        KTCatalogueArticle article;
        KTProgressLine progress(true);
        for (int count = 1; readNext(&article); ++count) {
            function(article);
            if (progress.isDue())
                progress.show(QStringLiteral("%1: %2 articles").arg(myName, QString::number(count)));
        }
        progress.clear();
        return reportFailure();
    }

    /** Reads the first article with the number, if there is one, and the file to its end as above. */
    std::optional<KTExitCode> readArticle(int articleId, std::optional<KTArticle> *article);

private:
    bool readNext(KTCatalogueArticle *article);
    std::optional<KTExitCode> reportFailure() const;

    QString myName;
    QFile myFile;
    /** Why the file cannot be opened. */
    QString myOpenError;
    std::unique_ptr<KTCatalogueReader> myReader;
};
