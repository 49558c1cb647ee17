#include <KTConfiguredArticleVariantList.h>

#include "KTTestSupport.h"

#include <QtTest>

namespace {

KTConfiguredArticleVariantList offer(const char *csv)
{
    return KTConfiguredArticleVariantList::createFromCSV(QString::fromUtf8(csv));
}

QString texts(const KTConfiguredArticleVariantList &variants)
{
    QStringList texts;
    for (const KTConfiguredArticleVariant &variant : variants)
        texts.append(variant.toString());
    return texts.join(QLatin1Char(' '));
}

/** Two cover colours, the second preselected; a compound option; an option that is not charged. */
KTConfiguredArticleVariantList sample()
{
    return KTTest::element(
        u"<article><other/><forms><form key='alcolor' value='red' key_name='Cover' value_name='Red' "
        "editor_name='e2'/>"
        "<note key='x' value='y'/><form key='alcolor' value='black' key_name='Cover' value_name='Black' "
        "editor_name='e1' preselected='1'/><form key='nothing' preselected='1'/>"
        "<form key='giftboxcolor;boxstyle' value='black;wood' key_name='%2' value_name='Box' "
        "preselected='1'/>"
        "<form key='alcolor' value='blue' preselected='true' not_accountable='true'/></forms>"
        "<forms><form key='late' value='1'/></forms></article>"_s);
}

} // namespace

class tst_KTConfiguredArticleVariantList : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsElement()
    {
        QCOMPARE(texts(sample()),
                 u"alcolor:red alcolor:black giftboxcolor;boxstyle:black;wood alcolor:blue"_s);
        KTConfiguredArticleVariantList list = sample();
        list.readVariants(KTTest::element(u"<article><forms/></article>"_s));
        QVERIFY(list.isEmpty());
        QVERIFY(KTConfiguredArticleVariantList(QDomElement()).isEmpty());
        QVERIFY(KTConfiguredArticleVariantList(KTConfiguredArticleVariant()).isEmpty());
    }

    void readsCSVAndExpands_data()
    {
        QTest::addColumn<QString>("csv");
        QTest::addColumn<QString>("read");
        QTest::addColumn<QString>("orderTxt");
        QTest::newRow("invalid parts")
            << u"alcolor:black,,boxstyle,:x,a:"_s << u"alcolor:black"_s << u"alcolor:black"_s;
        QTest::newRow("compound") << u"c:1,giftboxcolor;boxstyle:black;wood"_s
                                  << u"c:1 giftboxcolor;boxstyle:black;wood"_s
                                  << u"c:1;giftboxcolor:black;boxstyle:wood"_s;
        QTest::newRow("unequal parts") << u"a;b:1,c:2"_s << u"a;b:1 c:2"_s << u"c:2"_s;
        QTest::newRow("only separators") << u";:;"_s << u";:;"_s << QString();
        QTest::newRow("placeholder in key") << u"a%2:b"_s << u"a%2:b"_s << u"ab:b"_s;
        QTest::newRow("empty") << QString() << QString() << QString();
    }
    void readsCSVAndExpands()
    {
        QFETCH(QString, csv);
        const KTConfiguredArticleVariantList list = KTConfiguredArticleVariantList::createFromCSV(csv);
        QTEST(texts(list), "read");
        QTEST(list.joinForOrderTxt(), "orderTxt");
        for (const KTConfiguredArticleVariant &variant : list)
            QCOMPARE(texts(KTConfiguredArticleVariantList::createFromReduced(variant)),
                     texts(KTConfiguredArticleVariantList::createForProduction(variant)));
    }

    void matchesChoice_data()
    {
        QTest::addColumn<QString>("mcf");
        QTest::addColumn<bool>("contained");
        QTest::addColumn<QString>("variant");
        QTest::addColumn<QString>("visibleNames");
        QTest::addColumn<QString>("editorNames");
        QTest::newRow("nothing") << QString() << true << QString() << QString() << QString();
        QTest::newRow("offered") << u"alcolor:black"_s << true << u"alcolor:black"_s << u"Cover: Black"_s
                                 << u"e1"_s;
        QTest::newRow("two, one compound") << u"alcolor:red,giftboxcolor;boxstyle:black;wood"_s << true
                                           << u"alcolor:red"_s << u"%2: Box/Cover: Red"_s << u"/e2"_s;
        QTest::newRow("value not offered")
            << u"alcolor:green"_s << false << QString() << QString() << QString();
        QTest::newRow("key not offered")
            << u"alcolor:red,x:y"_s << false << u"alcolor:red"_s << u"Cover: Red"_s << u"e2"_s;
    }
    void matchesChoice()
    {
        QFETCH(QString, mcf);
        const KTArticleVariants chosen = KTArticleVariants::createFromMCF(mcf);
        QTEST(sample().contains(chosen), "contained");
        QTEST(sample().variant(chosen).toString(), "variant");
        QTEST(sample().visibleNames(chosen).join(QLatin1Char('/')), "visibleNames");
        QTEST(sample().editorNames(chosen).join(QLatin1Char('/')), "editorNames");
        QCOMPARE(KTConfiguredArticleVariantList().contains(chosen), !chosen.isValid());
    }

    void findsFirst()
    {
        QCOMPARE(sample().variantByKey(u"alcolor"_s).value(), u"red"_s);
        QCOMPARE(sample().variantByValue(u"blue"_s).key(), u"alcolor"_s);
        QCOMPARE(sample().notAccountableVariant().value(), u"blue"_s);
        QVERIFY(!offer("a:1").notAccountableVariant().isValid()
                && !offer("a:1").variantByKey(u"1"_s).isValid());
        QCOMPARE(sample().defaultVariants().value(KTArticleVariants::coverColorKeyName(), QString()),
                 u"blue"_s);
        QCOMPARE(offer("b:1,a:1,b:2,B:1").keys().join(QLatin1Char(' ')), u"B a b"_s);
        QCOMPARE(texts(offer("b:1,a:1,b:2").filter(u"b"_s)), u"b:1 b:2"_s);
    }

    void comparesLists_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("contains");
        QTest::addColumn<bool>("containsAtLeastOne");
        QTest::addColumn<QString>("common");
        QTest::addColumn<QString>("adopted");
        QTest::newRow("both empty") << QString() << QString() << true << true << QString() << QString();
        QTest::newRow("first empty") << QString() << u"a:1"_s << false << true << QString() << u"a:1"_s;
        QTest::newRow("second empty") << u"a:1"_s << QString() << true << true << QString() << QString();
        QTest::newRow("overlap") << u"b:2,a:1,b:2"_s << u"c:3,b:2"_s << false << true << u"b:2 b:2"_s
                                 << u"b:2 b:2"_s;
        QTest::newRow("subset") << u"a:1,b:2"_s << u"b:2"_s << true << true << u"b:2"_s << u"b:2"_s;
        QTest::newRow("disjoint") << u"a:1"_s << u"a:2"_s << false << false << QString() << QString();
    }
    void comparesLists()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        const KTConfiguredArticleVariantList list = KTConfiguredArticleVariantList::createFromCSV(first);
        const KTConfiguredArticleVariantList other = KTConfiguredArticleVariantList::createFromCSV(second);
        QTEST(list.contains(other), "contains");
        QTEST(list.containsAtLeastOne(other), "containsAtLeastOne");
        KTConfiguredArticleVariantList common = list;
        common.intersect(other, false);
        QTEST(texts(common), "common");
        KTConfiguredArticleVariantList adopted = list;
        adopted.intersect(other, true);
        QTEST(texts(adopted), "adopted");
    }

    void combinesBoxStyles()
    {
        const auto styles = [](const char *csv) {
            QStringList texts;
            for (const KTArticleVariants &style : offer(csv).possibleBoxStyles())
                texts.append(style.value(u"boxstyle"_s, QString()) + style.value(u"coverphoto"_s, QString()));
            return texts.join(QLatin1Char(' '));
        };
        QCOMPARE(styles("coverphoto:1,boxstyle:A,coverphoto:2,boxstyle:B,coverphoto:3"),
                 u"A1 A2 A3 B1 B2 B3"_s);
        QCOMPARE(styles("boxstyle:A,boxstyle:B"), u"A B"_s);
        QCOMPARE(styles("coverphoto:1"), QString());
    }

    void dumps()
    {
        QString debug;
        QDebug(&debug) << offer("a:1,b:2");
        QCOMPARE(debug.trimmed(),
                 u"KTConfiguredArticleVariantList: [ 0 :  \"KTConfiguredArticleVariant: key: a value: 1 \" "
                 "1 :  \"KTConfiguredArticleVariant: key: b value: 2 \"  ]"_s);
    }
};

QTEST_APPLESS_MAIN(tst_KTConfiguredArticleVariantList)
#include "tst_KTConfiguredArticleVariantList.moc"
