#include "KTCatalogueIndex.h"

#include "KTArticleDigest.h"
#include "KTCatalogueText.h"
#include "KTDeviceSection.h"

#include <algorithm>
#include <limits>
#include <utility>

KTCatalogueIndex::KTCatalogueIndex(QIODevice *device, std::optional<int> articleId, const Listener &listener)
    : myDevice(device)
    , myReader(std::make_unique<KTCatalogueReader>(device))
{
    build(articleId, listener);
    myError = myReader->error();
    if (myError.kind != KTCatalogueErrorKind::None)
        myEntries.clear();
}

KTCatalogueIndex::~KTCatalogueIndex() = default;

void KTCatalogueIndex::build(std::optional<int> articleId, const Listener &listener)
{
    if (articleId) {
        myReader->setFilter(
            [articleId](const KTXMLElement &article) { return KTArticleId::findId(article) == *articleId; });
    }
    KTCatalogueArticle article;
    int count = 0;
    while (myReader->nextArticle(&article) == KTCatalogueReader::Item::Article) {
        const int number = KTArticleId::findId(article.root()).id();
        const KTFileRange range = article.elementRange(0);
        if (number > 0) {
            const auto length
                = static_cast<quint32>(std::min<qint64>(range.length(), std::numeric_limits<quint32>::max()));
            myEntries.push_back({number, range.begin.line, range.begin.column, length, range.begin.offset,
                                 KTArticleDigest::of(article.fragment())});
        }
        if (listener)
            listener(++count);
    }
    std::sort(myEntries.begin(), myEntries.end(), [](const Entry &first, const Entry &second) {
        return std::make_pair(first.articleId, first.offset)
            < std::make_pair(second.articleId, second.offset);
    });
    myEntries.erase(std::unique(myEntries.begin(), myEntries.end(),
                                [](const Entry &first, const Entry &second) {
                                    return first.articleId == second.articleId;
                                }),
                    myEntries.end());
}

int KTCatalogueIndex::find(int articleId) const
{
    const auto found
        = std::lower_bound(myEntries.begin(), myEntries.end(), articleId,
                           [](const Entry &entry, int number) { return entry.articleId < number; });
    return found != myEntries.end() && found->articleId == articleId
        ? static_cast<int>(std::distance(myEntries.begin(), found))
        : -1;
}

bool KTCatalogueIndex::isWrittenAlike(int place, const KTCatalogueIndex &other, int otherPlace) const
{
    return myEntries.at(static_cast<std::size_t>(place)).digest
        == other.myEntries.at(static_cast<std::size_t>(otherPlace)).digest;
}

bool KTCatalogueIndex::read(int place, KTCatalogueArticle *article)
{
    const Entry &entry = myEntries.at(static_cast<std::size_t>(place));
    const KTFilePosition position {entry.line, entry.column, entry.offset};
    if (myDevice->seek(entry.offset)) {
        KTDeviceSection section(myDevice, entry.length);
        KTCatalogueReader reader(&section, *myReader, position);
        if (reader.next(article) == KTCatalogueReader::Item::Article
            && KTArticleDigest::of(article->fragment()) == entry.digest) {
            return true;
        }
    }
    myError = {KTCatalogueErrorKind::Changed, KTCatalogueText::tr("the file was changed while it was read"),
               position};
    return false;
}

std::optional<KTArticle> KTCatalogueIndex::article(int articleId)
{
    const int place = find(articleId);
    KTCatalogueArticle article;
    return place >= 0 && read(place, &article) ? std::make_optional<KTArticle>(article) : std::nullopt;
}
