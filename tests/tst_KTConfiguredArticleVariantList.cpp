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
    return KTTest::element(QStringLiteral(
        "<article><other/><forms><form key='alcolor' value='red' key_name='Cover' value_name='Red' "
        "editor_name='e2'/>"
        "<note key='x' value='y'/><form key='alcolor' value='black' key_name='Cover' value_name='Black' "
        "editor_name='e1' preselected='1'/><form key='nothing' preselected='1'/>"
        "<form key='giftboxcolor;boxstyle' value='black;wood' key_name='%2' value_name='Box' "
        "preselected='1'/>"
        "<form key='alcolor' value='blue' preselected='true' not_accountable='true'/></forms>"
        "<forms><form key='late' value='1'/></forms></article>"));
}

} // namespace

class tst_KTConfiguredArticleVariantList : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsElement()
    {
        QCOMPARE(texts(sample()),
                 QStringLiteral("alcolor:red alcolor:black giftboxcolor;boxstyle:black;wood alcolor:blue"));
        KTConfiguredArticleVariantList list = sample();
        list.readVariants(KTTest::element(QStringLiteral("<article><forms/></article>")));
        QVERIFY(list.isEmpty());
        QVERIFY(KTConfiguredArticleVariantList(QDomElement()).isEmpty());
        QVERIFY(KTConfiguredArticleVariantList(KTConfiguredArticleVariant()).isEmpty());
    }

    void readsCSVAndExpands_data()
    {
        QTest::addColumn<QString>("csv");
        QTest::addColumn<QString>("read");
        QTest::addColumn<QString>("orderTxt");
        QTest::newRow("invalid parts") << QStringLiteral("alcolor:black,,boxstyle,:x,a:")
                                       << QStringLiteral("alcolor:black") << QStringLiteral("alcolor:black");
        QTest::newRow("compound") << QStringLiteral("c:1,giftboxcolor;boxstyle:black;wood")
                                  << QStringLiteral("c:1 giftboxcolor;boxstyle:black;wood")
                                  << QStringLiteral("c:1;giftboxcolor:black;boxstyle:wood");
        QTest::newRow("unequal parts")
            << QStringLiteral("a;b:1,c:2") << QStringLiteral("a;b:1 c:2") << QStringLiteral("c:2");
        QTest::newRow("only separators") << QStringLiteral(";:;") << QStringLiteral(";:;") << QString();
        QTest::newRow("placeholder in key")
            << QStringLiteral("a%2:b") << QStringLiteral("a%2:b") << QStringLiteral("ab:b");
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
        QTest::newRow("offered") << QStringLiteral("alcolor:black") << true << QStringLiteral("alcolor:black")
                                 << QStringLiteral("Cover: Black") << QStringLiteral("e1");
        QTest::newRow("two, one compound")
            << QStringLiteral("alcolor:red,giftboxcolor;boxstyle:black;wood") << true
            << QStringLiteral("alcolor:red") << QStringLiteral("%2: Box/Cover: Red") << QStringLiteral("/e2");
        QTest::newRow("value not offered")
            << QStringLiteral("alcolor:green") << false << QString() << QString() << QString();
        QTest::newRow("key not offered")
            << QStringLiteral("alcolor:red,x:y") << false << QStringLiteral("alcolor:red")
            << QStringLiteral("Cover: Red") << QStringLiteral("e2");
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
        QCOMPARE(sample().variantByKey(QStringLiteral("alcolor")).value(), QStringLiteral("red"));
        QCOMPARE(sample().variantByValue(QStringLiteral("blue")).key(), QStringLiteral("alcolor"));
        QCOMPARE(sample().notAccountableVariant().value(), QStringLiteral("blue"));
        QVERIFY(!offer("a:1").notAccountableVariant().isValid()
                && !offer("a:1").variantByKey(QStringLiteral("1")).isValid());
        QCOMPARE(sample().defaultVariants().value(KTArticleVariants::coverColorKeyName(), QString()),
                 QStringLiteral("blue"));
        QCOMPARE(offer("b:1,a:1,b:2,B:1").keys().join(QLatin1Char(' ')), QStringLiteral("B a b"));
        QCOMPARE(texts(offer("b:1,a:1,b:2").filter(QStringLiteral("b"))), QStringLiteral("b:1 b:2"));
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
        QTest::newRow("first empty") << QString() << QStringLiteral("a:1") << false << true << QString()
                                     << QStringLiteral("a:1");
        QTest::newRow("second empty")
            << QStringLiteral("a:1") << QString() << true << true << QString() << QString();
        QTest::newRow("overlap") << QStringLiteral("b:2,a:1,b:2") << QStringLiteral("c:3,b:2") << false
                                 << true << QStringLiteral("b:2 b:2") << QStringLiteral("b:2 b:2");
        QTest::newRow("subset") << QStringLiteral("a:1,b:2") << QStringLiteral("b:2") << true << true
                                << QStringLiteral("b:2") << QStringLiteral("b:2");
        QTest::newRow("disjoint") << QStringLiteral("a:1") << QStringLiteral("a:2") << false << false
                                  << QString() << QString();
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
                texts.append(style.value(QStringLiteral("boxstyle"), QString())
                             + style.value(QStringLiteral("coverphoto"), QString()));
            return texts.join(QLatin1Char(' '));
        };
        QCOMPARE(styles("coverphoto:1,boxstyle:A,coverphoto:2,boxstyle:B,coverphoto:3"),
                 QStringLiteral("A1 A2 A3 B1 B2 B3"));
        QCOMPARE(styles("boxstyle:A,boxstyle:B"), QStringLiteral("A B"));
        QCOMPARE(styles("coverphoto:1"), QString());
    }

    void dumps()
    {
        QString debug;
        QDebug(&debug) << offer("a:1,b:2");
        QCOMPARE(
            debug.trimmed(),
            QStringLiteral(
                "KTConfiguredArticleVariantList: [ 0 :  \"KTConfiguredArticleVariant: key: a value: 1 \" "
                "1 :  \"KTConfiguredArticleVariant: key: b value: 2 \"  ]"));
    }
};

QTEST_APPLESS_MAIN(tst_KTConfiguredArticleVariantList)
#include "tst_KTConfiguredArticleVariantList.moc"
