#include <KTArticleVariantsList.h>

#include "KTTestSupport.h"

#include <QJsonArray>
#include <QtTest>

using Pairs = QMap<QString, QString>;
Q_DECLARE_METATYPE(Pairs)

namespace {

Pairs pairs(const KTArticleVariants &variants)
{
    Pairs map;
    for (const QString &key : variants.keys())
        map.insert(key, variants.value(key, QStringLiteral("missing")));
    return map;
}

KTArticleVariants variants(const Pairs &pairs)
{
    KTArticleVariants variants;
    for (auto pair = pairs.begin(); pair != pairs.end(); ++pair)
        variants.insert(pair.key(), pair.value());
    return variants;
}

/** The pairs of a text whose order is not stated. */
QStringList sorted(const QString &text, QChar separator)
{
    QStringList parts = text.split(separator);
    parts.sort();
    return parts;
}

} // namespace

class tst_KTArticleVariants : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Pairs>("keywordString");
        QTest::addColumn<Pairs>("mcf");
        const Pairs none;
        const Pairs black {
            {QStringLiteral("alcolor"), QStringLiteral("black")}
        };
        QTest::newRow("colon") << QStringLiteral("alcolor:black") << black << black;
        QTest::newRow("bar") << QStringLiteral("alcolor|black") << black << black;
        QTest::newRow("plus") << QStringLiteral("alcolor+black") << black << black;
        QTest::newRow("no separator") << QStringLiteral("alcolor") << none << none;
        QTest::newRow("two separators") << QStringLiteral("a:b+c") << none << none;
        QTest::newRow("empty piece") << QStringLiteral("a::b") << none << none;
        QTest::newRow("empty") << QString() << none << none;
        const Pairs keyless {
            {QString(), QStringLiteral("black")}
        };
        QTest::newRow("empty key") << QStringLiteral(":black") << keyless << keyless;
        QTest::newRow("empty parts") << QStringLiteral("alcolor:black,,oops,") << Pairs{{QStringLiteral("alcolor"), QStringLiteral("black,,oops,")}} << black;
        QTest::newRow("later wins") << QStringLiteral("alcolor:white,alcolor|black") << none << black;
    }
    void readsText()
    {
        QFETCH(QString, text);
        QTEST(pairs(KTArticleVariants(text)), "keywordString");
        QTEST(pairs(KTArticleVariants::createFromMCF(text)), "mcf");
    }

    void readsJson()
    {
        const QJsonArray array {QStringLiteral("form_parameter-alcolor:white"),
                                QStringLiteral("boxform_parameter-style:wood"),
                                QStringLiteral("oops"),
                                QStringLiteral("a:b:c"),
                                17,
                                QStringLiteral("a|b"),
                                QStringLiteral("alcolor:black"),
                                QStringLiteral("FORM_PARAMETER-x:1")};
        const Pairs expected {
            {QStringLiteral("alcolor"),          QStringLiteral("black")},
            {QStringLiteral("boxstyle"),         QStringLiteral("wood") },
            {QStringLiteral("FORM_PARAMETER-x"), QStringLiteral("1")    }
        };
        QCOMPARE(pairs(KTArticleVariants(array)), expected);
    }

    void readsElement()
    {
        const Pairs full {
            {QStringLiteral("k"), QStringLiteral("v")}
        };
        QCOMPARE(pairs(KTArticleVariants(KTTest::element(QStringLiteral("<f key='k' value='v'/>")))), full);
        const Pairs empty {
            {QString(), QString()}
        };
        QCOMPARE(pairs(KTArticleVariants(KTTest::element(QStringLiteral("<f/>")))), empty);
        QVERIFY(KTArticleVariants(QDomElement()).isValid());
        QVERIFY(!KTArticleVariants(QStringLiteral("k"), QString()).isValid());
        QVERIFY(!KTArticleVariants(QString(), QStringLiteral("v")).isValid());
    }

    void writes_data()
    {
        QTest::addColumn<Pairs>("input");
        QTest::addColumn<QStringList>("mcf");
        QTest::addColumn<QStringList>("orderTxt");
        QTest::addColumn<Pairs>("xtci");
        const auto list = [](std::initializer_list<const char *> texts) {
            QStringList result;
            for (const char *text : texts)
                result.append(QString::fromUtf8(text));
            return result;
        };
        const auto map = [](std::initializer_list<std::pair<const char *, const char *>> texts) {
            Pairs result;
            for (const auto &pair : texts)
                result.insert(QString::fromUtf8(pair.first), QString::fromUtf8(pair.second));
            return result;
        };
        QTest::newRow("plain") << map({
            {"alcolor", "black"}
        })
                               << list({"alcolor:black"}) << list({"alcolor:black"})
                               << map({{"alcolor", "black"}});
        QTest::newRow("compound and plain")
            << map({
                   {"giftboxcolor;boxstyle", "black;wood"},
                   {"a",                     "1"         }
        })
            << list({"a:1", "giftboxcolor;boxstyle:black;wood"})
            << list({"a:1", "boxstyle:wood", "giftboxcolor:black"})
            << map({{"a", "1"}, {"boxstyle", "wood"}, {"giftboxcolor", "black"}});
        QTest::newRow("unequal parts") << map({
            {"a;b", "1"}
        }) << list({"a;b:1"})
                                       << list({""}) << map({});
        QTest::newRow("empty part dropped") << map({
            {"a;;b", ";1;2"}
        }) << list({"a;;b:;1;2"})
                                            << list({"a:1", "b:2"}) << map({{"a", "1"}, {"b", "2"}});
        QTest::newRow("empty value") << map({
            {"alcolor", ""}
        }) << list({""})
                                     << list({""}) << map({});
        QTest::newRow("empty key") << map({
            {"", "black"}
        }) << list({""})
                                   << list({""}) << map({});
        QTest::newRow("only separators") << map({
            {";", ";;"}
        }) << list({";:;;"})
                                         << list({""}) << map({});
        QTest::newRow("placeholder in key") << map({
            {"a%2", "b"}
        }) << list({"ab:b"}) << list({"ab:b"})
                                            << map({{"a%2", "b"}});
        QTest::newRow("nothing") << map({}) << list({""}) << list({""}) << map({});
    }
    void writes()
    {
        QFETCH(Pairs, input);
        const KTArticleVariants written = variants(input);
        QTEST(sorted(written.toMCF(), QLatin1Char(',')), "mcf");
        QTEST(sorted(written.toOrderTxt(), QLatin1Char(';')), "orderTxt");
        QTEST(pairs(written.toXTCI()), "xtci");
    }

    void survivesMCF()
    {
        const KTArticleVariants written = variants({
            {QStringLiteral("giftboxcolor;boxstyle"), QStringLiteral("black;wood")},
            {QStringLiteral("\u00e4 \u4e2d"),         QStringLiteral("=\"%\n")    }
        });
        QCOMPARE(KTArticleVariants::createFromMCF(written.toMCF()), written);
        // A comma ends the value; what follows it is no pair.
        QCOMPARE(KTArticleVariants::createFromMCF(
                     KTArticleVariants(QStringLiteral("k"), QStringLiteral("a,b")).toMCF()),
                 KTArticleVariants(QStringLiteral("k"), QStringLiteral("a")));
    }

    void containsOptions_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("contains");
        QTest::addColumn<bool>("containsAtLeastOne");
        QTest::newRow("both empty") << QString() << QString() << true << true;
        QTest::newRow("second empty") << QStringLiteral("a:1") << QString() << true << true;
        QTest::newRow("first empty") << QString() << QStringLiteral("a:1") << false << true;
        QTest::newRow("equal") << QStringLiteral("a:1") << QStringLiteral("a:1") << true << true;
        QTest::newRow("other value") << QStringLiteral("a:1") << QStringLiteral("a:2") << false << false;
        QTest::newRow("one of two") << QStringLiteral("a:1") << QStringLiteral("a:1,b:2") << false << true;
        QTest::newRow("empty value of a missing key")
            << QStringLiteral("a:1") << QStringLiteral("a:1,b:") << true << true;
        QTest::newRow("own empty value") << QStringLiteral("b:") << QStringLiteral("a:1") << false << true;
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
        const KTArticleVariants variants
            = KTArticleVariants::createFromMCF(QStringLiteral("b:1,B:2,a:3,\u00e4:4"));
        QCOMPARE(variants.keys().join(QString()), QStringLiteral("Bab\u00e4"));
        QString debug;
        QDebug(&debug).nospace() << variants << KTArticleVariants();
        QCOMPARE(debug, QStringLiteral("\"B = 2; a = 3; b = 1; \u00e4 = 4\"\"\""));
    }

    void sharesUntilChanged()
    {
        KTArticleVariants variants = KTArticleVariants::blackCFBGiftBox();
        const KTArticleVariants copy = variants;
        QCOMPARE(variants.hash(), copy.hash());
        variants.insert(KTArticleVariants(KTArticleVariants::coverColorKeyName(), QStringLiteral("red")));
        variants.insert(KTArticleVariants::cfbGiftBoxColorKeyName(), QStringLiteral("white"));
        QVERIFY(variants != copy && variants.hasCoverColor() && !variants.hasFlyLeafColor()
                && !copy.hasCoverColor());
        QCOMPARE(copy.toMCF(), QStringLiteral("giftboxcolor:black"));
        const QHash<QString, QString> plain {
            {QStringLiteral("giftboxcolor"), QStringLiteral("black")}
        };
        QCOMPARE(copy.hash(), qHash(plain, 0));
    }
};

QTEST_APPLESS_MAIN(tst_KTArticleVariants)
#include "tst_KTArticleVariants.moc"
