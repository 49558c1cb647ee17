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
    void knowsCodes()
    {
        const KTPriceClass lower(u"fop2"_s);
        QVERIFY(KTPriceClass(u"FOP10"_s) < u"FOP2"_s && !(lower < u"FOP2"_s) && lower != u"FOP2"_s);
        QVERIFY(lower.isValid() && !lower.isEmpty() && !KTPriceClass().isValid() && KTPriceClass().isEmpty());
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

    void groupsKeepTheirGaps()
    {
        using Set = KTPriceClassSet;
        QVector<Set> groups; // In the order of the table.
        groups << Set::spotColorGloss() << Set::spotColorGoldSilver() << Set::spotColorSilverInk()
               << Set::spotColorAll() << Set::bookGiftBoxes() << Set::calendarGiftBoxes()
               << Set::framePassepartout() << Set::frameGlass() << Set::frameLamination()
               << Set::frameGlasses() << Set::maps() << Set::envelops() << Set::calendarStrips()
               << Set::posterWoddenStrips() << Set::calendarStandPriceClasses() << Set::calendarFrameClasses()
               << Set::mattCoverPriceClasses() << Set::flyleafPriceClasses() << Set::designPriceClasses()
               << Set::wallholderPriceClasses() << Set::videoNames();
        const auto codesOfNext = [&groups](const QString &) {
            QStringList codes = groups.takeFirst().toString().split(u',');
            codes.sort();
            return codes.join(u' ');
        };
        KTTest::checkTable(u"priceclasses.tsv"_s, codesOfNext);
        QVERIFY(groups.isEmpty());
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
