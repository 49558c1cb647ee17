#include <KTModelAddOnStatistic.h>

#include <QtTest>

using KTAmounts = QMap<KTPriceClass, int>;
Q_DECLARE_METATYPE(KTAmounts)

class tst_KTModelAddOnStatistic : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void adaptsAmounts_data()
    {
        QTest::addColumn<bool>("first");
        QTest::addColumn<bool>("second");
        QTest::addColumn<KTAmounts>("adapted");
        const auto amounts = [](int gloss, int none) {
            return KTAmounts {
                {QStringLiteral("FOP2"), gloss},
                {KTPriceClass(),         none },
            };
        };
        QTest::newRow("both") << true << true << amounts(3, -7);
        QTest::newRow("neither") << false << false << amounts(3, -7);
        QTest::newRow("second") << false << true << amounts(10, 10);
        QTest::newRow("first") << true << false << amounts(1, 1);
    }
    void adaptsAmounts()
    {
        QFETCH(bool, first);
        QFETCH(bool, second);
        const KTAmounts bought {
            {QStringLiteral("FOP2"), 3 },
            {KTPriceClass(),         -7}
        };
        KTContentStatistic statistic(-2, 5, bought);
        const KTModelAddOnStatistic earlier(statistic);
        statistic.adaptFromOrToVario(first, second);
        QTEST(statistic.boughtAdditionalContent(), "adapted");
        QCOMPARE(earlier.additionalContent(), bought);
        QCOMPARE(statistic.countGeoMapAreas() * 10 + statistic.countVideoAreas(), -15);

        KTContentStatistic nothing(0, 0, KTAmounts());
        nothing.adaptFromOrToVario(first, second);
        QVERIFY(nothing.boughtAdditionalContent().isEmpty());
    }

    void keepsAddOnsApart()
    {
        KTModelAddOnStatistic statistic(KTContentStatistic(1, 2, KTAmounts()));
        QCOMPARE(statistic.videoAddOn().toString(), QStringLiteral("VDO1"));
        QVERIFY(statistic.spotColorAddOn().isEmpty() && statistic.flyLeafAddOn().isEmpty());
        QVERIFY(!statistic.flyLeafVariants().isValid() && statistic.designStyleAddOns().isEmpty());

        const KTArticleVariants variants(QStringLiteral("flyleafcolor:red"));
        statistic.setFlyLeafAddOn(QStringLiteral("FLF1"), variants);
        statistic.setSpotColorAddOn(QStringLiteral("FOP1"));
        statistic.setVideoAddOn(QStringLiteral("VDO2"));
        statistic.setDesignStyleAddOns({QStringLiteral("91")});
        QCOMPARE(statistic.flyLeafAddOn().toString() + statistic.spotColorAddOn().toString()
                     + statistic.videoAddOn().toString() + statistic.designStyleAddOns().toString(),
                 QStringLiteral("FLF1FOP1VDO291"));
        QVERIFY(statistic.flyLeafVariants() == variants);
        statistic.setFlyLeafAddOn(KTPriceClass(), KTArticleVariants());
        QVERIFY(statistic.flyLeafAddOn().isEmpty() && !statistic.flyLeafVariants().isValid());
    }

    void takesBothAddOns()
    {
        const KTModelAddOnStatistic statistic(KTContentStatistic(1, 2, KTAmounts()), KTPriceClass(),
                                              QStringLiteral("FOP1"));
        QVERIFY(statistic.videoAddOn().isEmpty());
        QCOMPARE(statistic.spotColorAddOn().toString(), QStringLiteral("FOP1"));
        QCOMPARE(statistic.countGeoMapAreas() * 10 + statistic.countVideoAreas(), 12);
    }
};

QTEST_APPLESS_MAIN(tst_KTModelAddOnStatistic)
#include "tst_KTModelAddOnStatistic.moc"
