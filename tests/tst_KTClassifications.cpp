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

#include <QCoreApplication>
#include <QMap>
#include <QSet>
#include <QTranslator>
#include <QVariant>

namespace {

/** What every classification class owes to its callers, whatever its keywords are. */
template <typename CLASS>
void check(int keywords, int values, qint64 unknown)
{
    using Enum = KTTest::Enum<CLASS>;
    const CLASS none;
    QVERIFY(none.isNull());
    QCOMPARE(none.allKnownKeywords().size(), keywords);
    QCOMPARE(none.allKnownEnumValues().size(), values);
    QCOMPARE(qint64(CLASS(QString()).value()), unknown);
    QCOMPARE(qint64(CLASS(u"no keyword"_s).value()), unknown);

    QMap<CLASS, QString> map;
    QSet<CLASS> set;
    qint64 named = 0;
    for (const Enum value : none.allKnownEnumValues()) {
        const CLASS one(value);
        const QString keyword = one.encode();
        QVERIFY2(CLASS(keyword) == value, qPrintable(keyword));
        QVERIFY2(one.allPossibleKeywordsOneElement().contains(keyword.toLower()), qPrintable(keyword));
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
        const KTTest::Rows<bool> row;
        row("first use", true);
        row("language changed", false);
    }
    void translatesOnFirstUse()
    {
        const auto [installed] = KTTest::row<bool>();
        KTEchoTranslator translator;
        if (installed)
            QCoreApplication::installTranslator(&translator);
        QStringList texts {KTCoverType(KTCoverTypeGift).humanReadableName(),
                           KTCoverType().humanReadableName()};
        texts << KTSpaceMagnitude(KTSpaceMagnitudeXL).humanReadableName()
              << KTSpaceMagnitude(KTSpaceMagnitude600cm2).humanReadableName();
        texts << KTPageBinding(KTPageBindingStapled).humanReadableName()
              << KTDlpType(KTDlpTypeBackground).visibleName();
        texts << KTPaperType(KTPaperTypeFotopaperGlossy).humanReadableName()
              << KTPaperType().humanReadableName();
        texts << KTFotoPaperType(KTFotoPaperTypeGlossy).humanReadableName()
              << KTOrientation(KTOrientationSquare).humanReadable();
        texts << KTPageAlignment(KTPageAlignmentMiddle).describe()
              << KTCoverType(KTCoverTypeLeather).toolTip();
        const KTTest::Text expected(
            "KTBinding/|KTBinding/unbekannter Bindungstyp|KTSpaceMagnitude/Undefiniert|KTSpaceMagnitude/A4|"
            "KTPageBinding/Rückstichbindung|KTDlpType/Hintergründe|KTPaperType/Fotopapier "
            "Glänzend|KTPaperType/unbekannter Papiertyp|"
            "KTFotoPaperType/Glänzend|KTOrientation/quadratische |KTPageAlignment/auf dem Buchrücken|"
            "KTBinding/KTBinding/Der hochwertige Leder-Einband ist in verschiedenen Farben erhältlich.\n"
            "KTBinding/Das Cover kann nur mit veredelten Elementen gestaltet werden.");
        QCOMPARE(texts.join(u'|'), expected);
        QVERIFY(KTOrientation().humanReadable().isNull());

        QCOMPARE(KTArticleClass(KTArticleClassCard).toHumanReadable(),
                 installed ? u"QObject/Gru\u00dfkarten"_s : u"Gru\u00dfkarten"_s);
        QCOMPARE(KTCoverType::createFromHumanReadable(u"Leder"_s) == KTCoverTypeLeather, installed);
        QCOMPARE(KTCoverType::createFromHumanReadable(QString()) == KTCoverTypeGift, installed);
        QCOMPARE(KTSpaceMagnitude::createFromHumanReadable(u"A4"_s) == KTSpaceMagnitude600cm2, installed);
        QCOMPARE(KTPaperType::createFromHumanReadable(u"Fotopapier Gl\u00e4nzend"_s)
                     == KTPaperTypeFotopaperGlossy,
                 installed);
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
};

QTEST_GUILESS_MAIN(tst_KTClassifications)
#include "tst_KTClassifications.moc"
