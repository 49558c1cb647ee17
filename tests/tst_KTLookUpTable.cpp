#include <KTLookUpTable.h>

#include <KTSpotColor.h>

#include <QtTest>

class tst_KTLookUpTable : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void looksUpBothWays()
    {
        KTLookUpTable<KTSpotColor, QString> table {
            {KTSpotColorSilver, QStringLiteral("metal")},
            {KTSpotColorGold,   QStringLiteral("metal")},
            {KTSpotColorGloss,  QStringLiteral("shine")},
            {KTSpotColorGloss,  QStringLiteral("Shine")}
        };
        QCOMPARE(table.valueOf(KTSpotColorGloss), QStringLiteral("Shine"));
        QVERIFY(table.keyOf(QStringLiteral("metal")) == KTSpotColorGold);
        QVERIFY(table.keyOf(QStringLiteral("shine")).isNull());
        QVERIFY(table.valueOf(KTSpotColor()).isNull());

        table.defaultKey = KTSpotColorSilverInk;
        table.defaultValue = QStringLiteral("none");
        QVERIFY(table.keyOf(QStringLiteral("shine")) == KTSpotColorSilverInk);
        QCOMPARE(table.valueOf(KTSpotColor()), QStringLiteral("none"));
    }
};

QTEST_APPLESS_MAIN(tst_KTLookUpTable)
#include "tst_KTLookUpTable.moc"
