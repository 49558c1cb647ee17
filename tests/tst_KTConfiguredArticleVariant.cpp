#include <KTConfiguredArticleVariant.h>
#include <KTSpotColor.h>

#include "KTTestSupport.h"

#include <QtTest>

class tst_KTConfiguredArticleVariant : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsElement_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("preselected");
        QTest::addColumn<bool>("notAccountable");
        QTest::addColumn<QString>("color");
        QTest::newRow("nothing") << QString() << QString() << false << false << QString();
        QTest::newRow("flags") << u"key='k' value='v' preselected='TRUE' not_accountable='1'"_s << u"k:v"_s
                               << true << true << QString();
        QTest::newRow("bad flags") << u"key='k' value='' preselected='yes'"_s << QString() << false << false
                                   << QString();
        QTest::newRow("hexadecimal colour")
            << u"key='k' value='v' color='#FF0000'"_s << u"k:v"_s << false << false << u"#ffff0000"_s;
        QTest::newRow("translucent colour")
            << u"color='#80FF0000'"_s << QString() << false << false << u"#80ff0000"_s;
        QTest::newRow("named colour") << u"color='red'"_s << QString() << false << false << u"#ffff0000"_s;
        QTest::newRow("unknown colour") << u"color='reddish'"_s << QString() << false << false << QString();
        QTest::newRow("empty colour") << u"color=''"_s << QString() << false << false << QString();
    }
    void readsElement()
    {
        QFETCH(QString, attributes);
        const KTConfiguredArticleVariant variant(KTTest::element(u"<form %1/>"_s.arg(attributes)));
        QTEST(variant.toString(), "text");
        QTEST(variant.isDefault(), "preselected");
        QTEST(variant.isNotAccountable(), "notAccountable");
        QTEST(variant.color().isValid() ? variant.color().name(QColor::HexArgb) : QString(), "color");
        QCOMPARE(variant.isValid(), variant.toArticleVariants().isValid());
    }

    void readsKeywordString_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::newRow("pair") << u"alcolor:black"_s << u"alcolor"_s << u"black"_s;
        QTest::newRow("compound") << u"a;b:1;2"_s << u"a;b"_s << u"1;2"_s;
        QTest::newRow("three parts") << u"alcolor:black:x"_s << QString() << QString();
        QTest::newRow("one part") << u"alcolor"_s << QString() << QString();
        QTest::newRow("other separator") << u"alcolor|black"_s << QString() << QString();
        QTest::newRow("empty key") << u":black"_s << QString() << u"black"_s;
    }
    void readsKeywordString()
    {
        QFETCH(QString, text);
        const KTConfiguredArticleVariant variant(text);
        QTEST(variant.key(), "key");
        QTEST(variant.value(), "value");
        QVERIFY(variant.isDefault());
    }

    void describes_data()
    {
        QTest::addColumn<QString>("attributes");
        QTest::addColumn<QString>("description");
        QTest::addColumn<QString>("visibleName");
        QTest::newRow("no colour") << u"key='k' value='v' key_name=' Cover  colour' value_name='Black'"_s
                                   << u"Cover colour: Black"_s << u"Black"_s;
        QTest::newRow("no key name") << u"key='k' value='v' value_name='Black' color='red'"_s << QString()
                                     << u"Black"_s;
        QTest::newRow("no value name") << u"key='k' value='v' key_name='Cover'"_s << u"Cover:"_s << QString();
        QTest::newRow("invalid option")
            << u"key='k' key_name='%2' value_name='Black'"_s << u"%2: Black"_s << QString();
        QTest::newRow("colour")
            << u"key='k' value='v' key_name='Cover' value_name='Red' color='#80ff0000'"_s
            << u"Cover: <span style=\"background-color:#ff0000\">&nbsp;&nbsp;&nbsp;&nbsp;</span> Red"_s
            << u"Red"_s;
    }
    void describes()
    {
        QFETCH(QString, attributes);
        const KTConfiguredArticleVariant variant(KTTest::element(u"<form %1/>"_s.arg(attributes)));
        QTEST(variant.describe(), "description");
        QTEST(variant.visibleName(), "visibleName");
    }

    void comparesKeyAndValueButOrdersByKeyName()
    {
        const KTConfiguredArticleVariant a(KTTest::element(u"<f key='k' value='v' key_name='A'/>"_s));
        const KTConfiguredArticleVariant b(KTTest::element(u"<f key='k' value='v' key_name='B'/>"_s));
        const KTConfiguredArticleVariant other(KTTest::element(u"<f key='x' value='v' key_name='A'/>"_s));
        QVERIFY(a == b && a < b && !(b < a) && qHash(a) == qHash(b));
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
        QVERIFY(!isSpotColor("gold, silver", static_cast<KTSpotColorEnum>(6))
                && isSpotColor("", static_cast<KTSpotColorEnum>(6)));
    }

    void dumps()
    {
        QString debug;
        QDebug(&debug).nospace() << KTConfiguredArticleVariant(u"k:v"_s);
        QCOMPARE(debug, u"\"KTConfiguredArticleVariant: key: k value: v \""_s);
        QCOMPARE(sizeof(KTConfiguredArticleVariant), sizeof(void *));
    }
};

QTEST_APPLESS_MAIN(tst_KTConfiguredArticleVariant)
#include "tst_KTConfiguredArticleVariant.moc"
