#include <KTArithmetic.h>
#include <KTIntRange.h>

#include "KTBoundaries.h"
#include "KTTestSupport.h"

using KTTest::toInt;
using KTTest::Wide;

class tst_KTIntRange : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void compares()
    {
        const KTIntRange range(1, 5);
        const KTIntRange invalid(2, 1);
        QVERIFY(KTIntRange(0, 9) < range && KTIntRange(1, 4) < range && !(range < range));
        QVERIFY(range.isValid() && KTIntRange(2, 2).isValid() && !invalid.isValid());
        QCOMPARE(KTTest::logged(range), u"\"KTIntRange: 1 - 5\" "_s);
        QVERIFY(range < invalid && !(invalid < range) && !(invalid < KTIntRange(4, 3)));
        QVERIFY(range.contains(range) && range.contains(KTIntRange(2, 5)) && range.contains(invalid));
        QVERIFY(!range.contains(KTIntRange(0, 5)) && !range.contains(KTIntRange(1, 6)));
        QVERIFY(range.intersects(KTIntRange(5, 9)) && range.intersects(KTIntRange(-1, 1)));
        QVERIFY(range.intersects(KTIntRange(2, 3)) && range.intersects(KTIntRange(0, 9)));
        QVERIFY(!range.intersects(KTIntRange(6, 9)) && !range.intersects(KTIntRange(-1, 0)));
        QVERIFY(KTIntRange(9, 5).intersects(KTIntRange(0, 6)));
    }

    void expands()
    {
        KTIntRange range;
        QCOMPARE(range.expandTo(7), 7);
        QCOMPARE(range, KTIntRange(7, 7));
        for (const int value : {9, 8, -2})
            range.expandTo(value);
        QCOMPARE(range, KTIntRange(-2, 9));
        KTIntRange fromZero(0, 5);
        fromZero.expandTo(9);
        QCOMPARE(fromZero, KTIntRange(0, 9));
    }

    void staysInsideInt()
    {
        for (const int min : KTTest::INTS) {
            for (const int n : KTTest::INTS) {
                QCOMPARE(KTIntRange(min, n).center(), toInt((Wide(min) + n) / 2));
                QCOMPARE(KTIntRange(min, 5).shifted(n), KTIntRange(toInt(Wide(min) + n), toInt(Wide(5) + n)));
                QCOMPARE(KTIntRange(5, min).stretched(n),
                         KTIntRange(toInt(Wide(5) * n), toInt(Wide(min) * n)));
            }
            QCOMPARE(KTIntRange(min, 0).shifted(LLONG_MAX).min(), INT_MAX);
            QCOMPARE(KTIntRange(min, 0).shifted(LLONG_MIN).min(), INT_MIN);
        }
        for (const double number : KTTest::DOUBLES) {
            QCOMPARE(KTArithmetic::truncated(number), toInt(number));
            QCOMPARE(KTArithmetic::rounded(number), toInt(std::floor(number + Wide(0.5))));
        }
    }
};

QTEST_APPLESS_MAIN(tst_KTIntRange)
#include "tst_KTIntRange.moc"
