#pragma once

#include "KTDifference.h"
#include "KTOrderCheck.h"
#include "ktcatalogue_export.h"

#include <QHash>
#include <QVector>

/**
 * Counts how many saved orders each breaking or charge difference between two catalogues hits, and finds the
 * orders that were fine before and no longer are. One thread at a time.
 */
class KTCATALOGUE_EXPORT KTOrderImpact
{
public:
    /** The differences, each of which is known by its place in the list. */
    KTOrderImpact(const KTOrderCheck::Source &older, const KTOrderCheck::Source &newer,
                  const QVector<KTDifference> &differences);

    /** What becomes of one order: whether it could be ordered before, and what the newer catalogue says of
     * it. */
    struct Outcome
    {
        bool wasFine;
        KTOrderVerdict verdict;
        /** True for an order that the changes break. */
        bool isBroken() const { return wasFine && !verdict.problems.isEmpty(); }
    };
    /** Looks an order through, and counts it. */
    Outcome add(const KTSavedOrder &order);

    /** The orders that the difference hits; none where none is looked for. */
    std::optional<qint64> hits(int difference) const;

    /** How many orders were looked through. */
    qint64 orders() const { return myOrders; }
    /** Those that could not be ordered before either. */
    qint64 refusedBefore() const { return myRefusedBefore; }
    /** Those that were fine before and are not now. */
    qint64 broken() const { return myBroken; }

private:
    /** The differences of one article, by what they look for in an order. */
    struct Article
    {
        QVector<int> all;
        QVector<int> pages;
        QHash<QString, QVector<int>> withKey;
        QHash<QString, QVector<int>> withoutKey;
        QHash<QString, QHash<QString, QVector<int>>> withOption;
    };

    void count(const Article &article, const KTSavedOrder &order, const KTOrderVerdict &before,
               const KTOrderVerdict &after);
    void addTo(const QVector<int> &differences, qint64 number);

    KTOrderCheck myOlder;
    KTOrderCheck myNewer;
    QHash<int, Article> myArticles;
    QVector<std::optional<qint64>> myHits;
    qint64 myOrders = 0;
    qint64 myRefusedBefore = 0;
    qint64 myBroken = 0;
};
