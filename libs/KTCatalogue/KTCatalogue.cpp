#include "KTCatalogue.h"

#include "KTCatalogueText.h"
#include "KTDeviceSection.h"

#include <QFileInfo>

KTCatalogue::KTCatalogue(const QString &fileName)
    : myFile(fileName)
{
    if (!myFile.open(QIODevice::ReadOnly)) {
        myError = {KTCatalogueErrorKind::Unreadable,
                   KTCatalogueText::tr("the file cannot be opened: %1").arg(myFile.errorString()),
                   KTFilePosition()};
        return;
    }
    mySize = myFile.size();
    myModified = QFileInfo(myFile).lastModified();
    myReader = std::make_unique<KTCatalogueReader>(&myFile);
    KTCatalogueArticle article;
    while (myReader->nextArticle(&article) == KTCatalogueReader::Item::Article) {
        const int articleId = KTArticleId::findId(article.root()).id();
        if (articleId <= 0 || myPlaces.contains(articleId))
            continue;
        const KTFileRange range = article.elementRange(0);
        myArticleIds.append(articleId);
        myPlaces.insert(articleId, {range.begin, range.length()});
    }
    myError = myReader->error();
    if (myError.kind == KTCatalogueErrorKind::None)
        return;
    myArticleIds.clear();
    myPlaces.clear();
}

KTCatalogue::~KTCatalogue() = default;

std::optional<KTArticle> KTCatalogue::article(int articleId)
{
    KTCatalogueArticle article;
    return read(articleId, &article) ? std::make_optional<KTArticle>(article) : std::nullopt;
}

bool KTCatalogue::read(int articleId, KTCatalogueArticle *article)
{
    const auto found = myPlaces.constFind(articleId);
    if (found == myPlaces.constEnd())
        return false;
    myError = KTCatalogueError();
    if (isUnchanged() && myFile.seek(found->position.offset)) {
        KTDeviceSection section(&myFile, found->length);
        KTCatalogueReader reader(&section, *myReader, found->position);
        if (reader.next(article) == KTCatalogueReader::Item::Article
            && article->elementRange(0).length() == found->length
            && KTArticleId::findId(article->root()) == articleId) {
            return true;
        }
    }
    myError = {KTCatalogueErrorKind::Changed,
               KTCatalogueText::tr("the file was changed after it had been opened"), found->position};
    return false;
}

bool KTCatalogue::isUnchanged() const
{
    const QFileInfo info(myFile.fileName());
    return info.size() == mySize && info.lastModified() == myModified;
}
