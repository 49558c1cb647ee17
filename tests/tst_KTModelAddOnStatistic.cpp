#include <KTModelAddOnStatistic.h>

#include "KTTestSupport.h"

class tst_KTModelAddOnStatistic : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void setsAmounts()
    {
        const KTContentStatistic content(-2, 5,
                                         {
                                             {KTPriceClass(), -7},
                                             {u"FOP2"_s,      3 }
        });
        const auto adapted = [&](const QString &flags) {
            KTContentStatistic statistic = content;
            const KTModelAddOnStatistic earlier(statistic);
            statistic.adaptFromOrToVario(flags.contains(u'1'), flags.contains(u'2'));
            return KTTest::text(statistic.boughtAdditionalContent().values(),
                                earlier.additionalContent().values(), statistic.countGeoMapAreas(),
                                earlier.countVideoAreas());
        };
        KTTest::check(adapted,
                      {"12 -> (-7, 3)|(-7, 3)|-2|5", " -> (-7, 3)|(-7, 3)|-2|5", "2 -> (10, 10)|(-7, 3)|-2|5",
                       "1 -> (1, 1)|(-7, 3)|-2|5"});
    }

    void keepsAddOnsApart()
    {
        QCOMPARE(KTTest::logged(KTModelAddOnStatistic()),
                 u"KTModelAddOnStatistic: KTContentStatistic: 0 0 QMap() \"VDO1\" \"\" \"\" \"\" "_s);
        const KTContentStatistic content(1, 2, QMap<KTPriceClass, int>());
        QCOMPARE(KTModelAddOnStatistic(content).videoAddOn().toString(), u"VDO1"_s);
        const QString text = u"KTModelAddOnStatistic: KTContentStatistic: 1 2 QMap() "_s;
        KTModelAddOnStatistic statistic(content, u"VDO2"_s, u"FOP1"_s);
        QCOMPARE(KTTest::logged(statistic), text + u"\"VDO2\" \"FOP1\" \"\" \"\" "_s);
        statistic.setVideoAddOn(u"VDO3"_s);
        statistic.setSpotColorAddOn(u"FOP2"_s);
        statistic.setFlyLeafAddOn(u"FLF1"_s, KTArticleVariants(u"flyleafcolor:red"_s));
        statistic.setDesignStyleAddOns({u"91"_s});
        QCOMPARE(KTTest::logged(statistic),
                 text + u"\"VDO3\" \"FOP2\" \"FLF1\" \"flyleafcolor = red\" \"91\" "_s);
    }
};

QTEST_APPLESS_MAIN(tst_KTModelAddOnStatistic)
#include "tst_KTModelAddOnStatistic.moc"
