#include <KTDistanceUnit.h>
#include <KTFontCreator.h>
#include <KTFontSizeManager.h>
#include <KTPageCountOrganization.h>
#include <KTSpineConfig.h>

#include "KTBoundaries.h"
#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>

using KTTest::toInt;
using KTTest::Wide;

namespace {

KTSpineConfig config(double base, double block, double additional, int packagesPerBlock = 3)
{
    const auto distance = [](double units) { return KTDistance(units, KTDistanceUnitLayout); };
    return KTSpineConfig(KTPageCountOrganization(KTIntRange(24, 96), 2), packagesPerBlock, distance(base),
                         distance(block), distance(additional));
}

/** The smallest size and how many warnings there were, before there were fonts to measure. */
QStringList answersWithoutFonts;

void askWithoutFonts()
{
    const KTMessageRecorder recorder;
    const int size = config(1000, 0, 0).spineMaxFontHeigth(24, QString());
    answersWithoutFonts.append(KTTest::text(size, recorder.messages().size()));
}

} // namespace

class tst_KTSpineConfig : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void growsByBlocks()
    {
        const auto width = [](int pages) { return config(50, 10, 5).spineWidth(uint(pages)).layoutUnits(); };
        // From the minimum of 24 pages on, beyond the maximum of 96 too; backwards.
        KTTest::check<int>(width, {"0 -> 60", "29 -> 60", "30 -> 70", "35 -> 70", "36 -> 80", "624 -> 1060"});
        QCOMPARE(config(50, 10, 5, -3).spineWidth(36).layoutUnits(), 40.0);
    }

    void countsBlocksInsideInt()
    {
        for (const int min : KTTest::INTS) {
            for (const int step : KTTest::INTS) {
                for (const int packagesPerBlock : KTTest::INTS) {
                    const KTSpineConfig config(KTPageCountOrganization(KTIntRange(min, INT_MAX), step),
                                               packagesPerBlock, KTDistance(), KTDistance(), KTDistance());
                    for (const uint pages : {0u, 1u, 2147483647u, 2147483648u, 4294967295u}) {
                        const Wide more = std::fmin(Wide(pages), Wide(INT_MAX)) - min;
                        const int packages = step == 0 || more <= 0 ? 0 : toInt(more / step);
                        const int blocks
                            = packagesPerBlock == 0 ? 0 : toInt(Wide(packages) / packagesPerBlock);
                        QCOMPARE(config.additionalPagePackageBlocks(pages), blocks);
                    }
                }
            }
        }
    }

    void readsElement()
    {
        // The width of the fewest pages and of one block more, and the additional width, in layout units.
        const auto read = [](QString children) {
            children.replace(
                u"%1"_s,
                u"<spine packages_per_block='3' base_width='5' block_width='1' additional_width='0.55'/>"_s);
            const KTSpineConfig config = KTSpineConfig::createFromProductsXML(
                KTTest::element(u"<page pages='24' max_pages='96' page_step='2'>%1</page>"_s.arg(children)));
            return KTTest::text(config.isValid(), config.spineWidth(24).layoutUnits(),
                                config.spineWidth(30).layoutUnits(),
                                config.additionalSpineWidth().layoutUnits(), config.coverReduceSize());
        };
        KTTest::checkTable(u"spines.tsv"_s, read);
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
        // A copy is equal without a look at the fields, even where they differ from themselves.
        const KTSpineConfig shared = config(NAN, 0, 0);
        QVERIFY(shared != config(NAN, 0, 0) && shared == KTSpineConfig(shared));
        QCOMPARE(config(1, 2.5, 3, 4).dump(),
                 u"min: 24; max: 96; increment: 2; packages per block: 4; widths: 1 2.5 3"_s);
    }

    void choosesTheFontSize_data()
    {
        const KTTest::Rows<QList<int>, double, int> row;
        // A size whose line is half a unit more than the printable share of some width, and odd, so that the
        // share is rounded up neither by truncation nor to the nearest even number.
        int size = 30;
        int line = 0;
        for (QFont font; line % 34 != 9; line = QFontMetrics(font).lineSpacing()) {
            size += 3;
            font.setPixelSize(size * 4 / 3);
        }
        // Base widths that make such a width, with two blocks, and one that is too small.
        const double fits = (2 * line - 1) / 17 * 10 - 10;
        const double fitsNot = fits - 0.2;
        row("no sizes", {}, fits, 0);
        row("one size is never measured", {400}, 0.0, 400);
        row("fits exactly", {10, 15, size, 5 * size}, fits, size);
        row("just too tall", {10, 15, size, 5 * size}, fitsNot, 15);
        row("all fit", {10, 15, size}, 9000.0, size);
        row("the first too tall one ends it", {10, 5 * size, size}, fits, 10);
        row("sizes that are none", {-5, 0, INT_MAX}, fits, 0);
    }
    void choosesTheFontSize()
    {
        const auto [sizes, base, expected] = KTTest::row<QList<int>, double, int>();
        KTFontSizeManager *const manager = KTSingleton<KTFontSizeManager>::instance();
        const QList<int> before = manager->defaultFontSizes();
        manager->setDefaultFontSizes(sizes);
        // The additional width must not count.
        QCOMPARE(config(base, 5, 1000).spineMaxFontHeigth(36, QString()), expected);
        QCOMPARE(config(base, 5, 1000).spineMaxFontHeigth(36, QFont().family()), expected);
        manager->setDefaultFontSizes(before);
    }

    void answersWithoutFonts() { QCOMPARE(::answersWithoutFonts.join(u' '), u"6|1 6|1"_s); }

    void survivesAnyWidth()
    {
        const QList<int> sizes = KTFontSizeManager::instance()->defaultFontSizes();
        QCOMPARE(KTTest::text(sizes),
                 u"(6, 7, 8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72)"_s);
        for (const double width : KTTest::DOUBLES) {
            QCOMPARE(config(1, 2, width).coverReduceSize(), toInt(width));
            const int size = config(width, 2, 3).spineMaxFontHeigth(24, QString());
            QCOMPARE(size, width > 1000 ? sizes.last() : sizes.first());
        }
        const KTFontCreator *const fonts = KTFontCreator::instance();
        QCOMPARE(fonts->defaultFontFamily(), QGuiApplication::font().family());
        const auto created = [fonts](int size) {
            const QFont font = fonts->createFont(u"Any"_s, size);
            return KTTest::text(font.family(), font.pointSize());
        };
        KTTest::check<int>(created, {"-2147483648 -> Any|1", "1 -> Any|1", "10001 -> Any|10000"});
    }
};

int main(int argc, char *argv[])
{
    // No monitor has the resolution that the sizes are made for.
    qputenv("QT_FONT_DPI", "144");
    askWithoutFonts();
    {
        const QCoreApplication application(argc, argv);
        askWithoutFonts();
    }
    const QGuiApplication application(argc, argv);
    tst_KTSpineConfig test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_KTSpineConfig.moc"
