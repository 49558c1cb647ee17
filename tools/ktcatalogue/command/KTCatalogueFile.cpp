#include "KTCatalogueFile.h"

#include "KTConsole.h"
#include "KTFileName.h"
#include "KTToolText.h"

KTCatalogueFile::KTCatalogueFile(const QString &name)
    : myName(name)
    , myOpenError(KTFileName::open(&myFile, name))
{
    if (myOpenError.isEmpty())
        myReader = std::make_unique<KTCatalogueReader>(&myFile);
}

std::optional<KTExitCode>
KTCatalogueFile::forEachArticle(const std::function<void(const KTCatalogueArticle &)> &function,
                                std::optional<int> articleId)
{
    if (!myReader)
        return reportFailure();
    KTProgressLine progress(true);
    int count = 0;
    const auto countArticle = [&] {
        ++count;
        if (progress.isDue())
            progress.show(KTToolText::tr("%1: %2 articles").arg(myName, QString::number(count)));
    };
    bool isFound = false;
    if (articleId) {
        myReader->setFilter([&](const KTXMLElement &article) {
            countArticle();
            return !isFound && (isFound = KTArticleId::findId(article) == *articleId);
        });
    }
    KTCatalogueArticle article;
    while (myReader->nextArticle(&article) == KTCatalogueReader::Item::Article) {
        function(article);
        if (!articleId)
            countArticle();
    }
    progress.clear();
    return reportFailure();
}

std::optional<KTExitCode> KTCatalogueFile::readArticle(int articleId, std::optional<KTArticle> *article)
{
    return forEachArticle([=](const KTCatalogueArticle &found) { article->emplace(found); }, articleId);
}

std::optional<KTExitCode> KTCatalogueFile::reportFailure() const
{
    if (!myReader) {
        return KTConsole::fail(KTExitUnreadable, QStringLiteral("%1: error: %2").arg(myName, myOpenError));
    }
    const KTCatalogueError error = myReader->error();
    if (error.kind == KTCatalogueErrorKind::None)
        return std::nullopt;
    return KTConsole::fail(KTExitUnreadable,
                           QStringLiteral("%1:%2:%3: error: %4")
                               .arg(myName, QString::number(error.position.line),
                                    QString::number(error.position.column), error.text));
}
