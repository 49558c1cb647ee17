#include <KTBarcodeDefinitionList.h>
#include <KTConfiguredArticleVariantList.h>
#include <KTProductTypeList.h>

#include "KTAllocationCounter.h"
#include "KTTestSupport.h"

#include <QRegion>

static quint64 blocks = 0;

/** Called in each basic block of the sources that are compiled into this test. */
extern "C" void __sanitizer_cov_trace_pc()
{
    ++blocks;
}

static QString csv(int count, const QString &part)
{
    QString text;
    for (int i = 0; i < count; ++i)
        text += part.arg(i) + u',';
    return text;
}

/** Half of them at one place, the others apart and in no order. */
static KTBarcodeDefinitionList barcodes(int count, int firstPage)
{
    KTBarcodeDefinitionList list;
    for (int i = 0; i < count; ++i) {
        const QRect rect = i % 2 ? QRect(0, 0, 1, 1) : QRect(i, (i * 7919 % 100003) * 3, 2, 2);
        list.append(KTBarcodeDefinition(rect, firstPage + i, u"i"_s));
    }
    return list;
}

class tst_Effort : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void growsWithTheInput()
    {
        const auto updatesBarcodes = [](int count) {
            KTBarcodeDefinitionList list = barcodes(count, 0);
            list.updateDefinitions(barcodes(count, count));
            return list == barcodes(count, count) && list.occupiedRegion().rectCount() == count / 2;
        };
        const auto comparesOptions = [](int count) {
            auto offered = KTConfiguredArticleVariantList::createFromCSV(csv(count, u"k%1:v"_s));
            const auto others = KTConfiguredArticleVariantList::createFromCSV(csv(count, u"k%1:w"_s));
            offered.intersect(offered, false);
            return offered.contains(offered) && offered.contains(offered.defaultVariants())
                && !offered.containsAtLeastOne(others) && offered.keys().size() == count;
        };
        const auto addsProductTypes = [](int count) {
            auto list = KTProductTypeList::buildFromCSV(csv(count, u"T%1"_s));
            list.addWithoutDoubles(KTProductTypeList::buildFromCSV(csv(2 * count, u"T%1"_s)));
            return list.size() == 2 * count;
        };
        for (bool (*const work)(int) : {+updatesBarcodes, +comparesOptions, +addsProductTypes}) {
            const auto effort = [work](int count) {
                blocks = 0;
                const KTAllocationCounter memory;
                return work(count) ? std::pair(blocks, memory.bytes()) : std::pair<quint64, std::size_t>();
            };
            const auto [fewBlocks, fewBytes] = effort(4000);
            const auto [manyBlocks, manyBytes] = effort(32000);
            // The square of eight times as much would be 64 times as much.
            QVERIFY(fewBlocks > 0 && manyBlocks > 0 && manyBlocks < 32 * fewBlocks);
            QVERIFY(manyBytes < 32 * fewBytes);
        }
    }
};

QTEST_APPLESS_MAIN(tst_Effort)
#include "tst_Effort.moc"
