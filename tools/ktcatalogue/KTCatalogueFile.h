#pragma once

#include "KTArticleModel.h"
#include "KTCatalogueReader.h"
#include "KTExitCode.h"

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
        while (myReader && myReader->readNext(&article))
            function(article);
        return reportFailure();
    }

    /** Reads the first article with the number, if there is one, and the file to its end as above. */
    std::optional<KTExitCode> readArticle(int articleId, std::optional<KTArticleModel> *article);

private:
    std::optional<KTExitCode> reportFailure() const;

    QString myName;
    QFile myFile;
    std::unique_ptr<KTCatalogueReader> myReader;
};
