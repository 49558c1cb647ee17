#include "KTBarcodeComparison.h"

#include "KTCatalogueText.h"
#include "KTCheckText.h"
#include "KTMillimeterText.h"

#include <KTArithmetic.h>

#include <QHash>

namespace {

using Rule = KTDifferenceRule;

/** "12.0, 258.0 mm" from the left and from the top */
QString cornerText(const QRect &rect)
{
    return QStringLiteral("%1, %2 mm")
        .arg(KTMillimeterText::text(rect.x()), KTMillimeterText::text(rect.y()));
}

/** "30.0 x 10.0 mm at 12.0, 258.0 mm on page 0" */
QString placeText(const KTBarcodeDefinition &barcode)
{
    return KTCatalogueText::tr("%1 at %2 on page %3")
        .arg(KTMillimeterText::text(barcode.rect().size()), cornerText(barcode.rect()),
             QString::number(barcode.pageNr()));
}

/** What of page, place and size is another one. */
QString moveText(const KTBarcodeDefinition &before, const KTBarcodeDefinition &after)
{
    QStringList changes;
    if (before.pageNr() != after.pageNr())
        changes.append(
            KTCatalogueText::tr("on page %1, was on page %2").arg(after.pageNr()).arg(before.pageNr()));
    if (before.rect().topLeft() != after.rect().topLeft())
        changes.append(
            KTCatalogueText::tr("at %1, was at %2").arg(cornerText(after.rect()), cornerText(before.rect())));
    if (before.rect().size() != after.rect().size())
        changes.append(KTCatalogueText::tr("%1, was %2")
                           .arg(KTMillimeterText::text(after.rect().size()),
                                KTMillimeterText::text(before.rect().size())));
    const QString barcode = before.pageNr() == after.pageNr()
        ? KTCatalogueText::tr("the barcode on page %1").arg(after.pageNr())
        : KTCatalogueText::tr("the barcode");
    return KTCatalogueText::tr("%1 is %2").arg(barcode, changes.join(QStringLiteral("; ")));
}

QString rectKey(const KTBarcodeDefinition &barcode)
{
    const QRect rect = barcode.rect();
    return QStringLiteral("%1 %2 %3 %4").arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

} // namespace

KTBarcodeComparison::KTBarcodeComparison(KTDifferenceList *list)
    : myList(list)
    , myOlder(list->older().barcodes())
    , myNewer(list->newer().barcodes())
    , myNewerOf(myOlder.size(), -1)
    , myOlderOf(myNewer.size(), -1)
{
}

void KTBarcodeComparison::compare()
{
    // The more two barcodes have in common, the sooner they count as the same one.
    const auto page = [](const KTBarcodeDefinition &barcode) { return QString::number(barcode.pageNr()); };
    match([&](const KTBarcodeDefinition &barcode) {
        return QStringLiteral("%1 %2 %3").arg(page(barcode), rectKey(barcode), barcode.imageName());
    });
    match([&](const KTBarcodeDefinition &barcode) {
        return QStringLiteral("%1 %2").arg(page(barcode), rectKey(barcode));
    });
    match(page);
    match(&rectKey);
    for (int older = 0; older < myOlder.size(); ++older) {
        const int newer = myNewerOf.at(older);
        if (newer >= 0)
            addChanges(older, newer);
        else
            add(Rule::BarcodeRemoved, older, newer,
                KTCatalogueText::tr("a barcode is gone, was %1").arg(placeText(myOlder.at(older))),
                std::nullopt);
    }
    for (int newer = 0; newer < myNewer.size(); ++newer) {
        if (myOlderOf.at(newer) < 0)
            add(Rule::BarcodeAdded, -1, newer,
                KTCatalogueText::tr("a barcode is new, %1").arg(placeText(myNewer.at(newer))), std::nullopt);
    }
}

template <typename Key>
void KTBarcodeComparison::match(Key key)
{
    QHash<QString, QVector<int>> open;
    // From the last to the first, so that the first one is taken first.
    for (int newer = KTArithmetic::sizeOf(myNewer) - 1; newer >= 0; --newer) {
        if (myOlderOf.at(newer) < 0)
            open[key(myNewer.at(newer))].append(newer);
    }
    if (open.isEmpty())
        return;
    for (int older = 0; older < myOlder.size(); ++older) {
        if (myNewerOf.at(older) >= 0)
            continue;
        const auto found = open.find(key(myOlder.at(older)));
        if (found == open.end() || found->isEmpty())
            continue;
        myNewerOf[older] = found->takeLast();
        myOlderOf[myNewerOf.at(older)] = older;
    }
}

void KTBarcodeComparison::addChanges(int older, int newer)
{
    const KTBarcodeDefinition &before = myOlder.at(older);
    const KTBarcodeDefinition &after = myNewer.at(newer);
    if (before.rect() != after.rect() || before.pageNr() != after.pageNr())
        add(Rule::BarcodeMoved, older, newer, moveText(before, after), std::nullopt);
    if (before.imageName() != after.imageName()) {
        KTDifference &difference
            = add(Rule::BarcodeImageChanged, older, newer,
                  KTCatalogueText::tr("%1 stands for the barcode on page %2, was %3")
                      .arg(KTCheckText::quoted(after.imageName()), QString::number(after.pageNr()),
                           KTCheckText::quoted(before.imageName())),
                  KTAttributeId::BarcodeImage);
        difference.before = before.imageName();
        difference.after = after.imageName();
    }
}

KTDifference &KTBarcodeComparison::add(KTDifferenceRule rule, int older, int newer, const QString &message,
                                       std::optional<KTAttributeId> attribute)
{
    const KTBarcodeDefinition &barcode = newer < 0 ? myOlder.at(older) : myNewer.at(newer);
    KTDifference &difference = myList->add(rule, QStringLiteral("barcodes.%1").arg(barcode.pageNr()), message,
                                           older < 0 ? QString() : placeText(myOlder.at(older)),
                                           newer < 0 ? QString() : placeText(myNewer.at(newer)));
    if (older >= 0)
        difference.olderPart = {KTElementKind::Barcode, older, attribute};
    if (newer >= 0)
        difference.newerPart = {KTElementKind::Barcode, newer, attribute};
    return difference;
}
