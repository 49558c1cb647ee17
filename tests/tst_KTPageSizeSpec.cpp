#include <KTBleedMargin.h>
#include <KTPageSizeKey.h>
#include <KTPageSizeSpec.h>

#include "KTBoundaries.h"
#include "KTTestSupport.h"

#include <QtTest>

using KTTest::toInt;
using KTTest::Wide;

namespace {

KTPageContext context(int pageType, int alignment)
{
    return KTPageContext(static_cast<KTPageTypeEnum>(pageType), static_cast<KTPageAlignmentEnum>(alignment));
}

template <typename T>
QString debugText(const T &value, bool spaces = true)
{
    QString text;
    QDebug stream(&text);
    stream.setAutoInsertSpaces(spaces);
    stream << value << QString();
    return text.trimmed();
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
        for (const int a : KTTest::INTS) {
            for (const int b : KTTest::INTS) {
                const KTMargins sides(a, b, b, a);
                const int sum = toInt(Wide(a) + b);
                QCOMPARE(sides.totalMarginWH(), QSize(sum, sum));
                for (const int c : KTTest::INTS) {
                    KTPageSizeSpec any(QSize(c, c), sides);
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
        QVERIFY(KTMargins() == KTMargins(0, 0) && KTMargins().allNull() && !KTMargins(0, 0, 0, 1).allNull());
        KTMargins copy = margins;
        const KTMargins moved = std::move(copy);
        copy = moved;
        QVERIFY(copy == margins && sizeof(copy) == sizeof(void *));

        KTPageSizeSpec spec(QSize(100, 200), margins);
        const KTPageSizeSpec before = spec;
        QCOMPARE(spec.slipcaseTranslationPoint(), QPointF(0, 0));
        spec.setUsableSlipcaseCoverSize(QSize(90, 180));
        QVERIFY(spec == before && spec.slipcaseTranslationPoint() == QPointF(0, 10));
        QVERIFY(spec != KTPageSizeSpec(QSize(100, 200), KTMargins()) && KTBleedMargin(0, 0).isNull());
        spec.setUsableSize(QSize(100, 201));
        QVERIFY(spec != before && KTBleedMargin(0, 1) != KTBleedMargin(1, 0)
                && !KTBleedMargin(0, 1).isNull());
    }

    void matchesContexts_data()
    {
        QTest::addColumn<int>("pageType");
        QTest::addColumn<int>("alignment");
        QTest::addColumn<bool>("matches");
        QTest::addColumn<bool>("less");
        QTest::newRow("equal") << 0x28 << 3 << true << false;
        QTest::newRow("common bits, less") << 0x8 << 6 << true << true;
        QTest::newRow("common bits, greater") << 0x29 << 2 << true << false;
        QTest::newRow("alignment less") << 0x28 << 2 << true << true;
        QTest::newRow("other page type") << 0x10 << 3 << false << true;
        QTest::newRow("other alignment") << 0x28 << 4 << false << false;
        QTest::newRow("no page type") << 0 << 3 << false << true;
        QTest::newRow("no alignment") << 0x28 << 0 << false << true;
        QTest::newRow("sign bit") << INT_MIN << 3 << false << true;
    }
    void matchesContexts()
    {
        QFETCH(int, pageType);
        QFETCH(int, alignment);
        const KTPageContext first = context(pageType, alignment);
        const KTPageContext second = context(0x28, 3);
        QTEST(first.matchesWith(second), "matches");
        QTEST(first.hasPageType(second.pageType()) && first.hasAlignment(second.alignment()), "matches");
        QTEST(first < second, "less");
        QCOMPARE(first == second, pageType == 0x28 && alignment == 3);
        QCOMPARE(first.isValid(), pageType != 0 && alignment != 0);
    }

    void keysAreEquivalentWhateverTheirCounts()
    {
        const KTPageSizeKey key(KTPageTypeCover, 24);
        const KTPageSizeKey other(KTPageTypeCover, 26);
        QVERIFY(!(key < other) && !(other < key) && key != other);
        const KTPageSizeKey page(KTPageTypeNormalpage, 24);
        QVERIFY(!(page < key) && !(key < page) && page != key && page < other && !(other < page));
        QVERIFY(key.isValid() && KTPageSizeKey(KTPageTypeCover, 0).isValid());
        QVERIFY(!KTPageSizeKey(KTPageTypeCover, -1).isValid() && !KTPageSizeKey(KTPageType(), 1).isValid());
        for (const KTPageAlignmentEnum alignment : {KTPageAlignmentLeft, KTPageAlignmentCenter})
            QVERIFY(key.pageContext().matchesWith(KTPageContext(KTPageTypeSpine, alignment)));
    }

    void dumps()
    {
        QCOMPARE(debugText(context(8, 2)), u"normalpage right \"\""_s);
        QCOMPARE(debugText(context(8, 2), false), u"normalpage right\"\""_s);
        // No keyword stands for all alignments, hence two blanks.
        const KTPageSizeKey key(KTPageTypeCover, -24);
        QCOMPARE(debugText(key), u"cover  -24 \"\""_s);
        QCOMPARE(debugText(key, false), u"cover  -24 \"\""_s);
        QCOMPARE(debugText(KTPageSizeSpec(QSize(1, 2), KTMargins()), false),
                 u"{ usable=QSize(1, 2), 4ScalingQSize(-1, -1)\"\""_s);
    }
};

QTEST_APPLESS_MAIN(tst_KTPageSizeSpec)
#include "tst_KTPageSizeSpec.moc"
