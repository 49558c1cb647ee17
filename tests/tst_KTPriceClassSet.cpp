#include <KTPriceClassSet.h>
#include <KTSpotColor.h>

#include <QtTest>

using KTGroup = KTPriceClassSet (*)();
Q_DECLARE_METATYPE(KTGroup)

class tst_KTPriceClassSet : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void knowsFreeCodes_data()
    {
        QTest::addColumn<bool>("free");
        for (const char *code : {"", "0", "05", "0FOP"})
            QTest::newRow(code) << true;
        for (const char *code : {"10", " 0", "FOP0", "\u0660"})
            QTest::newRow(code) << false;
    }
    void knowsFreeCodes()
    {
        const QString code = QString::fromUtf8(QTest::currentDataTag());
        QTEST(KTPriceClass::create(code).isFree(), "free");
        QCOMPARE(KTPriceClass(code).isValid(), !code.isEmpty());
    }

    void comparesCodesExactly()
    {
        const KTPriceClass upper(QStringLiteral("FOP1"));
        const KTPriceClass lower(QStringLiteral("fop1"));
        QVERIFY(upper != lower && upper < lower && !(lower < upper) && !(upper < upper));
        QVERIFY(KTPriceClass() == KTPriceClass(QStringLiteral("")));
        for (const uint seed : {0u, 7u})
            QCOMPARE(qHash(upper, seed), qHash(QStringLiteral("FOP1"), seed));
    }

    void isBuiltFromCodes()
    {
        const QString code = QStringLiteral("FOP1");
        const KTPriceClassSet codes {code, code, QString()};
        QCOMPARE(codes.size(), 2);
        QVERIFY(codes.contains(code) && codes.contains(KTPriceClass()));
        for (const KTPriceClassSet &one :
             {KTPriceClassSet(code), KTPriceClassSet {code}, KTPriceClassSet(KTPriceClass(code)),
              KTPriceClassSet {KTPriceClass(code)}}) {
            QCOMPARE(one.toString(), code);
        }
        QCOMPARE(KTPriceClassSet(KTPriceClass()).size(), 1);
        QCOMPARE(KTPriceClassSet().toString(), QString());
    }

    void writes()
    {
        const KTPriceClassSet two {QStringLiteral("A"), QStringLiteral("B")};
        QString debug;
        QDebug(&debug) << two;
        if (two.toString() == QStringLiteral("A,B"))
            QCOMPARE(debug, QStringLiteral("\"A\" \"B\" "));
        else
            QCOMPARE(two.toString() + debug, QStringLiteral("B,A\"B\" \"A\" "));
    }

    void groupsKeepTheirGaps_data()
    {
        QTest::addColumn<KTGroup>("group");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("inside");
        QTest::addColumn<QString>("outside");
        const auto row
            = [](const char *name, KTGroup group, int count, const char *inside, const char *outside) {
                  QTest::newRow(name)
                      << group << count << QString::fromLatin1(inside) << QString::fromLatin1(outside);
              };
        using Set = KTPriceClassSet;
        row("gloss", &Set::spotColorGloss, 13, "FOP2,FOP24,FOP38", "FOP1,FOP26,FOP28,FOP36");
        row("gold, silver", &Set::spotColorGoldSilver, 24, "FOP1,FOP26,FOP37,FOP509,FOP551", "FOP27,FOP506");
        row("silver ink", &Set::spotColorSilverInk, 0, "", "");
        row("spot colours", &Set::spotColorAll, 37, "FOP1,FOP2,FOP505", "FOP27,FOP28,FOP29,FOP36,FOP506");
        row("book boxes", &Set::bookGiftBoxes, 4, "GBT4,GBT7", "GBT3,GBT8");
        row("calendar boxes", &Set::calendarGiftBoxes, 2, "GPT2,GPT4", "GPT3");
        row("frame glasses", &Set::frameGlasses, 2, "GLP1,LAM1", "PAS1");
        row("maps", &Set::maps, 2, "MAP1,MAP51", "MAP2");
        row("envelopes", &Set::envelops, 2, "ECC1,ECC2", "ECC3");
        row("calendar strips", &Set::calendarStrips, 3, "CRL1,CRL3", "WST1");
        row("wooden strips", &Set::posterWoddenStrips, 4, "PHA1,PHA4", "PHA5");
        row("calendar stands", &Set::calendarStandPriceClasses, 1, "WST1", "CRL1");
        row("calendar frames", &Set::calendarFrameClasses, 4, "WST1,CRL1,CRL2", "PHA1");
        row("matt covers", &Set::mattCoverPriceClasses, 8, "FOP29,FOP36", "FOP28,FOP37");
        row("flyleaves", &Set::flyleafPriceClasses, 7, "FLF1,FLF7", "FLF8");
        row("designs", &Set::designPriceClasses, 7, "91,96,premium_design", "90,97");
        row("wall holders", &Set::wallholderPriceClasses, 16, "WH2,WH12,WH16,WH202,WH212",
            "WH3,WH13,WH15,WH1");
        row("videos", &Set::videoNames, 14, "VDO1,VDO9,VDO51,VDO55", "VDO10,VDO50,VDO56");
    }
    void groupsKeepTheirGaps()
    {
        QFETCH(KTGroup, group);
        QFETCH(QString, inside);
        QFETCH(QString, outside);
        KTPriceClassSet changed = group();
        QTEST(changed.size(), "count");
        changed.clear();
        for (const QString &code : inside.split(QLatin1Char(','), Qt::SkipEmptyParts))
            QVERIFY2(group().contains(code), qPrintable(code));
        for (const QString &code : outside.split(QLatin1Char(','), Qt::SkipEmptyParts))
            QVERIFY2(!group().contains(code), qPrintable(code));
    }

    void billsSpotColors_data()
    {
        QTest::addColumn<KTPriceClassSet>("billed");
        const auto row
            = [](int color, const KTPriceClassSet &billed) { QTest::addRow("%d", color) << billed; };
        row(1, KTPriceClassSet::spotColorGloss());
        for (const int color : {2, 4, 8})
            row(color, KTPriceClassSet::spotColorGoldSilver());
        for (const int color : {0, 3, 6, 16, 17, 32, -1})
            row(color, KTPriceClassSet());
    }
    void billsSpotColors()
    {
        const KTSpotColor color(static_cast<KTSpotColorEnum>(QByteArray(QTest::currentDataTag()).toInt()));
        QTEST(KTPriceClassSet::spotColorPriceClasses(color), "billed");
    }
};

QTEST_APPLESS_MAIN(tst_KTPriceClassSet)
#include "tst_KTPriceClassSet.moc"
