#include <KTDistanceUnit.h>
#include <KTXMLBuilder.h>
#include <KTXMLParser.h>

#include "KTTestSupport.h"

#include <QtTest>

class tst_KTXML : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsNumbers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("integer");
        QTest::addColumn<double>("real");
        QTest::addColumn<bool>("flag");
        QTest::newRow("integer") << QStringLiteral(" 17 ") << 17 << 17.0 << true;
        QTest::newRow("real") << QStringLiteral("-1.5e1") << 7 << -15.0 << true;
        QTest::newRow("beyond int") << QStringLiteral("2147483648") << 7 << 2147483648.0 << true;
        QTest::newRow("beyond double") << QStringLiteral("1e999") << 7 << 0.5 << true;
        QTest::newRow("not finite") << QStringLiteral("inf") << 7 << 0.5 << true;
        QTest::newRow("not a number") << QStringLiteral("nan") << 7 << 0.5 << true;
        QTest::newRow("hexadecimal") << QStringLiteral("0x10") << 7 << 0.5 << true;
        QTest::newRow("grouped") << QStringLiteral("1,000") << 7 << 0.5 << true;
        QTest::newRow("empty") << QStringLiteral("") << 7 << 0.5 << true;
        QTest::newRow("zero") << QStringLiteral("0") << 0 << 0.0 << false;
        QTest::newRow("false") << QStringLiteral("False") << 7 << 0.5 << false;
        QTest::newRow("no boolean") << QStringLiteral("no") << 7 << 0.5 << true;
    }
    void readsNumbers()
    {
        QFETCH(QString, text);
        QDomElement element = KTTest::element(QStringLiteral("<e/>"));
        const QString name = QStringLiteral("a");
        element.setAttribute(name, text);
        QTEST(KTXMLParser::intAttribute(element, name, 7), "integer");
        QTEST(KTXMLParser::intAttribute(element.attributes(), name, 7), "integer");
        QTEST(KTXMLParser::doubleAttribute(element, name, 0.5), "real");
        QTEST(KTXMLParser::boolAttribute(element, name, true), "flag");
        QCOMPARE(KTXMLParser::attribute(element, name, QStringLiteral("default"), true), text);
    }

    void readsMissingAttributeAsDefault()
    {
        const QString name = QStringLiteral("a");
        for (const QDomElement &element : {QDomElement(), KTTest::element(QStringLiteral("<e/>"))}) {
            QCOMPARE(KTXMLParser::attribute(element, name, QStringLiteral("x"), false), QStringLiteral("x"));
            QCOMPARE(KTXMLParser::intAttribute(element.attributes(), name, 7), 7);
            QCOMPARE(KTXMLParser::boolAttribute(element, name, true), true);
            QCOMPARE(KTXMLParser::readDistance(element, name, 2.0, KTDistanceUnitCentimeter).layoutUnits(),
                     200.0);
        }
    }

    void convertsDistances_data()
    {
        QTest::addColumn<QString>("unit");
        QTest::addColumn<double>("layoutUnits");
        QTest::newRow("layout unit") << QStringLiteral("layoutunit") << 1.0;
        QTest::newRow("millimetre") << QStringLiteral("MM") << 10.0;
        QTest::newRow("inch") << QStringLiteral("inch") << 254.0;
        QTest::newRow("centimetre") << QStringLiteral("cm") << 100.0;
        QTest::newRow("point") << QStringLiteral("pt") << 254.0 / 72.0;
    }
    void convertsDistances()
    {
        QFETCH(QString, unit);
        QFETCH(double, layoutUnits);
        const KTDistance distance = KTXMLParser::readDistance(KTTest::element(QStringLiteral("<e a='2.5'/>")),
                                                              QStringLiteral("a"), 0.0, unit);
        QCOMPARE(distance.layoutUnits(), 2.5 * layoutUnits);
        QCOMPARE(distance.value(unit), 2.5);
    }

    void warnsOfUnknownUnit()
    {
        QTest::ignoreMessage(QtWarningMsg, "distance not supported! 3");
        QCOMPARE(KTDistanceUnit(static_cast<KTDistanceUnitEnum>(3)).units2Pixels(2.5), 2.5);
    }

    void buildsChildren()
    {
        QDomElement parent = KTTest::element(QStringLiteral("<p/>"));
        KTXMLBuilder::buildDomElement(parent, QStringLiteral("a"));
        KTXMLBuilder::buildDomElement(parent, QStringLiteral("b"), QStringLiteral("1 < 2"));
        QCOMPARE(KTTest::xml(parent), QStringLiteral("<p><a/><b>1 &lt; 2</b></p>"));
        QDomElement nobody;
        QVERIFY(KTXMLBuilder::buildDomElement(nobody, QStringLiteral("a"), QStringLiteral("x")).isNull());
    }
};

QTEST_APPLESS_MAIN(tst_KTXML)
#include "tst_KTXML.moc"
