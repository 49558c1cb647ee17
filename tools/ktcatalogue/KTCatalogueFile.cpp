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

std::optional<KTExitCode> KTCatalogueFile::readArticle(int articleId, std::optional<KTArticleModel> *article)
{
    return forEachArticle([=](const KTCatalogueArticle &candidate) {
        if (!*article && KTArticleId::findId(candidate.element()) == articleId)
            article->emplace(candidate.element());
    });
}

std::optional<KTExitCode> KTCatalogueFile::reportFailure() const
{
    if (!myReader) {
        return KTCommandLine::fail(KTExitUnreadable,
                                   QStringLiteral("%1: error: %2").arg(myName, myOpenError));
    }
    if (myReader->errorText().isEmpty())
        return std::nullopt;
    const KTFilePosition position = myReader->errorPosition();
    return KTCommandLine::fail(KTExitUnreadable,
                               QStringLiteral("%1:%2:%3: error: %4")
                                   .arg(myName, QString::number(position.line),
                                        QString::number(position.column), myReader->errorText()));
}
