#include "KTBenchmark.h"

#include <KTBarcodeDefinitionList.h>
#include <KTDistance.h>
#include <KTDistanceUnit.h>
#include <KTIntRange.h>
#include <KTPageCountOrganization.h>
#include <KTSpineConfig.h>

#include <QRandomGenerator>
#include <QRegion>
#include <QVector>

namespace {

/** That many page counts, from 0 on. */
QVector<int> pageCounts(int count)
{
    QVector<int> pages;
    for (int i = 0; i < count; ++i)
        pages.append(i);
    return pages;
}

/** Barcodes of some 40 x 20 on pages of 3,000 x 2,000; the same in every run. */
KTBarcodeDefinitionList barcodes(int count)
{
    QRandomGenerator random(static_cast<quint32>(count));
    KTBarcodeDefinitionList list;
    for (int i = 0; i < count; ++i) {
        const QRect rect(random.bounded(3000), random.bounded(2000), 30 + random.bounded(20), 20);
        list.append(KTBarcodeDefinition(rect, i % 100, QStringLiteral("barcode.png")));
    }
    return list;
}

/** As many entries: a third is in the list already, a third replaces one there, a third is new. */
KTBarcodeDefinitionList updates(const KTBarcodeDefinitionList &list)
{
    KTBarcodeDefinitionList result;
    for (int i = 0; i < list.size(); ++i) {
        const KTBarcodeDefinition &known = list.at(i);
        if (i % 3 == 0)
            result.append(known);
        else if (i % 3 == 1)
            result.append(KTBarcodeDefinition(known.rect(), known.pageNr() + 1, known.imageName()));
        else
            result.append(KTBarcodeDefinition(known.rect().translated(1, 0), 0, known.imageName()));
    }
    return result;
}

/** The merge in its plainest form, which walks the list for each entry. */
void updatePlainly(KTBarcodeDefinitionList *list, const KTBarcodeDefinitionList &other)
{
    KTBarcodeDefinitionList pending = other;
    while (!pending.isEmpty()) {
        const KTBarcodeDefinition definition = pending.first();
        if (list->contains(definition)) {
            pending.removeAll(definition);
            continue;
        }
        const KTBarcodeDefinition known = list->findDefinition(definition.rect());
        if (known.isValid())
            list->removeAll(known);
        else
            pending.removeAll(definition);
        list->append(definition);
    }
}

QRegion occupiedPlainly(const KTBarcodeDefinitionList &list)
{
    QRegion region;
    for (const KTBarcodeDefinition &definition : list)
        region += definition.rect();
    return region;
}

/** Adds an operation on a list of that many entries. */
template <typename OPERATION>
void addOverList(const std::string &name, OPERATION operation)
{
    KTBenchmark::add(name, 1, [operation](std::size_t count) {
        for (; count > 0; --count)
            benchmark::DoNotOptimize(operation());
    });
}

void addBarcodes(int count)
{
    const KTBarcodeDefinitionList list = barcodes(count);
    const KTBarcodeDefinitionList other = updates(list);
    const auto update = [list, other] {
        KTBarcodeDefinitionList updated = list;
        updated.updateDefinitions(other);
        return updated;
    };
    const auto updateLiterally = [list, other] {
        KTBarcodeDefinitionList updated = list;
        updatePlainly(&updated, other);
        return updated;
    };
    const std::string entries = std::to_string(count) + " entries";
    addOverList("occupied region of " + entries + "/library", [list] { return list.occupiedRegion(); });
    addOverList("update definitions, " + entries + "/library", update);
    // Beyond, the plain ones take seconds.
    if (count > 1000)
        return;
    KTBenchmark::require(list.occupiedRegion() == occupiedPlainly(list), QStringLiteral("a region"));
    KTBenchmark::require(update() == updateLiterally(), QStringLiteral("a merge"));
    addOverList("occupied region of " + entries + "/literal", [list] { return occupiedPlainly(list); });
    addOverList("update definitions, " + entries + "/literal", updateLiterally);
}

} // namespace

void KTBenchmark::addLayout()
{
    static const QVector<int> manyPages = pageCounts(1000);
    static const QVector<int> spinePages = pageCounts(200);
    static const KTPageCountOrganization organization(KTIntRange(24, 154), 2);
    static const KTSpineConfig spine(organization, 3, KTDistance(5.0, KTDistanceUnit(QStringLiteral("mm"))),
                                     KTDistance(1.0, KTDistanceUnit(QStringLiteral("mm"))),
                                     KTDistance(0.5, KTDistanceUnit(QStringLiteral("mm"))));
    addOverInputs("constrain/library", manyPages, [](int pages) { return organization.constrain(pages); });
    addOverInputs("countPackages/library", manyPages,
                  [](int pages) { return organization.countPackages(pages); });
    addOverInputs("spineWidth/library", spinePages,
                  [](int pages) { return spine.spineWidth(static_cast<unsigned int>(pages)); });
    for (const int count : {100, 1'000, 10'000})
        addBarcodes(count);
}
