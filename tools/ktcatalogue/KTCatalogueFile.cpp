#include "KTCatalogueFile.h"

#include "KTCommandLine.h"
#include "KTFileName.h"

KTCatalogueFile::KTCatalogueFile(const QString &name)
    : myName(name)
    , myOpenError(KTFileName::open(&myFile, name))
{
    if (myOpenError.isEmpty())
        myReader = std::make_unique<KTCatalogueReader>(&myFile);
}

std::optional<KTExitCode> KTCatalogueFile::readArticle(int articleId, std::optional<KTArticle> *article)
{
    return forEachArticle([=](const KTCatalogueArticle &candidate) {
        if (!*article && KTArticleId::findId(candidate.root()) == articleId)
            article->emplace(candidate);
    });
}

/** False at the end of the file, and where it was refused. */
bool KTCatalogueFile::readNext(KTCatalogueArticle *article)
{
    return myReader && myReader->nextArticle(article) == KTCatalogueReader::Item::Article;
}

std::optional<KTExitCode> KTCatalogueFile::reportFailure() const
{
    if (!myReader) {
        return KTCommandLine::fail(KTExitUnreadable,
                                   QStringLiteral("%1: error: %2").arg(myName, myOpenError));
    }
    const KTCatalogueError error = myReader->error();
    if (error.kind == KTCatalogueErrorKind::None)
        return std::nullopt;
    return KTCommandLine::fail(KTExitUnreadable,
                               QStringLiteral("%1:%2:%3: error: %4")
                                   .arg(myName, QString::number(error.position.line),
                                        QString::number(error.position.column), error.text));
}
