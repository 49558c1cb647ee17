// Callers may let a literal become a text; where 0 could, too, the checks below would not see it otherwise.
#undef QT_NO_CAST_FROM_ASCII

#include <KTArticleClass.h>
#include <KTCoverType.h>
#include <KTDirectoryName.h>
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

#include <QCoreApplication>
#include <QMap>
#include <QSet>
#include <QVariant>

#include <cstddef>
#include <type_traits>
#include <utility>

namespace {

template <typename CLASS, typename = void>
constexpr bool READS_ZERO = false;
template <typename CLASS>
constexpr bool READS_ZERO<CLASS, std::void_t<decltype(CLASS(0))>> = true;
template <typename CLASS, typename = void>
constexpr bool SETS_ZERO = false;
template <typename CLASS>
constexpr bool SETS_ZERO<CLASS, std::void_t<decltype(std::declval<CLASS &>().setValue(0))>> = true;

/** What every classification class owes to its callers, whatever its keywords are. */
template <typename CLASS>
void check(int keywords, int values, qint64 unknown)
{
    using Enum = KTTest::Enum<CLASS>;
    static_assert(!READS_ZERO<CLASS> && !SETS_ZERO<CLASS> && !std::is_constructible_v<CLASS, std::nullptr_t>);
    static_assert(
        std::is_convertible_v<
            Enum,
            CLASS> && std::is_convertible_v<QString, CLASS> && std::is_constructible_v<CLASS, const char *>);
    constexpr auto three = static_cast<Enum>(3);
    constexpr auto six = static_cast<Enum>(6);
    constexpr Enum combined[] = {three | six, three & six, three ^ six, ~three};
    static_assert(combined[0] == 7 && combined[1] == 2 && combined[2] == 5 && combined[3] == -4);
    QVERIFY((CLASS(three) | six) == combined[0] && (CLASS(three) & six) == combined[1]);
    Enum changed = three;
    changed = (changed |= six) ^= three;
    QCOMPARE(qint64(changed &= six), 4);
    // In the log some write the keyword alone.
    const bool writesKeyword
        = std::is_same_v<CLASS, KTArticleClass> || std::is_same_v<CLASS, KTSpaceMagnitude>;
    QCOMPARE(KTTest::logged(CLASS(three)).contains(CLASS(three).debugText()), !writesKeyword);

    const CLASS none;
    QVERIFY(none.isNull());
    QCOMPARE(none.allKnownKeywords().size(), keywords);
    QCOMPARE(none.allKnownEnumValues().size(), values);
    QCOMPARE(qint64(CLASS(QString()).value()), unknown);
    QCOMPARE(qint64(CLASS(u"no keyword"_s).value()), unknown);

    // The text of an article class does not begin with the name of the class.
    const QString name = QString::fromLatin1(QVariant::fromValue(CLASS()).typeName())
                             .replace(u"KTArticleClass"_s, u"Articleclass"_s);
    QMap<CLASS, QString> map;
    QSet<CLASS> set;
    qint64 named = 0;
    for (const Enum value : none.allKnownEnumValues()) {
        const CLASS one(value);
        const QString keyword = one.encode();
        QVERIFY2(CLASS(keyword) == value, qPrintable(keyword));
        QVERIFY2(one.allPossibleKeywordsOneElement().contains(keyword.toLower()), qPrintable(keyword));
        QCOMPARE(KTTest::logged(one).remove(u'"'), u"%1: %2 "_s.arg(name, keyword));
        if (one.hasExactlyOneBit())
            named |= value;
        map.insert(one, keyword);
        set.insert(one);
    }
    const CLASS all(static_cast<Enum>(named));
    QCOMPARE(qint64(CLASS(all.encodeCSV()).value()), named);
    for (const QString &keyword : none.allKnownKeywords()) {
        const CLASS one(keyword.toUpper());
        QVERIFY2(set.contains(one), qPrintable(keyword));
        QCOMPARE(map.value(one), one.encode());
    }
    QCOMPARE(set.size(), values);
    QVERIFY(QVariant::fromValue(all).template value<CLASS>() == all);
}

} // namespace

class tst_KTClassifications : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The first test function, since the tables are built once per process.
    void translatesOnFirstUse()
    {
        KTTest::EchoTranslator translator;
        QCoreApplication::installTranslator(&translator);
        for (const bool installed : {true, false}) {
            if (!installed)
                QCoreApplication::removeTranslator(&translator);
            const QString texts = KTTest::text(
                KTCoverType(KTCoverTypeGift).humanReadableName(), KTCoverType().humanReadableName(),
                KTCoverType(KTCoverTypeLeather).toolTip(),
                KTSpaceMagnitude(KTSpaceMagnitudeXL).humanReadableName(),
                KTPageBinding(KTPageBindingStapled).humanReadableName(),
                KTDlpType(KTDlpTypeBackground).visibleName(), KTPaperType().humanReadableName(),
                KTFotoPaperType(KTFotoPaperTypeGlossy).humanReadableName(),
                KTOrientation(KTOrientationSquare).humanReadable(),
                KTPageAlignment(KTPageAlignmentMiddle).describe());
            const KTTest::Text expected(
                "KTBinding/|KTBinding/unbekannter Bindungstyp|"
                "KTBinding/KTBinding/Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.\n"
                "KTBinding/Das Cover kann nur mit veredelten Elementen gestaltet werden.|"
                "KTSpaceMagnitude/Undefiniert|KTPageBinding/Rückstichbindung|KTDlpType/Hintergründe|"
                "KTPaperType/unbekannter Papiertyp|KTFotoPaperType/Glänzend|KTOrientation/quadratische |"
                "KTPageAlignment/auf dem Buchrücken");
            QCOMPARE(texts, expected);
            QCOMPARE(KTArticleClass(KTArticleClassCard).toHumanReadable(),
                     installed ? u"QObject/Gru\u00dfkarten"_s : u"Gru\u00dfkarten"_s);
            QCOMPARE(KTCoverType::createFromHumanReadable(u"Leder"_s) == KTCoverTypeLeather, installed);
            QCOMPARE(KTCoverType::createFromHumanReadable(QString()) == KTCoverTypeGift, installed);
            QVERIFY(KTCoverType::createFromHumanReadable(u"leder"_s).isNull());
            QCOMPARE(KTSpaceMagnitude::createFromHumanReadable(u"A4"_s) == KTSpaceMagnitude600cm2, installed);
            QCOMPARE(KTPaperType::createFromHumanReadable(u"Fotopapier Gl\u00e4nzend"_s)
                         == KTPaperTypeFotopaperGlossy,
                     installed);
        }
    }

    void distanceUnit() { check<KTDistanceUnit>(5, 5, 0); }
    void spotColor() { check<KTSpotColor>(5, 5, 0); }
    void articleClass() { check<KTArticleClass>(54, 44, 0); }
    void orientation() { check<KTOrientation>(8, 6, 0); }
    void pageAlignment() { check<KTPageAlignment>(11, 7, 1); }
    void productArrangement() { check<KTProductArrangement>(5, 5, 0); }
    void spaceMagnitude() { check<KTSpaceMagnitude>(19, 14, 4095); }
    void coverType() { check<KTCoverType>(39, 32, 0); }
    void pageBinding() { check<KTPageBinding>(7, 5, 0); }
    void pageType() { check<KTPageType>(31, 27, 0); }
    void paperType() { check<KTPaperType>(17, 9, 1); }
    void fotoPaperType() { check<KTFotoPaperType>(5, 3, 0); }
    void materialType() { check<KTMaterialType>(6, 6, 0); }
    void dlpType() { check<KTDlpType>(9, 9, 0); }

    void coverTypesHaveToolTips()
    {
        // In the language of the first use.
        const auto toolTip = [](const QString &text) { return KTCoverType(text).toolTip(); };
        KTTest::checkTable(u"tooltips.tsv"_s, toolTip);
        QCOMPARE(KTCoverType::bindingToolTips()->map.size(), 9);
    }

    void unionsHaveNoName()
    {
        QCOMPARE(KTPaperType(u"premium,glossy"_s).humanReadableName(),
                 u"KTPaperType/unbekannter Papiertyp"_s);
        QVERIFY(KTFotoPaperType(u"1,2"_s).humanReadableName().isEmpty());
        const auto place = [](int bits) { return KTTest::withBits<KTPageAlignment>(bits).describe(); };
        QVERIFY(place(0).isNull() && place(3).isNull() && !place(2).isNull());
    }

    void coverTypesAreGrouped()
    {
        using KTTest::bitsWhere;
        QCOMPARE(bitsWhere<KTCoverType>([](auto coverType) { return coverType.isFullCover(); }), 19);
        QCOMPARE(bitsWhere<KTCoverType>([](auto coverType) { return coverType.isSimplex(); }), 1952);
        QVERIFY(KTCoverType(u"LEATHER,SOFT"_s).isFullCover());
    }

    void surfacesAreCodes()
    {
        const auto surfaces = [](const QString &text) {
            QString codes;
            for (const KTFotoPaperType &paper : KTFotoPaperType::createFromXTCI(text))
                codes.append(paper.encodeForProduction());
            return codes;
        };
        KTTest::check(surfaces,
                      {"0 -> 12", "1 -> 1", " 2 -> 2", "3 -> ", "-1 -> ", "0x1 -> ", "matt -> ", " -> "});
        QVERIFY(KTFotoPaperType().encodeForProduction().isEmpty());
        const auto isGlossy = [](const KTArticleClass &articleClass) {
            return KTFotoPaperType::defaultFor(articleClass) == KTFotoPaperTypeGlossy;
        };
        QCOMPARE(KTTest::bitsWhere<KTArticleClass>(isGlossy), 0x38000);
        QVERIFY(KTFotoPaperType::defaultFor(KTArticleClassPhoto).isNull());
        QVERIFY(KTFotoPaperType::defaultFor(u"foto,book"_s).isNull());
    }

    void contentHasDirectories()
    {
        const auto answers = [](int bits) {
            const auto dlpType = KTTest::withBits<KTDlpType>(bits);
            return KTTest::text(dlpType.dlpPath(false), dlpType.dlpPath(true), dlpType.queryValue());
        };
        KTTest::checkTable<int>(u"contents.tsv"_s, answers);
        QCOMPARE(KTDlpType(KTDlpTypeClipart).describe(), u"8 | clipart"_s);
        QVERIFY(KTDirectoryName(KTDirectoryNameStyles) == KTDirectoryNameStyles);
        QVERIFY(KTDirectoryName() == KTDirectoryName() && KTDirectoryName() != KTDirectoryNameCliparts);
        QVERIFY(KTDlpType(KTDlpTypeLayoutcollection).visibleName().isEmpty());
        QCOMPARE(KTTest::logged(KTDirectoryName(KTDirectoryNameStyles)), u"KTDirectoryName: \"styles\" "_s);
    }

    void alignmentNamesProductionFiles()
    {
        // The path for pages apart and together, after the bits and the path.
        const auto paths = [](const QString &input) {
            const auto alignment = KTTest::withBits<KTPageAlignment>(input.section(u' ', 0, 0).toInt());
            const QString path = input.section(u' ', 1);
            return KTTest::text(alignment.modifyProductionPath(path, true),
                                alignment.modifyProductionPath(path, false));
        };
        KTTest::check(
            paths,
            {"1 /out/a.pDf.d/b.PDF -> /out/a_left.pdf.d/b_left.pdf|/out/a_center.pdf.d/b_center.pdf",
             "2 b.pdf -> b_right.pdf|b_center.pdf", "3 b.pdf -> b_center.pdf|b_center.pdf",
             "32 b.pdf -> b_center.pdf|b_center.pdf", "1 bpdf -> bpdf|bpdf"});
    }

    void templatesNameUncommonBindings()
    {
        // Bits without a name are written too.
        KTTest::check<qint64>(KTTest::templateOf<KTPageBinding>,
                              {"0 -> <t/>", "1 -> <t/>", "2 -> <t/>", "12 -> <t/>",
                               "8 -> <t><pageBinding>spiral</pageBinding></t>",
                               "24 -> <t><pageBinding>spiral, </pageBinding></t>"});
    }
};

QTEST_GUILESS_MAIN(tst_KTClassifications)
#include "tst_KTClassifications.moc"
