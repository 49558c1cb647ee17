#include <KTPriceClassSet.h>
#include <KTSpotColor.h>

#include "KTTestSupport.h"

#include <QtTest>

class tst_KTPriceClassSet : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void knowsFreeCodes()
    {
        for (const char *code : {"", "0", "05", "0FOP"})
            QVERIFY2(KTPriceClass::create(QString::fromUtf8(code)).isFree(), code);
        for (const char *code : {"10", " 0", "FOP0", "\u0660"})
            QVERIFY2(!KTPriceClass::create(QString::fromUtf8(code)).isFree(), code);
    }

    void isBuiltFromCodes()
    {
        const QString code = u"FOP1"_s;
        const KTPriceClassSet two {code, code, QString()};
        QCOMPARE(two.size(), 2);
        QVERIFY(two.contains(code) && two.contains(u""_s) && !two.contains(code.toLower()));
        for (const KTPriceClassSet &one :
             {KTPriceClassSet(code), KTPriceClassSet {code}, KTPriceClassSet {KTPriceClass(code)}})
            QCOMPARE(one.toString(), code);
        QCOMPARE(KTPriceClassSet(KTPriceClass()).size(), 1);
        QString debug;
        QDebug(&debug) << two;
        const bool emptyFirst = two.begin()->isEmpty();
        QCOMPARE(two.toString(), emptyFirst ? u",FOP1"_s : u"FOP1,"_s);
        QCOMPARE(debug, emptyFirst ? u"\"\" \"FOP1\" "_s : u"\"FOP1\" \"\" "_s);
    }

    void groupsKeepTheirGaps_data()
    {
        QTest::addColumn<KTPriceClassSet>("group");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("inside");
        QTest::addColumn<QString>("outside");
        const auto row
            = [](const KTPriceClassSet &group, int count, const char *inside, const char *outside) {
                  QTest::newRow(inside)
                      << group << count << QString::fromLatin1(inside) << QString::fromLatin1(outside);
              };
        using Set = KTPriceClassSet;
        row(Set::spotColorGloss(), 13, "FOP2 FOP24 FOP38", "FOP1 FOP26 FOP28 FOP36");
        row(Set::spotColorGoldSilver(), 24, "FOP1 FOP26 FOP37 FOP509 FOP551", "FOP27 FOP506");
        row(Set::spotColorSilverInk(), 0, "", "FOP1");
        row(Set::spotColorAll(), 37, "FOP1 FOP2 FOP505", "FOP27 FOP28 FOP29 FOP36 FOP506");
        row(Set::bookGiftBoxes(), 4, "GBT4 GBT7", "GBT3 GBT8");
        row(Set::calendarGiftBoxes(), 2, "GPT2 GPT4", "GPT3");
        row(Set::framePassepartout(), 1, "PAS1", "GLP1");
        row(Set::frameGlass(), 1, "GLP1", "LAM1");
        row(Set::frameGlasses(), 2, "GLP1 LAM1", "PAS1");
        row(Set::maps(), 2, "MAP1 MAP51", "MAP2");
        row(Set::envelops(), 2, "ECC1 ECC2", "ECC3");
        row(Set::calendarStrips(), 3, "CRL1 CRL3", "WST1");
        row(Set::posterWoddenStrips(), 4, "PHA1 PHA4", "PHA5");
        row(Set::calendarStandPriceClasses(), 1, "WST1", "CRL1");
        row(Set::calendarFrameClasses(), 4, "WST1 CRL1 CRL2", "PHA1");
        row(Set::mattCoverPriceClasses(), 8, "FOP29 FOP36", "FOP28 FOP37");
        row(Set::flyleafPriceClasses(), 7, "FLF1 FLF7", "FLF8");
        row(Set::designPriceClasses(), 7, "91 96 premium_design", "90 97");
        row(Set::wallholderPriceClasses(), 16, "WH2 WH12 WH16 WH202 WH212", "WH3 WH13 WH15 WH1");
        row(Set::videoNames(), 14, "VDO1 VDO9 VDO51 VDO55", "VDO10 VDO50 VDO56");
    }
    void groupsKeepTheirGaps()
    {
        QFETCH(KTPriceClassSet, group);
        QFETCH(QString, inside);
        QFETCH(QString, outside);
        QTEST(group.size(), "count");
        for (const QString &code : inside.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            QVERIFY2(group.contains(code), qPrintable(code));
        for (const QString &code : outside.split(QLatin1Char(' ')))
            QVERIFY2(!group.contains(code), qPrintable(code));
    }

    void billsSingleSpotColors()
    {
        const auto billed = [](int color) {
            return KTPriceClassSet::spotColorPriceClasses(static_cast<KTSpotColorEnum>(color));
        };
        QCOMPARE(billed(1), KTPriceClassSet::spotColorGloss());
        for (const int color : {2, 4, 8})
            QCOMPARE(billed(color), KTPriceClassSet::spotColorGoldSilver());
        for (const int color : {0, 3, 6, 16, 17, 32, -1})
            QVERIFY2(billed(color).isEmpty(), QByteArray::number(color).constData());
    }
};

QTEST_APPLESS_MAIN(tst_KTPriceClassSet)
#include "tst_KTPriceClassSet.moc"
