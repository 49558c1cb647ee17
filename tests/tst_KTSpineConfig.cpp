#include <KTDistanceUnit.h>
#include <KTFontCreator.h>
#include <KTFontSizeManager.h>
#include <KTSpineConfig.h>
#include <KTSpineConfigImpl.h>

#include "KTBoundaries.h"
#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <QFont>
#include <QFontMetrics>
#include <QtTest>

using KTTest::toInt;
using KTTest::Wide;

namespace {

KTDistance distance(double layoutUnits)
{
    return KTDistance(layoutUnits, KTDistanceUnitLayout);
}

KTSpineConfigImpl impl(double base, double block, double additional, int packagesPerBlock = 3)
{
    return KTSpineConfigImpl(KTPageCountOrganization(KTIntRange(24, 96), 2), packagesPerBlock, distance(base),
                             distance(block), distance(additional));
}

KTSpineConfig config(double base, double block, double additional, int packagesPerBlock = 3)
{
    return KTSpineConfig(KTPageCountOrganization(KTIntRange(24, 96), 2), packagesPerBlock, distance(base),
                         distance(block), distance(additional));
}

} // namespace

class tst_KTSpineConfig : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void growsByBlocks_data()
    {
        QTest::addColumn<int>("packagesPerBlock");
        QTest::addColumn<uint>("pages");
        QTest::addColumn<int>("blocks");
        QTest::newRow("below the minimum") << 3 << 0u << 0;
        QTest::newRow("last without a block") << 3 << 29u << 0;
        QTest::newRow("first block") << 3 << 30u << 1;
        QTest::newRow("end of the first block") << 3 << 35u << 1;
        QTest::newRow("second block") << 3 << 36u << 2;
        QTest::newRow("beyond the maximum") << 3 << 624u << 100;
        QTest::newRow("never grows") << 0 << 96u << 0;
        QTest::newRow("negative") << -3 << 36u << -2;
    }
    void growsByBlocks()
    {
        QFETCH(int, packagesPerBlock);
        QFETCH(uint, pages);
        QFETCH(int, blocks);
        const KTSpineConfig spine = config(50, 10, 5, packagesPerBlock);
        QCOMPARE(spine.additionalPagePackageBlocks(pages), blocks);
        QCOMPARE(spine.spineWidth(pages).layoutUnits(), 60.0 + 10.0 * blocks);
        QCOMPARE(impl(50, 10, 5, packagesPerBlock).additionalWithForPages(pages).layoutUnits(),
                 10.0 * blocks);
    }

    void countsBlocksInsideInt()
    {
        for (const int min : KTTest::INTS) {
            for (const int step : KTTest::INTS) {
                for (const int packagesPerBlock : KTTest::INTS) {
                    const KTSpineConfig spine(KTPageCountOrganization(KTIntRange(min, INT_MAX), step),
                                              packagesPerBlock, KTDistance(), KTDistance(), KTDistance());
                    for (const uint pages : {0u, 1u, 2147483647u, 2147483648u, 4294967295u}) {
                        const Wide more = std::fmin(Wide(pages), Wide(INT_MAX)) - min;
                        const int packages = step == 0 || more <= 0 ? 0 : toInt(more / step);
                        const int blocks
                            = packagesPerBlock == 0 ? 0 : toInt(Wide(packages) / packagesPerBlock);
                        QCOMPARE(spine.additionalPagePackageBlocks(pages), blocks);
                    }
                }
            }
        }
    }

    void readsElement_data()
    {
        QTest::addColumn<QString>("children");
        QTest::addColumn<KTSpineConfig>("expected");
        QTest::addColumn<int>("warnings");
        const auto row
            = [](const char *title, const char *children, const KTSpineConfig &expected, int warnings = 0) {
                  QTest::newRow(title) << QString::fromUtf8(children) << expected << warnings;
              };
        const KTSpineConfig empty = config(0, 0, 0, 0);
        row("no unit", "<composition>%1</composition>", config(50, 10, 5));
        row("empty unit", "<composition units=''>%1</composition>", config(50, 10, 5));
        row("centimetres", "<composition units='cm'>%1</composition>", config(500, 100, 50));
        row("unknown unit", "<composition units='ell'>%1</composition>", config(5, 1, 0.5), 3);
        row("no composition", "%1", empty);
        row("no spine", "<composition/><composition>%1</composition>", empty);
        row("malformed", "<composition><spine base_width='nan' block_width='inf'/>%1</composition>", empty);
    }
    void readsElement()
    {
        QFETCH(QString, children);
        const QString spineXML
            = u"<spine packages_per_block='3' base_width='5' block_width='1' additional_width='0.5'/>"_s;
        const QString xml = u"<page pages='24' max_pages='96' page_step='2'>%1</page>"_s;
        const QDomElement element = KTTest::element(xml.arg(children.replace(u"%1"_s, spineXML)));
        const KTMessageRecorder recorder;
        const KTSpineConfig spine = KTSpineConfig::createFromProductsXML(element);
        QTEST(spine, "expected");
        QTEST(recorder.messages().size(), "warnings");
        QVERIFY(spine.isValid());
        QVERIFY(!KTSpineConfig().isValid());
    }

    void comparesWidthsDifferently()
    {
        // The last digit of a sum may differ in base and block width, not in the additional width.
        QCOMPARE(config(0.1 + 0.2, 0.1 + 0.2, 5), config(0.3, 0.3, 5));
        QVERIFY(config(1, 2, 0.1 + 0.2) != config(1, 2, 0.3));
        for (const KTSpineConfig &other :
             {config(1.1, 2, 3), config(1, 2.1, 3), config(1, 2, 3, 4), KTSpineConfig()})
            QVERIFY(config(1, 2, 3) != other);
        // A copy is equal without a look at the fields; this one differs from itself.
        const KTSpineConfig shared = config(NAN, 0, 0);
        QVERIFY(shared != config(NAN, 0, 0));
        KTSpineConfig copy;
        copy = shared;
        const KTSpineConfig moved = std::move(copy);
        copy = moved;
        QVERIFY(copy == shared && sizeof(copy) == sizeof(void *));
        QCOMPARE(config(1, 2.5, 3, 4).dump(),
                 QStringLiteral("min: 24; max: 96; increment: 2; packages per block: 4; widths: 1 2.5 3"));
    }

    void choosesTheFontSize_data()
    {
        QTest::addColumn<QList<int>>("sizes");
        QTest::addColumn<double>("base");
        QTest::addColumn<int>("expected");
        // Base widths of which, with two blocks, the printable share is just the line of 20 points, or less.
        const int line = QFontMetrics(QFont(QFont().family(), 20)).lineSpacing();
        const double fits = line / 0.85 - 10.0;
        const double fitsNot = (line - 0.6) / 0.85 - 10.0;
        QTest::newRow("no sizes") << QList<int>() << fits << 0;
        QTest::newRow("one size is never measured") << QList<int> {400} << 0.0 << 400;
        QTest::newRow("second too tall") << QList<int> {300, 400} << fits << 300;
        QTest::newRow("fits exactly") << QList<int> {10, 15, 20, 40} << fits << 20;
        QTest::newRow("just too tall") << QList<int> {10, 15, 20, 40} << fitsNot << 15;
        QTest::newRow("all fit") << QList<int> {10, 15, 20} << 1000.0 << 20;
        QTest::newRow("the first too tall one ends it") << QList<int> {10, 40, 20} << fits << 10;
        QTest::newRow("sizes that are none") << QList<int> {-5, 0, INT_MAX} << fits << 0;
    }
    void choosesTheFontSize()
    {
        QFETCH(QList<int>, sizes);
        QFETCH(double, base);
        KTFontSizeManager *const manager = KTSingleton<KTFontSizeManager>::instance();
        const QList<int> before = manager->defaultFontSizes();
        manager->setDefaultFontSizes(sizes);
        // The additional width must not count.
        QTEST(config(base, 5, 1000).spineMaxFontHeigth(36, QString()), "expected");
        QTEST(config(base, 5, 1000).spineMaxFontHeigth(36, QFont().family()), "expected");
        manager->setDefaultFontSizes(before);
    }

    void survivesAnyWidth()
    {
        const QList<int> sizes = KTFontSizeManager::instance()->defaultFontSizes();
        QVERIFY(sizes.size() > 2 && sizes.first() > 0 && std::is_sorted(sizes.begin(), sizes.end()));
        for (const double width : KTTest::DOUBLES) {
            QCOMPARE(config(1, 2, width).coverReduceSize(), toInt(width));
            const int size = config(width, 2, 3).spineMaxFontHeigth(24, QString());
            QCOMPARE(size, width > 1000 ? sizes.last() : sizes.first());
        }
        QCOMPARE(KTFontCreator::instance()->createFont(QString(), INT_MAX).pointSize(), 10000);
    }
};

QTEST_MAIN(tst_KTSpineConfig)
#include "tst_KTSpineConfig.moc"
