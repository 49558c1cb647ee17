#include <KTConfiguredArticleVariant.h>
#include <KTNamedColor.h>
#include <KTSpotColor.h>

#include "KTTestSupport.h"

class tst_KTConfiguredArticleVariant : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsElement()
    {
        // The text, whether it is preselected and not charged, the colour, whether the options are as valid.
        const auto read = [](const QString &attributes) {
            const KTConfiguredArticleVariant variant(KTTest::element(u"<form %1/>"_s.arg(attributes)));
            const QColor color = variant.color();
            return KTTest::text(variant.toString(), variant.isDefault(), variant.isNotAccountable(),
                                color.isValid() ? color.name(QColor::HexArgb) : QString(),
                                variant.isValid() == variant.toArticleVariants().isValid());
        };
        KTTest::checkTable(u"options.tsv"_s, read);
    }

    void readsKeywordString()
    {
        const auto read = [](const QString &text) {
            const KTConfiguredArticleVariant variant(text);
            return KTTest::text(variant.key(), variant.value(), variant.isDefault());
        };
        KTTest::check(read,
                      {"alcolor:black -> alcolor|black|+", "a;b:1;2 -> a;b|1;2|+", "alcolor:black:x -> ||+",
                       "alcolor -> ||+", "alcolor|black -> ||+", ":black -> |black|+"});
    }

    void describes()
    {
        const auto described = [](const QString &attributes) {
            const KTConfiguredArticleVariant variant(
                KTTest::element(u"<form key='k' %1/>"_s.arg(attributes)));
            return KTTest::text(variant.describe(), variant.visibleName());
        };
        const auto swatch = [](const QString &color) {
            return KTNamedColor::renderColorPreviewHTML(QColor(color)).section(u'"', 1, 1);
        };
        KTTest::check(swatch,
                      {" -> ", "#010203 -> background-color:#010203",
                       "#01010203 -> background-color:rgba(1,2,3,0.0040)"});
        KTTest::checkTable(u"optiontexts.tsv"_s, described);
    }

    void comparesKeyAndValueButOrdersByKeyName()
    {
        const KTConfiguredArticleVariant a = KTTest::element(u"<f key='k' value='v' key_name='A'/>"_s);
        const KTConfiguredArticleVariant b = KTTest::element(u"<f key='k' value='v' key_name='B'/>"_s);
        const KTConfiguredArticleVariant other = KTTest::element(u"<f key='x' value='v' key_name='A'/>"_s);
        QVERIFY(a == b && a < b && !(b < a) && qHash(a) == qHash(b));
        QVERIFY(a != KTConfiguredArticleVariant(u"k"_s, u"w"_s));
        QVERIFY(a != other && !(a < other) && !(other < a) && !(a < a));
    }

    void mergesPreviewAndColor()
    {
        KTConfiguredArticleVariant variant(u"k"_s, u"v"_s);
        const KTConfiguredArticleVariant copy = variant;
        variant.merge(KTConfiguredArticleVariant(
            KTTest::element(u"<f key='x' value='y' value_name='z' preview='p.png' color='blue'/>"_s)));
        QCOMPARE(variant.toString() + variant.visibleName(), u"k:v"_s);
        QCOMPARE(variant.preview(), u"p.png"_s);
        QCOMPARE(variant.color(), QColor(Qt::blue));
        QVERIFY(variant.isDefault() && copy.preview().isEmpty() && !copy.color().isValid());
    }

    void knowsSpotColors()
    {
        const auto isSpotColor = [](const char *value, KTSpotColorEnum color) {
            return KTConfiguredArticleVariant(u"k"_s, QString::fromUtf8(value)).isSpotColor(color);
        };
        QVERIFY(isSpotColor("silver", KTSpotColorSilver) && !isSpotColor("Silver", KTSpotColorSilver));
        QVERIFY(!isSpotColor("gold, silver", KTSpotColorGold | KTSpotColorSilver)
                && isSpotColor("", KTSpotColorGold | KTSpotColorSilver));
    }
};

QTEST_APPLESS_MAIN(tst_KTConfiguredArticleVariant)
#include "tst_KTConfiguredArticleVariant.moc"
