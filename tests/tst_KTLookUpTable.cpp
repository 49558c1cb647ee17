#include <KTLookUpTable.h>

#include <KTSpotColor.h>

#include "KTTestSupport.h"

class tst_KTLookUpTable : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void looksUpBothWays()
    {
        KTLookUpTable<KTSpotColor, QString> table {
            {KTSpotColorSilver, u"metal"_s},
            {KTSpotColorGold,   u"metal"_s},
            {KTSpotColorGloss,  u"shine"_s},
            {KTSpotColorGloss,  u"Shine"_s}
        };
        QCOMPARE(table.valueOf(KTSpotColorGloss), u"Shine"_s);
        QVERIFY(table.keyOf(u"metal"_s) == KTSpotColorGold);
        QVERIFY(table.keyOf(u"shine"_s).isNull());
        QVERIFY(table.valueOf(KTSpotColor()).isNull());

        table.defaultKey = KTSpotColorSilverInk;
        table.defaultValue = u"none"_s;
        QVERIFY(table.keyOf(u"shine"_s) == KTSpotColorSilverInk);
        QCOMPARE(table.valueOf(KTSpotColor()), u"none"_s);
    }
};

QTEST_APPLESS_MAIN(tst_KTLookUpTable)
#include "tst_KTLookUpTable.moc"
