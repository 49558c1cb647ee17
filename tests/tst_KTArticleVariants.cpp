#include <KTArticleVariantsList.h>

#include "KTTestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

/** The options of a text like "alcolor=black/boxstyle=". */
KTArticleVariants variants(const QString &text)
{
    KTArticleVariants variants;
    for (const QString &pair : text.split(u'/', Qt::SkipEmptyParts))
        variants.insert(pair.section(u'=', 0, 0), pair.section(u'=', 1));
    return variants;
}

/** The reverse of variants(). */
QString pairs(const KTArticleVariants &variants)
{
    QStringList pairs;
    for (const QString &key : variants.keys())
        pairs.append(key + u'=' + variants.value(key, u"missing"_s));
    return pairs.join(u'/');
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
    void readsText()
    {
        // As a keyword string and as MCF.
        const auto read = [](const QString &text) {
            return KTTest::text(pairs(KTArticleVariants(text)),
                                pairs(KTArticleVariants::createFromMCF(text)));
        };
        KTTest::check(read,
                      {"k:v -> k=v|k=v", "k|v -> k=v|k=v", "k+v -> k=v|k=v", "k -> |", "a:b+c -> |",
                       "a::b -> |", " -> |", ":v -> =v|=v", "a:1,,oops, -> a=1,,oops,|a=1",
                       "a:white,a|black -> |a=black"});
    }

    void readsJsonAndElements()
    {
        const QByteArray json
            = R"(["form_parameter-alcolor:white", "boxform_parameter-style:wood", "oops", "a:b:c", 17,
                                    "a|b", "alcolor:black", "FORM_PARAMETER-x:1"])";
        QCOMPARE(pairs(KTArticleVariants(QJsonDocument::fromJson(json).array())),
                 u"FORM_PARAMETER-x=1/alcolor=black/boxstyle=wood"_s);
        QCOMPARE(pairs(KTArticleVariants(KTTest::element(u"<f key='k' value='v'/>"_s))), u"k=v"_s);
        QCOMPARE(pairs(KTArticleVariants(KTTest::element(u"<f/>"_s))), u"="_s);
        QVERIFY(KTArticleVariants(QDomElement()).isValid()
                && !KTArticleVariants(u"k"_s, QString()).isValid());
        QVERIFY(!KTArticleVariants(QString(), u"v"_s).isValid());
    }

    void writes()
    {
        // As MCF, order text and XTCI.
        const auto written = [](const QString &input) {
            const KTArticleVariants options = variants(input);
            return KTTest::text(sorted(options.toMCF(), u','), sorted(options.toOrderTxt(), u';'),
                                pairs(options.toXTCI()));
        };
        KTTest::check(written,
                      {"k=black -> k:black|k:black|k=black",
                       "c;a=1;2/b=3 -> b:3,c;a:1;2|a:2;b:3;c:1|a=2/b=3/c=1", "a;b=1 -> a;b:1||",
                       "a=1;2 -> a:1;2||", "a;;b=;1;2 -> a;;b:;1;2|a:1;b:2|a=1/b=2", "alcolor= -> ||",
                       "=black -> ||", ";=;; -> ;:;;||", "a%2=b -> ab:b|ab:b|a%2=b", " -> ||"});
        const QString longKey = u"%2"_s.repeated(200);
        QCOMPARE(variants(longKey + u"=b"_s).toMCF(), QString(200, u'b') + u":b"_s);
        const QString longValue(2000000, u'x');
        QCOMPARE(variants(u"a%2="_s + longValue).toMCF(), u'a' + longValue + u':' + longValue);
        // A key that would multiply its value without bound is left as it is.
        const QString key = u"%2"_s.repeated(65536);
        const QString value(65536, u'x');
        const QString unfilled = key + u':' + value;
        QCOMPARE(written(key + u'=' + value), KTTest::text(unfilled, unfilled, QString(key + u'=' + value)));
    }

    void joinsUnderAnotherHashSeed()
    {
        KTArticleVariants first = variants(u"a=1"_s);
        qSetGlobalQHashSeed(0);
        first.insert(variants(u"a=2/b=3"_s));
        first.insert(first);
        QCOMPARE(pairs(first), u"a=2/b=3"_s);
    }

    void survivesMCF()
    {
        const KTArticleVariants written
            = variants(u"giftboxcolor;boxstyle=black;wood/\u00e4 \u4e2d==\"%\n"_s);
        QCOMPARE(KTArticleVariants::createFromMCF(written.toMCF()), written);
        // A comma ends the value; what follows it is no pair.
        QCOMPARE(pairs(KTArticleVariants::createFromMCF(variants(u"k=a,b"_s).toMCF())), u"k=a"_s);
    }

    void containsOptions()
    {
        // Whether the first contains the second, or one of its options; in a list without and with the first.
        const auto contains = [](const QString &both) {
            const KTArticleVariants first = KTArticleVariants::createFromMCF(both.section(u'/', 0, 0));
            const KTArticleVariants second = KTArticleVariants::createFromMCF(both.section(u'/', 1));
            const KTArticleVariantsList list = KTArticleVariantsList({second, first}).mid(1);
            return KTTest::text(first.contains(second), first.containsAtLeastOne(second),
                                KTArticleVariantsList().containsBoxStyle(second),
                                list.containsBoxStyle(second));
        };
        KTTest::check(contains,
                      {"/ -> +|+|-|+", "a:1/ -> +|+|-|+", "/a:1 -> -|+|-|-", "a:1/a:1 -> +|+|-|+",
                       "a:1/a:2 -> -|-|-|-", "a:1/a:1,b:2 -> -|+|-|-", "a:1/a:1,b: -> +|+|-|+",
                       "b:/a:1 -> -|+|-|-"});
    }

    void ordersKeysByCodeUnit()
    {
        const KTArticleVariants variants = KTArticleVariants::createFromMCF(u"b:1,B:2,a:3,\u00e4:4"_s);
        QCOMPARE(variants.keys().join(QString()), u"Bab\u00e4"_s);
        QCOMPARE(KTTest::logged(variants) + KTTest::logged(KTArticleVariants()),
                 u"\"B = 2; a = 3; b = 1; \u00e4 = 4\" \"\" "_s);
    }

    void sharesUntilChanged()
    {
        KTArticleVariants variants = KTArticleVariants::blackCFBGiftBox();
        const KTArticleVariants copy = variants;
        variants.insert(KTArticleVariants(KTArticleVariants::coverColorKeyName(), u"red"_s));
        variants.insert(KTArticleVariants::cfbGiftBoxColorKeyName(), u"white"_s);
        QVERIFY(variants != copy && variants.hasCoverColor() && !variants.hasFlyLeafColor()
                && !copy.hasCoverColor());
        QCOMPARE(copy.toMCF(), u"giftboxcolor:black"_s);
        QCOMPARE(copy.values().join(u','), KTArticleVariants::blackCFBGiftBoxValue());
        QVERIFY(KTArticleVariants(u"flyleafcolor:red"_s).hasFlyLeafColor());
        QCOMPARE(KTArticleVariants::flyLeafKeyColorName(), u"flyleafcolor"_s);
        const QHash<QString, QString> plain {
            {u"giftboxcolor"_s, u"black"_s}
        };
        QCOMPARE(copy.hash(), static_cast<uint>(qHash(plain, 0)));
    }
};

QTEST_APPLESS_MAIN(tst_KTArticleVariants)
#include "tst_KTArticleVariants.moc"
