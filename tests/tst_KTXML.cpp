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
        QTest::newRow("integer") << u" 17 "_s << 17 << 17.0 << true;
        QTest::newRow("real") << u"-1.5e1"_s << 7 << -15.0 << true;
        QTest::newRow("beyond int") << u"2147483648"_s << 7 << 2147483648.0 << true;
        QTest::newRow("beyond double") << u"1e999"_s << 7 << 0.5 << true;
        QTest::newRow("not finite") << u"inf"_s << 7 << 0.5 << true;
        QTest::newRow("not a number") << u"nan"_s << 7 << 0.5 << true;
        QTest::newRow("hexadecimal") << u"0x10"_s << 7 << 0.5 << true;
        QTest::newRow("grouped") << u"1,000"_s << 7 << 0.5 << true;
        QTest::newRow("empty") << u""_s << 7 << 0.5 << true;
        QTest::newRow("zero") << u"0"_s << 0 << 0.0 << false;
        QTest::newRow("false") << u"False"_s << 7 << 0.5 << false;
        QTest::newRow("no boolean") << u"no"_s << 7 << 0.5 << true;
    }
    void readsNumbers()
    {
        QFETCH(QString, text);
        QDomElement element = KTTest::element(u"<e/>"_s);
        const QString name = u"a"_s;
        element.setAttribute(name, text);
        QTEST(KTXMLParser::intAttribute(element, name, 7), "integer");
        QTEST(KTXMLParser::intAttribute(element.attributes(), name, 7), "integer");
        QTEST(KTXMLParser::doubleAttribute(element, name, 0.5), "real");
        QTEST(KTXMLParser::boolAttribute(element, name, true), "flag");
        QCOMPARE(KTXMLParser::attribute(element, name, u"default"_s, true), text);
    }

    void readsMissingAttributeAsDefault()
    {
        const QString name = u"a"_s;
        for (const QDomElement &element : {QDomElement(), KTTest::element(u"<e/>"_s)}) {
            QCOMPARE(KTXMLParser::attribute(element, name, u"x"_s, false), u"x"_s);
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
        QTest::newRow("layout unit") << u"layoutunit"_s << 1.0;
        QTest::newRow("millimetre") << u"MM"_s << 10.0;
        QTest::newRow("inch") << u"inch"_s << 254.0;
        QTest::newRow("centimetre") << u"cm"_s << 100.0;
        QTest::newRow("point") << u"pt"_s << 254.0 / 72.0;
    }
    void convertsDistances()
    {
        QFETCH(QString, unit);
        QFETCH(double, layoutUnits);
        const KTDistance distance
            = KTXMLParser::readDistance(KTTest::element(u"<e a='2.5'/>"_s), u"a"_s, 0.0, unit);
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
        QDomElement parent = KTTest::element(u"<p/>"_s);
        KTXMLBuilder::buildDomElement(parent, u"a"_s);
        KTXMLBuilder::buildDomElement(parent, u"b"_s, u"1 < 2"_s);
        QCOMPARE(KTTest::xml(parent), u"<p><a/><b>1 &lt; 2</b></p>"_s);
        QDomElement nobody;
        QVERIFY(KTXMLBuilder::buildDomElement(nobody, u"a"_s, u"x"_s).isNull());
    }
};

QTEST_APPLESS_MAIN(tst_KTXML)
#include "tst_KTXML.moc"
