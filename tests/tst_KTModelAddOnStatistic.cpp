#include <KTModelAddOnStatistic.h>

#include "KTTestSupport.h"

#include <QtTest>

using KTAmounts = QMap<KTPriceClass, int>;

class tst_KTModelAddOnStatistic : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void setsAmounts_data()
    {
        QTest::addColumn<bool>("first");
        QTest::addColumn<bool>("second");
        QTest::addColumn<QList<int>>("amounts");
        QTest::newRow("both flags") << true << true << QList<int> {-7, 3};
        QTest::newRow("no flag") << false << false << QList<int> {-7, 3};
        QTest::newRow("second flag") << false << true << QList<int> {10, 10};
        QTest::newRow("first flag") << true << false << QList<int> {1, 1};
    }
    void setsAmounts()
    {
        QFETCH(bool, first);
        QFETCH(bool, second);
        KTContentStatistic statistic(-2, 5,
                                     KTAmounts {
                                         {KTPriceClass(), -7},
                                         {u"FOP2"_s,      3 }
        });
        const KTModelAddOnStatistic earlier(statistic);
        statistic.adaptFromOrToVario(first, second);
        QTEST(statistic.boughtAdditionalContent().values(), "amounts");
        QCOMPARE(earlier.additionalContent().values(), (QList<int> {-7, 3}));
        QCOMPARE(statistic.countGeoMapAreas() * 10 + earlier.countVideoAreas(), -15);
    }

    void keepsAddOnsApart()
    {
        const KTContentStatistic content(0, 0, KTAmounts());
        KTModelAddOnStatistic statistic(content);
        QCOMPARE(statistic.videoAddOn().toString(), u"VDO1"_s);
        statistic = KTModelAddOnStatistic(content, KTPriceClass(), u"FOP1"_s);
        QVERIFY(statistic.videoAddOn().isEmpty() && statistic.flyLeafAddOn().isEmpty());
        const KTArticleVariants variants(u"flyleafcolor:red"_s);
        statistic.setFlyLeafAddOn(u"FLF1"_s, variants);
        statistic.setDesignStyleAddOns({u"91"_s});
        QVERIFY(statistic.flyLeafVariants() == variants);
        QCOMPARE(statistic.flyLeafAddOn().toString() + statistic.spotColorAddOn().toString()
                     + statistic.designStyleAddOns().toString(),
                 u"FLF1FOP191"_s);
    }
};

QTEST_APPLESS_MAIN(tst_KTModelAddOnStatistic)
#include "tst_KTModelAddOnStatistic.moc"
