#include <KTArticleVariantsList.h>

#include "KTTestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

namespace {

/** The options of a text like "alcolor=black/boxstyle=". */
KTArticleVariants variants(const QString &text)
{
    KTArticleVariants variants;
    for (const QString &pair : text.split(QLatin1Char('/'), Qt::SkipEmptyParts))
        variants.insert(pair.section(QLatin1Char('='), 0, 0), pair.section(QLatin1Char('='), 1));
    return variants;
}

/** The reverse of variants(). */
QString pairs(const KTArticleVariants &variants)
{
    QStringList pairs;
    for (const QString &key : variants.keys())
        pairs.append(key + QLatin1Char('=') + variants.value(key, u"missing"_s));
    return pairs.join(QLatin1Char('/'));
}

/** The same text with its parts, whose order is not stated, in order. */
QString sorted(const QString &text, QChar separator)
{
    QStringList parts = text.split(separator);
    parts.sort();
    return parts.join(separator);
}

} // namespace

class tst_KTArticleVariants : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("keywordString");
        QTest::addColumn<QString>("mcf");
        QTest::newRow("colon") << u"alcolor:black"_s << u"alcolor=black"_s << u"alcolor=black"_s;
        QTest::newRow("bar") << u"alcolor|black"_s << u"alcolor=black"_s << u"alcolor=black"_s;
        QTest::newRow("plus") << u"alcolor+black"_s << u"alcolor=black"_s << u"alcolor=black"_s;
        QTest::newRow("no separator") << u"alcolor"_s << QString() << QString();
        QTest::newRow("two separators") << u"a:b+c"_s << QString() << QString();
        QTest::newRow("empty piece") << u"a::b"_s << QString() << QString();
        QTest::newRow("empty") << QString() << QString() << QString();
        QTest::newRow("empty key") << u":black"_s << u"=black"_s << u"=black"_s;
        QTest::newRow("empty parts") << u"a:1,,oops,"_s << u"a=1,,oops,"_s << u"a=1"_s;
        QTest::newRow("later wins") << u"a:white,a|black"_s << QString() << u"a=black"_s;
    }
    void readsText()
    {
        QFETCH(QString, text);
        QTEST(pairs(KTArticleVariants(text)), "keywordString");
        QTEST(pairs(KTArticleVariants::createFromMCF(text)), "mcf");
    }

    void readsJson()
    {
        const QByteArray json
            = R"(["form_parameter-alcolor:white", "boxform_parameter-style:wood", "oops", "a:b:c", 17,
                                    "a|b", "alcolor:black", "FORM_PARAMETER-x:1"])";
        QCOMPARE(pairs(KTArticleVariants(QJsonDocument::fromJson(json).array())),
                 u"FORM_PARAMETER-x=1/alcolor=black/boxstyle=wood"_s);
    }

    void readsElement()
    {
        QCOMPARE(pairs(KTArticleVariants(KTTest::element(u"<f key='k' value='v'/>"_s))), u"k=v"_s);
        QCOMPARE(pairs(KTArticleVariants(KTTest::element(u"<f/>"_s))), u"="_s);
        QVERIFY(KTArticleVariants(QDomElement()).isValid());
        QVERIFY(!KTArticleVariants(u"k"_s, QString()).isValid());
        QVERIFY(!KTArticleVariants(QString(), u"v"_s).isValid());
    }

    void writes_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("mcf");
        QTest::addColumn<QString>("orderTxt");
        QTest::addColumn<QString>("xtci");
        QTest::newRow("plain") << u"k=black"_s << u"k:black"_s << u"k:black"_s << u"k=black"_s;
        QTest::newRow("compound and plain")
            << u"c;a=1;2/b=3"_s << u"b:3,c;a:1;2"_s << u"a:2;b:3;c:1"_s << u"a=2/b=3/c=1"_s;
        QTest::newRow("unequal parts") << u"a;b=1"_s << u"a;b:1"_s << QString() << QString();
        QTest::newRow("empty part dropped")
            << u"a;;b=;1;2"_s << u"a;;b:;1;2"_s << u"a:1;b:2"_s << u"a=1/b=2"_s;
        QTest::newRow("empty value") << u"alcolor="_s << QString() << QString() << QString();
        QTest::newRow("empty key") << u"=black"_s << QString() << QString() << QString();
        QTest::newRow("only separators") << u";=;;"_s << u";:;;"_s << QString() << QString();
        QTest::newRow("placeholder in key") << u"a%2=b"_s << u"ab:b"_s << u"ab:b"_s << u"a%2=b"_s;
        const QString key = u"%2"_s.repeated(65536);
        const QString value(65536, QLatin1Char('x'));
        const QString unfilled = key + QLatin1Char(':') + value;
        QTest::newRow("explosive key")
            << key + u"="_s + value << unfilled << unfilled << key + u"="_s + value;
        QTest::newRow("nothing") << QString() << QString() << QString() << QString();
    }
    void writes()
    {
        QFETCH(QString, input);
        const KTArticleVariants written = variants(input);
        QTEST(sorted(written.toMCF(), QLatin1Char(',')), "mcf");
        QTEST(sorted(written.toOrderTxt(), QLatin1Char(';')), "orderTxt");
        QTEST(pairs(written.toXTCI()), "xtci");
    }

    void survivesMCF()
    {
        const KTArticleVariants written
            = variants(u"giftboxcolor;boxstyle=black;wood/\u00e4 \u4e2d==\"%\n"_s);
        QCOMPARE(KTArticleVariants::createFromMCF(written.toMCF()), written);
        // A comma ends the value; what follows it is no pair.
        QCOMPARE(pairs(KTArticleVariants::createFromMCF(variants(u"k=a,b"_s).toMCF())), u"k=a"_s);
    }

    void containsOptions_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("contains");
        QTest::addColumn<bool>("containsAtLeastOne");
        QTest::newRow("both empty") << QString() << QString() << true << true;
        QTest::newRow("second empty") << u"a:1"_s << QString() << true << true;
        QTest::newRow("first empty") << QString() << u"a:1"_s << false << true;
        QTest::newRow("equal") << u"a:1"_s << u"a:1"_s << true << true;
        QTest::newRow("other value") << u"a:1"_s << u"a:2"_s << false << false;
        QTest::newRow("one of two") << u"a:1"_s << u"a:1,b:2"_s << false << true;
        QTest::newRow("empty value of a missing key") << u"a:1"_s << u"a:1,b:"_s << true << true;
        QTest::newRow("own empty value") << u"b:"_s << u"a:1"_s << false << true;
    }
    void containsOptions()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        const KTArticleVariants variants = KTArticleVariants::createFromMCF(first);
        const KTArticleVariants other = KTArticleVariants::createFromMCF(second);
        QTEST(variants.contains(other), "contains");
        QTEST(variants.containsAtLeastOne(other), "containsAtLeastOne");
        KTArticleVariantsList list;
        QVERIFY(!list.containsBoxStyle(other));
        list.append(variants);
        QTEST(list.containsBoxStyle(other), "contains");
    }

    void ordersKeysByCodeUnit()
    {
        const KTArticleVariants variants = KTArticleVariants::createFromMCF(u"b:1,B:2,a:3,\u00e4:4"_s);
        QCOMPARE(variants.keys().join(QString()), u"Bab\u00e4"_s);
        QString debug;
        QDebug(&debug).nospace() << variants << KTArticleVariants();
        QCOMPARE(debug, u"\"B = 2; a = 3; b = 1; \u00e4 = 4\"\"\""_s);
    }

    void sharesUntilChanged()
    {
        KTArticleVariants variants = KTArticleVariants::blackCFBGiftBox();
        const KTArticleVariants copy = variants;
        QCOMPARE(variants.hash(), copy.hash());
        variants.insert(KTArticleVariants(KTArticleVariants::coverColorKeyName(), u"red"_s));
        variants.insert(KTArticleVariants::cfbGiftBoxColorKeyName(), u"white"_s);
        QVERIFY(variants != copy && variants.hasCoverColor() && !variants.hasFlyLeafColor()
                && !copy.hasCoverColor());
        QCOMPARE(copy.toMCF(), u"giftboxcolor:black"_s);
        const QHash<QString, QString> plain {
            {u"giftboxcolor"_s, u"black"_s}
        };
        QCOMPARE(copy.hash(), qHash(plain, 0));
    }
};

QTEST_APPLESS_MAIN(tst_KTArticleVariants)
#include "tst_KTArticleVariants.moc"
