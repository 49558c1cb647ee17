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
        QTest::newRow("flags") << QStringLiteral("key='k' value='v' preselected='TRUE' not_accountable='1'")
                               << QStringLiteral("k:v") << true << true << QString();
        QTest::newRow("bad flags") << QStringLiteral("key='k' value='' preselected='yes'") << QString()
                                   << false << false << QString();
        QTest::newRow("hexadecimal colour")
            << QStringLiteral("key='k' value='v' color='#FF0000'") << QStringLiteral("k:v") << false << false
            << QStringLiteral("#ffff0000");
        QTest::newRow("translucent colour") << QStringLiteral("color='#80FF0000'") << QString() << false
                                            << false << QStringLiteral("#80ff0000");
        QTest::newRow("named colour")
            << QStringLiteral("color='red'") << QString() << false << false << QStringLiteral("#ffff0000");
        QTest::newRow("unknown colour")
            << QStringLiteral("color='reddish'") << QString() << false << false << QString();
        QTest::newRow("empty colour")
            << QStringLiteral("color=''") << QString() << false << false << QString();
    }
    void readsElement()
    {
        QFETCH(QString, attributes);
        const KTConfiguredArticleVariant variant(
            KTTest::element(QStringLiteral("<form %1/>").arg(attributes)));
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
        QTest::newRow("pair") << QStringLiteral("alcolor:black") << QStringLiteral("alcolor")
                              << QStringLiteral("black");
        QTest::newRow("compound") << QStringLiteral("a;b:1;2") << QStringLiteral("a;b")
                                  << QStringLiteral("1;2");
        QTest::newRow("three parts") << QStringLiteral("alcolor:black:x") << QString() << QString();
        QTest::newRow("one part") << QStringLiteral("alcolor") << QString() << QString();
        QTest::newRow("other separator") << QStringLiteral("alcolor|black") << QString() << QString();
        QTest::newRow("empty key") << QStringLiteral(":black") << QString() << QStringLiteral("black");
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
        QTest::newRow("no colour") << QStringLiteral(
            "key='k' value='v' key_name=' Cover  colour' value_name='Black'")
                                   << QStringLiteral("Cover colour: Black") << QStringLiteral("Black");
        QTest::newRow("no key name") << QStringLiteral("key='k' value='v' value_name='Black' color='red'")
                                     << QString() << QStringLiteral("Black");
        QTest::newRow("no value name")
            << QStringLiteral("key='k' value='v' key_name='Cover'") << QStringLiteral("Cover:") << QString();
        QTest::newRow("invalid option") << QStringLiteral("key='k' key_name='%2' value_name='Black'")
                                        << QStringLiteral("%2: Black") << QString();
        QTest::newRow("colour")
            << QStringLiteral("key='k' value='v' key_name='Cover' value_name='Red' color='#80ff0000'")
            << QStringLiteral(
                   "Cover: <span style=\"background-color:#ff0000\">&nbsp;&nbsp;&nbsp;&nbsp;</span> Red")
            << QStringLiteral("Red");
    }
    void describes()
    {
        QFETCH(QString, attributes);
        const KTConfiguredArticleVariant variant(
            KTTest::element(QStringLiteral("<form %1/>").arg(attributes)));
        QTEST(variant.describe(), "description");
        QTEST(variant.visibleName(), "visibleName");
    }

    void comparesKeyAndValueButOrdersByKeyName()
    {
        const KTConfiguredArticleVariant a(
            KTTest::element(QStringLiteral("<f key='k' value='v' key_name='A'/>")));
        const KTConfiguredArticleVariant b(
            KTTest::element(QStringLiteral("<f key='k' value='v' key_name='B'/>")));
        const KTConfiguredArticleVariant other(
            KTTest::element(QStringLiteral("<f key='x' value='v' key_name='A'/>")));
        QVERIFY(a == b && a < b && !(b < a) && qHash(a) == qHash(b));
        QVERIFY(a != other && !(a < other) && !(other < a) && !(a < a));
    }

    void mergesPreviewAndColor()
    {
        KTConfiguredArticleVariant variant(QStringLiteral("k"), QStringLiteral("v"));
        const KTConfiguredArticleVariant copy = variant;
        variant.merge(KTConfiguredArticleVariant(KTTest::element(
            QStringLiteral("<f key='x' value='y' value_name='z' preview='p.png' color='blue'/>"))));
        QCOMPARE(variant.toString() + variant.visibleName(), QStringLiteral("k:v"));
        QCOMPARE(variant.preview(), QStringLiteral("p.png"));
        QCOMPARE(variant.color(), QColor(Qt::blue));
        QVERIFY(variant.isDefault() && copy.preview().isEmpty() && !copy.color().isValid());
    }

    void knowsSpotColors()
    {
        const auto isSpotColor = [](const char *value, KTSpotColorEnum color) {
            return KTConfiguredArticleVariant(QStringLiteral("k"), QString::fromUtf8(value))
                .isSpotColor(color);
        };
        QVERIFY(isSpotColor("silver", KTSpotColorSilver) && !isSpotColor("Silver", KTSpotColorSilver));
        QVERIFY(!isSpotColor("gold, silver", static_cast<KTSpotColorEnum>(6))
                && isSpotColor("", static_cast<KTSpotColorEnum>(6)));
    }

    void dumps()
    {
        QString debug;
        QDebug(&debug).nospace() << KTConfiguredArticleVariant(QStringLiteral("k:v"));
        QCOMPARE(debug, QStringLiteral("\"KTConfiguredArticleVariant: key: k value: v \""));
        QCOMPARE(sizeof(KTConfiguredArticleVariant), sizeof(void *));
    }
};

QTEST_APPLESS_MAIN(tst_KTConfiguredArticleVariant)
#include "tst_KTConfiguredArticleVariant.moc"
