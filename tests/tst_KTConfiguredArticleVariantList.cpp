#include <KTConfiguredArticleVariantList.h>

#include "KTTestSupport.h"

namespace {

KTConfiguredArticleVariantList offer(const QString &csv)
{
    return KTConfiguredArticleVariantList::createFromCSV(csv);
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
        "<form key='giftboxcolor;boxstyle' value='black;wood' key_name='%2' value_name='Box'/>"
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
        QVERIFY(list.isEmpty() && KTConfiguredArticleVariantList(QDomElement()).isEmpty());
        // Braces do not make options of what an option or its list is read from, and only valid ones are
        // kept.
        const KTConfiguredArticleVariant red(u"alcolor:red"_s);
        const QList<KTConfiguredArticleVariant> mixed = {KTConfiguredArticleVariant(), red};
        QCOMPARE(texts({red, KTConfiguredArticleVariant()}), u"alcolor:red"_s);
        QCOMPARE(texts(mixed) + texts(mixed.mid(0, 1)), u"alcolor:red"_s);
        QCOMPARE(texts(KTConfiguredArticleVariantList({u"alcolor"_s, u"red"_s})), u"alcolor:red"_s);
        const KTConfiguredArticleVariantList braced {
            KTTest::element(u"<a key='k' value='v'><forms><form key='alcolor' value='red'/></forms></a>"_s)};
        QCOMPARE(texts(braced), u"alcolor:red"_s);
        QVERIFY(KTConfiguredArticleVariantList(KTConfiguredArticleVariant()).isEmpty());
        QCOMPARE(texts(KTConfiguredArticleVariant(u"a:1"_s)), u"a:1"_s);
        QCOMPARE(KTTest::logged(offer(u"a:1,b:2"_s)),
                 u"KTConfiguredArticleVariantList: [ 0 :  \"KTConfiguredArticleVariant: key: a value: 1 \" "
                 "1 :  \"KTConfiguredArticleVariant: key: b value: 2 \"  ] "_s);
    }

    void readsCSVAndExpands()
    {
        // As read, and as in the order text.
        const auto expanded = [](const QString &csv) {
            return KTTest::text(texts(offer(csv)), offer(csv).joinForOrderTxt());
        };
        KTTest::check(expanded,
                      {"alcolor:black,,boxstyle,:x,a: -> alcolor:black|alcolor:black",
                       "c:1,gift;box:black;wood -> c:1 gift;box:black;wood|c:1;gift:black;box:wood",
                       "a;b:1, c: 2 -> a;b:1  c: 2| c: 2", ";:; -> ;:;|", "x:y,a%2:b -> x:y a%2:b|x:y;ab:b"});
    }

    void matchesChoice()
    {
        // Whether all is offered, by an empty list too; the variant, the visible names, the editor names.
        const auto matched = [](const QString &mcf) {
            const KTArticleVariants chosen = KTArticleVariants::createFromMCF(mcf);
            return KTTest::text(sample().contains(chosen), KTConfiguredArticleVariantList().contains(chosen),
                                sample().variant(chosen).toString(), sample().visibleNames(chosen).join(u'/'),
                                sample().editorNames(chosen).join(u'/'));
        };
        KTTest::checkTable(u"choices.tsv"_s, matched);
        // Neither an option offered twice nor one without a value stands for another one.
        KTConfiguredArticleVariantList list = offer(u"a:1,a:1"_s);
        list.append(KTConfiguredArticleVariant(u"aa"_s, QString()));
        QVERIFY(!list.contains(KTArticleVariants::createFromMCF(u"a:1,b:1"_s)));
    }

    void findsFirst()
    {
        QCOMPARE(sample().variantByKey(u"alcolor"_s).value(), u"red"_s);
        QCOMPARE(sample().variantByValue(u"blue"_s).key(), u"alcolor"_s);
        QCOMPARE(sample().notAccountableVariant().value(), u"blue"_s);
        const KTConfiguredArticleVariantList one = offer(u"a:1"_s);
        QVERIFY(!one.notAccountableVariant().isValid() && !one.variantByKey(u"1"_s).isValid());
        QVERIFY(sample().contains(KTConfiguredArticleVariant(u"alcolor:blue"_s)));
        QCOMPARE(KTTest::logged(sample().defaultVariants()), u"\"alcolor = blue\" "_s);
        QCOMPARE(offer(u"b:1,a:1,b:2,B:1"_s).keys().join(u' '), u"B a b"_s);
        QCOMPARE(texts(offer(u"b:1,a:1,b:2"_s).filter(u"b"_s)), u"b:1 b:2"_s);
    }

    void comparesLists()
    {
        // Whether the list contains the other, or one of it; what both share; what is adopted.
        const auto compared = [](const QString &both) {
            const KTConfiguredArticleVariantList list = offer(both.section(u'/', 0, 0));
            const KTConfiguredArticleVariantList other = offer(both.section(u'/', 1));
            KTConfiguredArticleVariantList common = list;
            common.intersect(other, false);
            KTConfiguredArticleVariantList adopted = list;
            adopted.intersect(other, true);
            return KTTest::text(list.contains(other), list.containsAtLeastOne(other), texts(common),
                                texts(adopted));
        };
        KTTest::check(compared,
                      {"/ -> +|+||", "/a:1 -> -|+||a:1", "a:1/ -> +|+||",
                       "b:2,a:1,b:2/c:3,b:2 -> -|+|b:2 b:2|b:2 b:2", "a:1,b:2/b:2 -> +|+|b:2|b:2",
                       "a:1/a:2 -> -|-||"});
    }

    void combinesBoxStyles()
    {
        const auto styles = [](const QString &csv) {
            QStringList texts;
            for (const KTArticleVariants &style : offer(csv).possibleBoxStyles())
                texts.append(style.value(u"boxstyle"_s, QString()) + style.value(u"coverphoto"_s, QString()));
            return texts.join(u' ');
        };
        KTTest::check(styles,
                      {"coverphoto:1,boxstyle:A,coverphoto:2,boxstyle:B,coverphoto:3 -> A1 A2 A3 B1 B2 B3",
                       "boxstyle:A,boxstyle:B -> A B", "coverphoto:1 -> "});
    }
};

QTEST_APPLESS_MAIN(tst_KTConfiguredArticleVariantList)
#include "tst_KTConfiguredArticleVariantList.moc"
