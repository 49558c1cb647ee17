#include <KTPriceClassSet.h>
#include <KTSpotColor.h>

#include "KTTestSupport.h"

#include <cstdlib>

namespace {

/** Asks when all that is made on first use would have been destroyed again. */
const struct KTLastWord
{
    ~KTLastWord()
    {
        if (KTPriceClassSet::maps().isEmpty())
            std::abort();
    }
} LAST_WORD;

} // namespace

class tst_KTPriceClassSet : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void knowsFreeCodes()
    {
        const auto isFree = [](const QString &code) { return KTPriceClass::create(code).isFree(); };
        KTTest::check(
            isFree,
            {" -> +", "0 -> +", "05 -> +", "0FOP -> +", "10 -> -", " 0 -> -", "FOP0 -> -", "\u0660 -> -"});
    }

    void isBuiltFromCodes()
    {
        const QString code = u"FOP1"_s;
        const KTPriceClassSet two {code, code, QString()};
        QVERIFY(two.size() == 2 && two.contains(code) && two.contains(u""_s));
        QCOMPARE(KTPriceClassSet(KTPriceClass()).size(), 1);
        QVERIFY(KTPriceClassSet({KTPriceClass(), code}) == two && KTPriceClassSet({}).isEmpty());
        const KTPriceClassSet rest = two - KTPriceClassSet(code);
        QVERIFY(rest == KTPriceClassSet({KTPriceClass()})
                && KTPriceClassSet(QSet<KTPriceClass>(rest)) == rest);
        QCOMPARE(std::hash<KTPriceClass>()(code), std::size_t(qHash(code)));
        const bool emptyFirst = two.begin()->isEmpty();
        QCOMPARE(two.toString(), emptyFirst ? u",FOP1"_s : u"FOP1,"_s);
        QCOMPARE(KTTest::logged(two), emptyFirst ? u"\"\" \"FOP1\" "_s : u"\"FOP1\" \"\" "_s);
    }

    void groupsKeepTheirGaps_data()
    {
        const KTTest::Rows<QString, KTPriceClassSet, int, QString> row;
        using Set = KTPriceClassSet;
        row("FOP2 FOP24 FOP38", Set::spotColorGloss(), 13, "FOP1 FOP26 FOP28 FOP36");
        row("FOP1 FOP26 FOP37 FOP509 FOP551", Set::spotColorGoldSilver(), 24, "FOP27 FOP506");
        row("", Set::spotColorSilverInk(), 0, "FOP1");
        row("FOP1 FOP2 FOP505", Set::spotColorAll(), 37, "FOP27 FOP28 FOP29 FOP36 FOP506");
        row("GBT4 GBT7", Set::bookGiftBoxes(), 4, "GBT3 GBT8");
        row("GPT2 GPT4", Set::calendarGiftBoxes(), 2, "GPT3");
        row("PAS1", Set::framePassepartout(), 1, "GLP1");
        row("GLP1", Set::frameGlass(), 1, "LAM1");
        row("GLP1 LAM1", Set::frameGlasses(), 2, "PAS1");
        row("MAP1 MAP51", Set::maps(), 2, "MAP2");
        row("ECC1 ECC2", Set::envelops(), 2, "ECC3");
        row("CRL1 CRL3", Set::calendarStrips(), 3, "WST1");
        row("PHA1 PHA4", Set::posterWoddenStrips(), 4, "PHA5");
        row("WST1", Set::calendarStandPriceClasses(), 1, "CRL1");
        row("WST1 CRL1 CRL2", Set::calendarFrameClasses(), 4, "PHA1");
        row("FOP29 FOP36", Set::mattCoverPriceClasses(), 8, "FOP28 FOP37");
        row("FLF1 FLF7", Set::flyleafPriceClasses(), 7, "FLF8");
        row("91 96 premium_design", Set::designPriceClasses(), 7, "90 97");
        row("WH2 WH12 WH16 WH202 WH212", Set::wallholderPriceClasses(), 16, "WH3 WH13 WH15 WH1");
        row("VDO1 VDO9 VDO51 VDO55", Set::videoNames(), 14, "VDO10 VDO50 VDO56");
    }
    void groupsKeepTheirGaps()
    {
        const auto [inside, group, count, outside] = KTTest::row<QString, KTPriceClassSet, int, QString>();
        QCOMPARE(group.size(), count);
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
