#pragma once

#include "KTCommandLine.h"
#include "KTExitCode.h"

#include <KTArticle.h>

#include <QList>

#include <optional>

/** What a command is asked about: an article of the catalogue, and page counts of it. */
class KTArticleRequest
{
public:
    enum class Article {
        Optional,
        Needed,
    };

    /** Adds the options to the command line, which must outlive the request; the help is that of --pages. */
    KTArticleRequest(KTCommandLine *commandLine, Article article, const QString &pagesHelp);

    /** Takes over what was parsed; an exit code means wrong usage, which is reported. */
    std::optional<KTExitCode> read();

    std::optional<int> articleId() const { return myArticleId; }
    const QList<int> &pageCounts() const { return myPageCounts; }
    /** The last one; none without any. */
    std::optional<int> pages() const;

    /** Reads the file and the article; an exit code means that one of them is not there, which is reported.
     */
    std::optional<KTExitCode> readArticle(KTArticle *article) const;

private:
    KTCommandLine *myCommandLine;
    Article myArticle;
    QCommandLineOption myArticleOption;
    QCommandLineOption myPagesOption;
    std::optional<int> myArticleId;
    QList<int> myPageCounts;
};
