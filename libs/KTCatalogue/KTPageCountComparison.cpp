#include "KTPageCountComparison.h"

#include "KTCatalogueText.h"
#include "KTOrderDraft.h"

#include <KTDistanceUnit.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using Rule = KTDifferenceRule;

const QString PAGE_COUNTS = QStringLiteral("pageCounts");
const QString SPINE = QStringLiteral("spine");

/** Page counts at which spines are compared; in longer lists, for which nobody binds books, the first ones.
 */
constexpr qint64 MAX_SPINES = 10000;
/** Lengths that are nearer to each other come from different units of one length. */
constexpr double ROUNDING_MILLIMETERS = 1e-5;

double spineMillimeters(const KTArticle &article, int pages)
{
    return article.spine()
        .spineWidth(static_cast<unsigned int>(std::max(0, pages)))
        .value(KTDistanceUnitMillimeter);
}

bool isSame(double first, double second)
{
    return first == second || std::abs(first - second) < ROUNDING_MILLIMETERS || qFuzzyCompare(first, second);
}

/** A length in millimetres; one that no book has is not written out, but told from any other. */
QString number(double length, int decimals)
{
    constexpr double LONGEST = 1e7;
    return std::abs(length) < LONGEST
        ? QString::number(length, 'f', decimals)
        : QString::number(length, 'g', std::numeric_limits<double>::max_digits10);
}

/** The number of decimals, one at least, in which the lengths differ. */
int decimalsFor(double first, double second)
{
    constexpr int MAX_DECIMALS = 5;
    int decimals = 1;
    while (decimals < MAX_DECIMALS && number(first, decimals) == number(second, decimals))
        ++decimals;
    return decimals;
}

QString millimeters(double length, int decimals)
{
    return QStringLiteral("%1 mm").arg(number(length, decimals));
}

/** "at 90 pages 14.0 mm, was 13.2" */
QString widthText(int pages, double before, double after)
{
    const int decimals = decimalsFor(before, after);
    return KTCatalogueText::tr("at %1 pages %2, was %3")
        .arg(QString::number(pages), millimeters(after, decimals), number(before, decimals));
}

/** "48 of 65 page counts" or "all 65 page counts" */
QString share(qint64 part, qint64 whole)
{
    return part < whole ? KTCatalogueText::tr("%1 of %2 page counts").arg(part).arg(whole)
                        : KTCatalogueText::tr("all %1 page counts").arg(whole);
}

/** The numbers as they are, which need not be valid. */
QString rangeText(const KTPageCountOrganization &pageCounts)
{
    return KTCatalogueText::tr("%1 to %2, step %3")
        .arg(pageCounts.minPages())
        .arg(pageCounts.maxPages())
        .arg(pageCounts.pageIncrement());
}

/** Of two valid page counts the one that is nearer to the wish, or that holds all its pages. */
QString nearestTo(const KTArticle &article, int pages)
{
    KTOrderDraft draft(article);
    const auto refusal = draft.setPages(pages);
    return refusal && !refusal->nearestPages.isEmpty() ? QString::number(refusal->nearestPages.constLast())
                                                       : QString();
}

} // namespace

KTPageCountComparison::KTPageCountComparison(KTDifferenceList *list)
    : myList(list)
    , myOlderPages(list->older().pageCounts())
    , myNewerPages(list->newer().pageCounts())
    , myOlder(myOlderPages)
    , myNewer(myNewerPages)
    , myCommon(myOlder.intersected(myNewer))
{
}

void KTPageCountComparison::compare()
{
    compareCounts();
    compareValidity();
    compareSpines();
}

void KTPageCountComparison::compareCounts()
{
    const qint64 removed = myOlder.size() - myCommon.size();
    const qint64 added = myNewer.size() - myCommon.size();
    const QString change = KTCatalogueText::tr("%1 becomes %2").arg(myOlder.toText(), myNewer.toText());
    if (const auto first = myOlder.firstNotIn(myNewer)) {
        QString message = change;
        if (myOlder.size() > 1)
            message += removed < myOlder.size()
                ? KTCatalogueText::tr(": %1 of %2 counts %3 gone")
                      .arg(QString::number(removed), QString::number(myOlder.size()),
                           removed == 1 ? KTCatalogueText::tr("is") : KTCatalogueText::tr("are"))
                : KTCatalogueText::tr(": all %1 counts are gone").arg(removed);
        else
            message.prepend(KTCatalogueText::tr("the page count "));
        if (!myNewer.isEmpty() && myOlder.size() > 1)
            message += KTCatalogueText::tr(", the next to %1 is %2")
                           .arg(QString::number(*first), nearestTo(myList->newer(), *first));
        addAboutCounts(Rule::PageCountsRemoved, message);
    }
    // Where only one side is valid, that is said, and not what the other one has in addition.
    const auto first = myNewer.firstNotIn(myOlder);
    if (first && myOlderPages.isValid() == myNewerPages.isValid()) {
        const QString counts = added == 1
            ? KTCatalogueText::tr("one new page count, %1").arg(*first)
            : KTCatalogueText::tr("%1 new page counts, from %2 on").arg(added).arg(*first);
        addAboutCounts(Rule::PageCountsAdded,
                       removed > 0 ? counts : QStringLiteral("%1: %2").arg(change, counts));
    }
    const bool isRangeSame = myOlderPages.maxPages() == myNewerPages.maxPages();
    if (removed == 0 && added == 0 && !isRangeSame && !myOlder.isEmpty()) {
        KTDifference &difference = addAboutCounts(
            Rule::PageRangeChanged,
            KTCatalogueText::tr("the highest page count is %1, was %2; the valid ones stay %3")
                .arg(QString::number(myNewerPages.maxPages()), QString::number(myOlderPages.maxPages()),
                     myNewer.toText()));
        difference.before = QString::number(myOlderPages.maxPages());
        difference.after = QString::number(myNewerPages.maxPages());
    }
}

void KTPageCountComparison::compareValidity()
{
    if (myOlderPages.isValid() == myNewerPages.isValid())
        return;
    const QString before = rangeText(myOlderPages);
    const QString after = rangeText(myNewerPages);
    KTDifference &difference = myNewerPages.isValid()
        ? addAboutCounts(
            Rule::PageCountsRepaired,
            KTCatalogueText::tr("the page counts (%1) are valid, were not (%2)").arg(after, before))
        : addAboutCounts(Rule::PageCountsInvalid,
                         KTCatalogueText::tr("the page counts (%1) are no longer valid, were %2")
                             .arg(after, myOlder.toText()));
    difference.before = before;
    difference.after = after;
}

void KTPageCountComparison::compareSpines()
{
    const KTArticle &older = myList->older();
    const KTArticle &newer = myList->newer();
    if (older.hasSpine() != newer.hasSpine()) {
        const KTArticle &article = older.hasSpine() ? older : newer;
        const int pages = article.pageCounts().minPages();
        const QString text = KTCatalogueText::tr("%1 at %2 pages")
                                 .arg(millimeters(spineMillimeters(article, pages), 1))
                                 .arg(pages);
        if (newer.hasSpine())
            addAboutSpine(Rule::SpineAdded, KTCatalogueText::tr("there is a spine, %1; was none").arg(text),
                          QString(), text, KTAttributeId::SpineBaseWidth);
        else
            addAboutSpine(Rule::SpineRemoved, KTCatalogueText::tr("the spine is gone, was %1").arg(text),
                          text, QString(), KTAttributeId::SpineBaseWidth);
        return;
    }
    if (!newer.hasSpine())
        return;
    compareSpineWidths();
    const double before = older.spine().additionalSpineWidth().value(KTDistanceUnitMillimeter);
    const double after = newer.spine().additionalSpineWidth().value(KTDistanceUnitMillimeter);
    // The reduction is cut to whole layout units, so that rounding may make it another one.
    const bool isReductionSame = older.spine().coverReduceSize() == newer.spine().coverReduceSize();
    if (isSame(before, after) && isReductionSame)
        return;
    const int decimals = decimalsFor(before, after);
    addAboutSpine(Rule::SpineMarginChanged,
                  KTCatalogueText::tr("the additional width on each side of the spine is %1, was %2")
                      .arg(millimeters(after, decimals), number(before, decimals)),
                  millimeters(before, decimals), millimeters(after, decimals),
                  KTAttributeId::SpineAdditionalWidth);
}

void KTPageCountComparison::compareSpineWidths()
{
    const KTArticle &older = myList->older();
    const KTArticle &newer = myList->newer();
    const qint64 compared = std::min(myCommon.size(), MAX_SPINES);
    struct Width
    {
        int pages;
        double before;
        double after;
    };
    std::optional<Width> first;
    std::optional<Width> last;
    qint64 count = 0;
    bool isConstant = true;
    // Of a list that is cut, the last one shows any difference that grows with the pages.
    for (qint64 i = 0; i < compared; ++i) {
        const int pages = myCommon.at(i + 1 == compared ? myCommon.size() - 1 : i);
        const Width width {pages, spineMillimeters(older, pages), spineMillimeters(newer, pages)};
        if (isSame(width.before, width.after))
            continue;
        ++count;
        last = width;
        if (!first)
            first = width;
        isConstant = isConstant && isSame(width.after - width.before, first->after - first->before);
    }
    if (!first)
        return;
    const double change = first->after - first->before;
    const auto text = [](const Width &width) { return widthText(width.pages, width.before, width.after); };
    QString counts = share(count, compared);
    if (compared < myCommon.size())
        counts += KTCatalogueText::tr(" that were compared");
    else if (compared < std::max(myOlder.size(), myNewer.size()))
        counts += KTCatalogueText::tr(" that both have");
    QString message;
    if (count == 1)
        message = KTCatalogueText::tr("spine %1").arg(text(*first));
    else if (isConstant)
        message = KTCatalogueText::tr("spine %1 %2 at %3: %4")
                      .arg(millimeters(std::abs(change), decimalsFor(change, 0.0)),
                           change > 0.0 ? KTCatalogueText::tr("wider") : KTCatalogueText::tr("narrower"),
                           counts, text(*first));
    else
        message
            = KTCatalogueText::tr("spine %1, %2; another one at %3").arg(text(*first), text(*last), counts);
    const int decimals = decimalsFor(last->before, last->after);
    addAboutSpine(Rule::SpineChanged, message, millimeters(last->before, decimals),
                  millimeters(last->after, decimals), KTAttributeId::SpineBaseWidth);
}

KTDifference &KTPageCountComparison::addAboutCounts(KTDifferenceRule rule, const QString &message)
{
    KTDifference &difference = myList->add(rule, PAGE_COUNTS, message, myOlder.toText(), myNewer.toText());
    difference.olderPart = {KTElementKind::Article, 0, KTAttributeId::ArticlePages};
    difference.newerPart = {KTElementKind::Article, 0, KTAttributeId::ArticlePages};
    return difference;
}

KTDifference &KTPageCountComparison::addAboutSpine(KTDifferenceRule rule, const QString &message,
                                                   const QString &before, const QString &after,
                                                   KTAttributeId attribute)
{
    KTDifference &difference = myList->add(rule, SPINE, message, before, after);
    if (myList->older().hasSpine())
        difference.olderPart = {KTElementKind::Spine, 0, attribute};
    if (myList->newer().hasSpine())
        difference.newerPart = {KTElementKind::Spine, 0, attribute};
    return difference;
}
