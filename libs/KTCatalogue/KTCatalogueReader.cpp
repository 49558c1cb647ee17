#include "KTCatalogueReader.h"

#include "KTCatalogueReaderImpl.h"

KTCatalogueReader::KTCatalogueReader(QIODevice *device)
    : myImpl(std::make_unique<KTCatalogueReaderImpl>(device))
{
}

KTCatalogueReader::KTCatalogueReader(QIODevice *device, const KTCatalogueReader &other,
                                     const KTFilePosition &position)
    : myImpl(std::make_unique<KTCatalogueReaderImpl>(device))
{
    myImpl->beginAs(*other.myImpl, position);
}

KTCatalogueReader::~KTCatalogueReader() = default;

void KTCatalogueReader::setFilter(const Filter &isWanted)
{
    myImpl->setFilter(isWanted);
}

KTCatalogueReader::Item KTCatalogueReader::next(KTCatalogueArticle *article)
{
    return myImpl->next(article);
}

KTCatalogueReader::Item KTCatalogueReader::nextArticle(KTCatalogueArticle *article)
{
    Item item = next(article);
    while (item == Item::Root || item == Item::Other)
        item = next(article);
    return item;
}

KTCatalogueError KTCatalogueReader::error() const
{
    return myImpl->error();
}
