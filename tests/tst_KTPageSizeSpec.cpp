#include <KTBleedMargin.h>
#include <KTPageSizeKey.h>
#include <KTPageSizeSpec.h>

#include "KTBoundaries.h"
#include "KTTestSupport.h"

using KTTest::toInt;
using KTTest::Wide;

namespace {

KTPageContext context(int pageType, int alignment)
{
    return KTPageContext(static_cast<KTPageTypeEnum>(pageType), static_cast<KTPageAlignmentEnum>(alignment));
}

} // namespace

class tst_KTPageSizeSpec : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void addsMargins()
    {
        const KTMargins margins(1, 2, 3, 4);
        const KTPageSizeSpec spec(QSize(100, 200), margins);
        QCOMPARE(spec.totalSize(), QSize(107, 203));
        QCOMPARE(spec.topLeftOffsetOfUsablePrintArea(), QPoint(3, 1));
        QCOMPARE(margins.bottomRight(), QPoint(4, 2));
        QCOMPARE(KTMargins(3, 5).totalMarginWH(), QSize(10, 6));
        QVERIFY(KTPageSizeSpec() == KTPageSizeSpec(QSize(), KTMargins()) && !KTPageContext().isValid());
        for (const int a : KTTest::INTS) {
            for (const int b : KTTest::INTS) {
                const KTMargins sides(a, b, b, a);
                const int sum = toInt(Wide(a) + b);
                QCOMPARE(sides.totalMarginWH(), QSize(sum, sum));
                for (const int c : KTTest::INTS) {
                    KTPageSizeSpec any(QSize(), sides);
                    any.setUsableSize(QSize(c, c));
                    const int total = toInt(Wide(a) + b + c);
                    QCOMPARE(any.totalSize(), QSize(total, total));
                    any.setUsableSlipcaseCoverSize(QSize(a, b));
                    const bool hasSlipcase = a >= 0 && b >= 0;
                    QCOMPARE(any.slipcaseTranslationPoint(),
                             QPointF(0, hasSlipcase ? double(Wide(c) - b) / 2 : 0));
                }
            }
        }
    }

    void comparesAndShares()
    {
        const KTMargins margins(1, 2, 3, 4);
        for (const KTMargins &other :
             {KTMargins(0, 2, 3, 4), KTMargins(1, 0, 3, 4), KTMargins(1, 2, 0, 4), KTMargins(1, 2, 3, 0)})
            QVERIFY(other != margins && !other.allNull());
        QVERIFY(KTMargins() == KTMargins(0, 0) && KTMargins().allNull());
        QVERIFY(!KTMargins(0, 0, 0, 1).allNull() && !KTMargins(0, 0, 1, 0).allNull());

        KTPageSizeSpec spec(QSize(100, 200), margins);
        const KTPageSizeSpec before = spec;
        QCOMPARE(spec.slipcaseTranslationPoint(), QPointF(0, 0));
        spec.setUsableSlipcaseCoverSize(QSize(90, 180));
        QVERIFY(spec == before && spec.slipcaseTranslationPoint() == QPointF(0, 10));
        QVERIFY(spec != KTPageSizeSpec(QSize(100, 200), KTMargins()));
        QVERIFY(spec != KTPageSizeSpec(QSize(100, 201), margins));
        const KTBleedMargin bleed(1, 2);
        QVERIFY(bleed == KTBleedMargin(1, 2) && bleed != KTBleedMargin(1, 0) && bleed != KTBleedMargin(0, 2));
        QVERIFY(!KTBleedMargin(0, 1).isNull() && !KTBleedMargin(1, 0).isNull() && KTBleedMargin().isNull());
    }

    void matchesContexts()
    {
        // Page type and alignment before another context: whether both match, in parts too, is less, equal,
        // valid.
        const KTPageContext second = context(0x28, 3);
        const auto compared = [&](const QString &bits) {
            const KTPageContext first
                = context(bits.section(u' ', 0, 0).toInt(), bits.section(u' ', 1).toInt());
            return KTTest::text(first.matchesWith(second),
                                first.hasPageType(second.pageType())
                                    && first.hasAlignment(second.alignment()),
                                first < second, first == second, first.isValid());
        };
        KTTest::check(compared,
                      {"40 3 -> +|+|-|+|+", "8 6 -> +|+|+|-|+", "41 2 -> +|+|-|-|+", "40 2 -> +|+|+|-|+",
                       "16 3 -> -|-|+|-|+", "40 4 -> -|-|-|-|+", "0 3 -> -|-|+|-|-", "40 0 -> -|-|+|-|-",
                       "-2147483648 3 -> -|-|+|-|+"});
    }

    void keysAreEquivalentWhateverTheirCounts()
    {
        const KTPageSizeKey key(KTPageTypeCover, 24);
        const KTPageSizeKey other(KTPageTypeCover, 26);
        QVERIFY(!(key < other) && !(other < key) && key != other && key == KTPageSizeKey(key));
        QVERIFY(qHash(key, 5u) == qHash(KTPageSizeKey(KTPageTypeCover, 24), 5u)
                && qHash(key) != qHash(other));
        const KTPageSizeKey page(KTPageTypeNormalpage, 24);
        QVERIFY(qHash(key) != qHash(page) && KTPageSizeKey() == KTPageSizeKey(KTPageType(), 0));
        QVERIFY(!(page < key) && !(key < page) && page != key && page < other && !(other < page));
        QVERIFY(key.isValid() && key.pageCount() == 24 && KTPageSizeKey(KTPageTypeCover, 0).isValid());
        QVERIFY(!KTPageSizeKey(KTPageTypeCover, -1).isValid() && !KTPageSizeKey(KTPageType(), 1).isValid());
        for (const KTPageAlignmentEnum alignment : {KTPageAlignmentLeft, KTPageAlignmentCenter})
            QVERIFY(key.pageContext().matchesWith(KTPageContext(KTPageTypeSpine, alignment)));
    }

    void dumps()
    {
        QCOMPARE(KTTest::logged(context(8, 2)), u"normalpage right "_s);
        QCOMPARE(
            KTTest::text(KTBleedMargin(1, 2), KTMargins(1, 2, 3, 4)),
            u"KTBleedMargin: horizontal: 1; vertical: 2|KTMargins: top: 1; bottom: 2; left: 3; right: 4"_s);
        // No keyword stands for all alignments, hence two blanks; and one is added where the stream adds
        // none.
        QCOMPARE(KTTest::logged(KTPageSizeKey(KTPageTypeCover, -24)), u"cover  -24 "_s);
        QCOMPARE(KTTest::text(context(8, 2), KTPageSizeKey(KTPageTypeCover, -24),
                              KTPageSizeSpec(QSize(1, 2), KTMargins())),
                 u"normalpage right|cover  -24 |{ usable=QSize(1, 2), 4ScalingQSize(-1, -1)"_s);
    }
};

QTEST_APPLESS_MAIN(tst_KTPageSizeSpec)
#include "tst_KTPageSizeSpec.moc"
