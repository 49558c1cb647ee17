#include "KTPageComparison.h"

#include "KTCatalogueText.h"
#include "KTMillimeterText.h"

#include <KTArithmetic.h>

#include <QMap>

namespace {

using Rule = KTDifferenceRule;

/** A page type, unions as they are, and one alignment. */
using Key = QPair<qint64, quint32>;

constexpr int ALIGNMENT_BITS = 32;

/** What stands for each page type and alignment: the first page that is for it. */
QMap<Key, int> pagesByKey(const QVector<KTArticle::Page> &pages)
{
    QMap<Key, int> places;
    for (int i = 0; i < pages.size(); ++i) {
        const qint64 type = pages.at(i).context.pageType().value();
        const auto alignments = static_cast<quint32>(pages.at(i).context.alignment().value());
        for (int bit = 0; bit < ALIGNMENT_BITS; ++bit) {
            const quint32 alignment = 1U << bit;
            const bool isMeant = alignments == 0 ? bit == 0 : (alignments & alignment) != 0;
            // A page without alignment is one of its own kind.
            const Key key(type, alignments == 0 ? 0 : alignment);
            if (isMeant && !places.contains(key))
                places.insert(key, i);
        }
    }
    return places;
}

QString bleedText(const KTMargins &bleed)
{
    using KTMillimeterText::text;
    const bool isSame
        = bleed.top() == bleed.bottom() && bleed.left() == bleed.right() && bleed.top() == bleed.left();
    if (isSame)
        return QStringLiteral("%1 mm").arg(text(bleed.top()));
    return KTCatalogueText::tr("top %1, bottom %2, left %3, right %4 mm")
        .arg(text(bleed.top()), text(bleed.bottom()), text(bleed.left()), text(bleed.right()));
}

QString slipcaseText(const QSize &size)
{
    return size == KTPageSizeSpec().usableSlipcaseCoverSize() ? QString() : KTMillimeterText::text(size);
}

QString orNone(const QString &text)
{
    return text.isEmpty() ? KTCatalogueText::tr("none") : text;
}

} // namespace

void KTPageComparison::compare()
{
    for (const Group &group : groups())
        compareGroup(group);
}

/** Alignments whose pages are the same ones on both sides belong together. */
QVector<KTPageComparison::Group> KTPageComparison::groups() const
{
    const QMap<Key, int> older = pagesByKey(myList->older().pages());
    const QMap<Key, int> newer = pagesByKey(myList->newer().pages());
    QMap<Key, QPair<int, int>> pairs;
    for (auto page = older.begin(); page != older.end(); ++page)
        pairs.insert(page.key(), {page.value(), newer.value(page.key(), -1)});
    for (auto page = newer.begin(); page != newer.end(); ++page)
        pairs.insert(page.key(), {older.value(page.key(), -1), page.value()});

    QVector<Group> groups;
    QMap<QPair<qint64, QPair<int, int>>, int> places;
    for (auto pair = pairs.begin(); pair != pairs.end(); ++pair) {
        const qint64 type = pair.key().first;
        const auto [olderPage, newerPage] = pair.value();
        const auto found = places.constFind({type, pair.value()});
        if (found == places.constEnd()) {
            places.insert({type, pair.value()}, KTArithmetic::sizeOf(groups));
            groups.append({type, olderPage, newerPage, pair.key().second});
        } else {
            groups[*found].alignments |= pair.key().second;
        }
    }
    return groups;
}

void KTPageComparison::compareGroup(const Group &group)
{
    const KTArticle::Page &page
        = group.older < 0 ? myList->newer().pages().at(group.newer) : myList->older().pages().at(group.older);
    const QString type = page.context.pageType().encode();
    const QString alignment = KTPageAlignment(static_cast<KTPageAlignmentEnum>(group.alignments)).encodeCSV();
    const QString name = QStringLiteral("%1 (%2)").arg(
        type.isEmpty() ? KTCatalogueText::tr("no page type") : type, orNone(alignment));
    const QString subject = QStringLiteral("pages.%1.%2").arg(type, alignment);
    const QString size = KTMillimeterText::text(page.size.usableSize());
    if (group.newer < 0)
        add(Rule::PageTypeRemoved, group, subject,
            KTCatalogueText::tr("page %1 is gone, was %2").arg(name, size), size, QString(),
            KTAttributeId::PageType);
    else if (group.older < 0)
        add(Rule::PageTypeAdded, group, subject, KTCatalogueText::tr("page %1 is new, %2").arg(name, size),
            QString(), size, KTAttributeId::PageType);
    else
        compareSizes(group, name, subject);
}

void KTPageComparison::compareSizes(const Group &group, const QString &name, const QString &subject)
{
    const KTPageSizeSpec &before = myList->older().pages().at(group.older).size;
    const KTPageSizeSpec &after = myList->newer().pages().at(group.newer).size;
    const auto addChange = [&](Rule rule, const QString &what, const QString &was, const QString &is,
                               KTAttributeId attribute) {
        add(rule, group, subject,
            KTCatalogueText::tr("page %1: %2 %3, was %4").arg(name, what, orNone(is), orNone(was)), was, is,
            attribute);
    };
    if (before.usableSize() != after.usableSize())
        addChange(Rule::PageSizeChanged, KTCatalogueText::tr("size"),
                  KTMillimeterText::text(before.usableSize()), KTMillimeterText::text(after.usableSize()),
                  KTAttributeId::PageWidth);
    if (before.bleedMargins() != after.bleedMargins())
        addChange(Rule::BleedChanged, KTCatalogueText::tr("bleed"), bleedText(before.bleedMargins()),
                  bleedText(after.bleedMargins()), KTAttributeId::PageBleedTop);
    if (before.usableSlipcaseCoverSize() != after.usableSlipcaseCoverSize())
        addChange(Rule::SlipcaseChanged, KTCatalogueText::tr("slipcase cover"),
                  slipcaseText(before.usableSlipcaseCoverSize()),
                  slipcaseText(after.usableSlipcaseCoverSize()), KTAttributeId::PageSlipcaseWidth);
}

void KTPageComparison::add(KTDifferenceRule rule, const Group &group, const QString &subject,
                           const QString &message, const QString &before, const QString &after,
                           KTAttributeId attribute)
{
    KTDifference &difference = myList->add(rule, subject, message, before, after);
    if (group.older >= 0)
        difference.olderPart = {KTElementKind::Page, group.older, attribute};
    if (group.newer >= 0)
        difference.newerPart = {KTElementKind::Page, group.newer, attribute};
}
