#pragma once

#include "KTCatalogueIndex.h"
#include "KTDifference.h"
#include "ktcatalogue_export.h"

#include <functional>
#include <memory>

/**
 * What differs between two catalogues, one article at a time in the order of their numbers, so that memory
 * does not grow with the differences.
 *
 * Articles are matched by their numbers and compared as KTArticleComparison does it; their places in the
 * files and the order of their attributes never count. Only those that are not written alike are read again.
 */
class KTCATALOGUE_EXPORT KTCatalogueComparison
{
public:
    /** The differences of one article, of which there is at least one, in the order of their rules. */
    using Receiver = std::function<void(const QVector<KTDifference> &differences)>;

    /** The indexes, without errors, must outlive the comparison. */
    KTCatalogueComparison(KTCatalogueIndex *older, KTCatalogueIndex *newer);

    /** False when a file is no longer what it was, see the error of its index; then nothing more comes. */
    bool run(const Receiver &receiver);
    /** The same for one article, told by its places in the indexes, of which one may be -1. */
    bool compare(int olderPlace, int newerPlace, QVector<KTDifference> *differences);

private:
    KTCatalogueIndex *myOlder;
    KTCatalogueIndex *myNewer;
    /** Kept for the next articles. */
    KTCatalogueArticle myOlderArticle;
    KTCatalogueArticle myNewerArticle;
};
