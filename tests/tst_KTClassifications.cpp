#include <KTArticleClass.h>
#include <KTCoverType.h>
#include <KTDistanceUnit.h>
#include <KTDlpType.h>
#include <KTFotoPaperType.h>
#include <KTMaterialType.h>
#include <KTOrientation.h>
#include <KTPageAlignment.h>
#include <KTPageBinding.h>
#include <KTPageType.h>
#include <KTPaperType.h>
#include <KTProductArrangement.h>
#include <KTSpaceMagnitude.h>
#include <KTSpotColor.h>

#include "KTClassificationTest.h"
#include "KTTestSupport.h"

#include <QCoreApplication>
#include <QMap>
#include <QSet>
#include <QTranslator>
#include <QVariant>
#include <QtTest>

#include <typeinfo>

namespace {

/** Compares what a text reads as, and how that is written, as a whole and bit by bit. */
template <typename CLASS>
void row(const char *text, const char *expected)
{
    const CLASS read(QString::fromUtf8(text));
    QTest::addRow("%s: %s", typeid(CLASS).name(), text)
        << QString::fromUtf8(expected)
        << u"%1 | %2 | %3"_s.arg(QString::number(read.value()), read.encode(), read.encodeCSV());
}

/** What every classification class owes to its callers, whatever its keywords are. */
template <typename CLASS>
void check(int keywords, int values)
{
    using Enum = KTTest::Enum<CLASS>;
    const CLASS none;
    QVERIFY(none.isNull());
    QCOMPARE(none.allKnownKeywords().size(), keywords);
    QCOMPARE(none.allKnownEnumValues().size(), values);
    QMap<CLASS, QString> map;
    QSet<CLASS> set;
    for (const Enum value : none.allKnownEnumValues()) {
        const CLASS one(value);
        QVERIFY2(CLASS(one.encode()) == value, qPrintable(one.encode()));
        map.insert(one, one.encode());
        set.insert(one);
    }
    for (const QString &keyword : none.allKnownKeywords()) {
        const CLASS one(keyword.toUpper());
        QVERIFY2(set.contains(one) && map.value(one) == one.encode(), qPrintable(keyword));
    }
    QCOMPARE(set.size(), values);
    QVERIFY(QVariant::fromValue(CLASS(map.lastKey())).template value<CLASS>() == map.lastKey());
}

/** Translates every text into its context and itself. */
class KTEchoTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *sourceText, const char *, int) const override
    {
        return QString::fromUtf8(context) + u'/' + QString::fromUtf8(sourceText);
    }
};

} // namespace

class tst_KTClassifications : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The first test function, since the tables are built once per process.
    void translatesOnFirstUse_data()
    {
        QTest::addColumn<bool>("installed");
        QTest::newRow("first use") << true;
        QTest::newRow("language changed") << false;
    }
    void translatesOnFirstUse()
    {
        QFETCH(bool, installed);
        KTEchoTranslator translator;
        if (installed)
            QCoreApplication::installTranslator(&translator);
        const auto compare
            = [](const QString &text, const char *expected) { QCOMPARE(text, QString::fromUtf8(expected)); };
        compare(KTSpaceMagnitude().humanReadableName(), "KTSpaceMagnitude/Undefiniert");
        compare(KTSpaceMagnitude(KTSpaceMagnitude600cm2).humanReadableName(), "KTSpaceMagnitude/A4");
        compare(KTCoverType(KTCoverTypeLeather).toolTip(),
                "KTBinding/KTBinding/Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.\n"
                "KTBinding/Das Cover kann nur mit veredelten Elementen gestaltet werden.");
        compare(KTCoverType(KTCoverTypeGift).humanReadableName(), "KTBinding/");
        compare(KTCoverType().humanReadableName(), "KTBinding/unbekannter Bindungstyp");
        compare(KTPageBinding(KTPageBindingGlue).humanReadableName(), "KTPageBinding/klassische Buchbindung");
        compare(KTPaperType(KTPaperTypeFotopaperGlossy).humanReadableName(),
                "KTPaperType/Fotopapier Glänzend");
        compare(KTPaperType().humanReadableName(), "KTPaperType/unbekannter Papiertyp");
        compare(KTFotoPaperType(KTFotoPaperTypeGlossy).humanReadableName(), "KTFotoPaperType/Glänzend");
        compare(KTDlpType(KTDlpTypeBackground).visibleName(), "KTDlpType/Hintergründe");
        compare(KTOrientation(KTOrientationSquare).humanReadable(), "KTOrientation/quadratische ");
        compare(KTPageAlignment(KTPageAlignmentMiddle).describe(), "KTPageAlignment/auf dem Buchrücken");
        compare(KTArticleClass(KTArticleClassCard).toHumanReadable(),
                installed ? "QObject/Grußkarten" : "Grußkarten");
        QCOMPARE(KTCoverType::createFromHumanReadable(u"Leder"_s) == KTCoverTypeLeather, installed);
        QCOMPARE(KTCoverType::createFromHumanReadable(QString()) == KTCoverTypeGift, installed);
        QCOMPARE(KTSpaceMagnitude::createFromHumanReadable(u"A4"_s) == KTSpaceMagnitude600cm2, installed);
        QCOMPARE(KTPaperType::createFromHumanReadable(u"Fotopapier Gl\u00e4nzend"_s)
                     == KTPaperTypeFotopaperGlossy,
                 installed);
    }

    void readsAndWritesKeywords_data()
    {
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("actual");
        row<KTArticleClass>(" FotoBook", "1 | book | book");
        row<KTArticleClass>("poster", "16 | deko | deko");
        row<KTArticleClass>("express_fee", "262144 | expressFee | expressFee");
        row<KTArticleClass>("wall_holder_gallery_print", "2147483648 | wallholder_addOn | wallholder_addOn");
        row<KTArticleClass>("calendar", "6 | calendar | normal_calendar, agenda");
        row<KTArticleClass>("gift",
                            "16320 | gift | art_print, simple_gift, advent_calendar, playing_card, "
                            "doublepage, picture_box, nature_bundle, puzzle");
        row<KTArticleClass>("fee", "3932160 | fee | expressFee, transferFee, paymentFee, shipmentMethodFee");
        row<KTArticleClass>("none", "0 | none | ");
        row<KTArticleClass>("card,foto,bock", "32776 |  | card, foto");
        row<KTCoverType>("calendar_annual_simplex", "128 | CALENDAR_ONE_PAGE | CALENDAR_ONE_PAGE");
        row<KTCoverType>("hard,SOFT", "3 |  | HARDCOVER, SOFTCOVER");
        row<KTCoverType>("wire-o", "2147483648 | wire-o | wire-o");
        row<KTCoverType>("calendar_advent_photo", "0 |  | ");
        row<KTDlpType>("style_v2,mask,bock", "18 |  | style_v2, mask");
        row<KTMaterialType>("retro_print, notebook,bock", "17 |  | notebook, retro_print");
        row<KTFotoPaperType>("Matt", "2 | 2 | 2");
        row<KTOrientation>("landscape_large", "2 | landscape | landscape");
        row<KTOrientation>("all", "31 | all | portrait, landscape, square, portrait_slim, landscape_slim");
        row<KTOrientation>("square,landscape", "6 | portrait | landscape, square");
        row<KTOrientation>("bock", "0 | portrait | portrait");
        row<KTPageAlignment>("cover", "1 | left | left");
        row<KTPageAlignment>("right,bock", "3 |  | left, right");
        row<KTPageBinding>("Lay_Flat", "2 | layflat | layflat");
        row<KTPageBinding>("bock", "0 | unknown | ");
        row<KTPageType>("Content", "8 | normalpage | normalpage");
        row<KTPageType>("CalenderCoverFront", "64 | calendarcoverfront | calendarcoverfront");
        row<KTPageType>("normaladvdoorback", "1032 | normaladvdoorback | normalpage, ");
        row<KTPageType>("cover",
                        "984033 | cover | spine, fullcover, calendarcoverfront, calendarcoverback, "
                        "cromolinen, leather, slipcasespine, slipcaseemptyspine, "
                        "slipcasefrontcover, slipcasebackcover");
        row<KTPaperType>("glossy", "2 | indigo-glossy | indigo-glossy");
        row<KTPaperType>("bock", "1 | indigo | indigo");
        row<KTPaperType>("unbekanntes papier", "0 | unbekanntes Papier | ");
        row<KTProductArrangement>("photobook,Trivial", "17 |  | trivial, photobook");
        row<KTSpaceMagnitude>("a4, 50CM2", "129 | any | 50cm2, 600cm2");
        row<KTSpaceMagnitude>("normal",
                              "2812 | normal | 200cm2, 220cm2, 280cm2, 310cm2, 400cm2, 600cm2, "
                              "1200cm2, 2400cm2");
        row<KTSpaceMagnitude>("any",
                              "4095 | any | 50cm2, 150cm2, 200cm2, 220cm2, 280cm2, 310cm2, 400cm2, "
                              "600cm2, 900cm2, 1200cm2, 2000cm2, 2400cm2");
    }
    void readsAndWritesKeywords()
    {
        QFETCH(QString, actual);
        QTEST(actual, "expected");
    }

    void keepsEveryValue()
    {
        check<KTDistanceUnit>(5, 5);
        check<KTSpotColor>(5, 5);
        check<KTArticleClass>(54, 44);
        check<KTOrientation>(8, 6);
        check<KTPageAlignment>(11, 7);
        check<KTProductArrangement>(5, 5);
        check<KTSpaceMagnitude>(19, 14);
        check<KTCoverType>(39, 32);
        check<KTPageBinding>(7, 5);
        check<KTPageType>(31, 27);
        check<KTPaperType>(17, 9);
        check<KTFotoPaperType>(5, 3);
        check<KTMaterialType>(6, 6);
        check<KTDlpType>(9, 9);
    }
};

QTEST_GUILESS_MAIN(tst_KTClassifications)
#include "tst_KTClassifications.moc"
