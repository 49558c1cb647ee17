#include <KTArticleClass.h>
#include <KTCoverType.h>
#include <KTDistanceUnit.h>
#include <KTOrientation.h>
#include <KTPageAlignment.h>
#include <KTPageBinding.h>
#include <KTPageType.h>
#include <KTProductArrangement.h>
#include <KTSpaceMagnitude.h>
#include <KTSpotColor.h>

#include "KTClassificationTest.h"

#include <QMap>
#include <QSet>
#include <QVariant>
#include <QtTest>

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
    QCOMPARE(qint64(CLASS(QStringLiteral("no keyword")).value()), unknown);

    QMap<CLASS, QString> map;
    QSet<CLASS> set;
    qint64 named = 0;
    for (const Enum value : none.allKnownEnumValues()) {
        const CLASS one(value);
        const QString keyword = one.encode();
        const QByteArray name = keyword.toUtf8();
        QVERIFY2(CLASS(keyword) == value, name.constData());
        QVERIFY2(one.allPossibleKeywordsOneElement().contains(keyword.toLower()), name.constData());
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
};

QTEST_APPLESS_MAIN(tst_KTClassifications)
#include "tst_KTClassifications.moc"
