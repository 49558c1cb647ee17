#include "KTArticleRequest.h"

#include "KTCatalogueFile.h"
#include "KTToolText.h"

KTArticleRequest::KTArticleRequest(KTCommandLine *commandLine, Article article, const QString &pagesHelp)
    : myCommandLine(commandLine)
    , myArticle(article)
    , myArticleOption(QStringLiteral("article"),
                      article == Article::Needed ? KTToolText::tr("The number of the article.")
                                                 : KTToolText::tr("Only the article with this number."),
                      QStringLiteral("ID"))
    , myPagesOption(QStringLiteral("pages"), pagesHelp, QStringLiteral("N"))
{
    commandLine->parser().addOptions({myArticleOption, myPagesOption});
}

std::optional<KTExitCode> KTArticleRequest::read()
{
    if (myArticle == Article::Needed || myCommandLine->parser().isSet(myArticleOption)) {
        myArticleId = myCommandLine->number(myArticleOption);
        if (!myArticleId)
            return KTExitUsage;
    }
    const std::optional<QList<int>> pageCounts = myCommandLine->numbers(myPagesOption);
    if (!pageCounts)
        return KTExitUsage;
    myPageCounts = *pageCounts;
    return std::nullopt;
}

std::optional<int> KTArticleRequest::pages() const
{
    return myPageCounts.isEmpty() ? std::nullopt : std::make_optional(myPageCounts.constLast());
}

std::optional<KTExitCode> KTArticleRequest::readArticle(KTArticle *article) const
{
    std::optional<KTArticle> found;
    if (const auto failure = KTCatalogueFile(myCommandLine->fileName()).readArticle(*myArticleId, &found))
        return failure;
    if (!found)
        return myCommandLine->failNoArticle(*myArticleId);
    *article = *found;
    return std::nullopt;
}
