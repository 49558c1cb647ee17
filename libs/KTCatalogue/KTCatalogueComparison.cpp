#include "KTCatalogueComparison.h"

#include "KTArticleComparison.h"
#include "KTArticlePlaces.h"

#include <limits>

KTCatalogueComparison::KTCatalogueComparison(KTCatalogueIndex *older, KTCatalogueIndex *newer)
    : myOlder(older)
    , myNewer(newer)
{
}

bool KTCatalogueComparison::run(const Receiver &receiver)
{
    constexpr int BEHIND_ALL = std::numeric_limits<int>::max();
    int older = 0;
    int newer = 0;
    QVector<KTDifference> differences;
    while (older < myOlder->size() || newer < myNewer->size()) {
        // The highest number may be there, too; then both sides are not at their end.
        const bool hasOlder = older < myOlder->size();
        const bool hasNewer = newer < myNewer->size();
        const int olderId = hasOlder ? myOlder->articleId(older) : BEHIND_ALL;
        const int newerId = hasNewer ? myNewer->articleId(newer) : BEHIND_ALL;
        const bool takesOlder = hasOlder && olderId <= newerId;
        const bool takesNewer = hasNewer && newerId <= olderId;
        if (!takesOlder || !takesNewer || !myOlder->isWrittenAlike(older, *myNewer, newer)) {
            if (!compare(takesOlder ? older : -1, takesNewer ? newer : -1, &differences))
                return false;
            if (!differences.isEmpty())
                receiver(differences);
        }
        older += takesOlder ? 1 : 0;
        newer += takesNewer ? 1 : 0;
    }
    return true;
}

bool KTCatalogueComparison::compare(int olderPlace, int newerPlace, QVector<KTDifference> *differences)
{
    if ((olderPlace >= 0 && !myOlder->read(olderPlace, &myOlderArticle))
        || (newerPlace >= 0 && !myNewer->read(newerPlace, &myNewerArticle)))
        return false;
    if (newerPlace < 0)
        *differences = {KTArticleComparison::removal(KTArticle(myOlderArticle))};
    else if (olderPlace < 0)
        *differences = {KTArticleComparison::addition(KTArticle(myNewerArticle))};
    else
        *differences = KTArticleComparison::differences(KTArticle(myOlderArticle), KTArticle(myNewerArticle));
    if (differences->isEmpty())
        return true;
    if (olderPlace >= 0) {
        KTArticlePlaces places(myOlderArticle);
        for (KTDifference &difference : *differences)
            difference.olderRange = places.range(difference.olderPart);
    }
    if (newerPlace >= 0) {
        KTArticlePlaces places(myNewerArticle);
        for (KTDifference &difference : *differences)
            difference.newerRange = places.range(difference.newerPart);
    }
    return true;
}
