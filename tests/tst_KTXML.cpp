#include <KTDistanceUnit.h>
#include <KTXMLBuilder.h>
#include <KTXMLParser.h>

#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

class tst_KTXML : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsNumbers()
    {
        // As an integer (by default 7, from the element and its attributes), a real number (0.5), a flag
        // (true), and whether it is any of them.
        const auto read = [](const QString &text) {
            QDomElement element = KTTest::element(u"<e/>"_s);
            const QString name = u"a"_s;
            element.setAttribute(name, text);
            const int integer = KTXMLParser::intAttribute(element, name, 7);
            const bool areSame = integer == KTXMLParser::intAttribute(element.attributes(), name, 7)
                && KTXMLParser::attribute(element, name, u"default"_s, true) == text;
            const bool isReadable = KTXMLParser::parseInt(text) || KTXMLParser::parseDouble(text)
                || KTXMLParser::parseBool(text);
            return KTTest::text(integer, KTXMLParser::doubleAttribute(element, name, 0.5),
                                KTXMLParser::boolAttribute(element, name, true), areSame, isReadable);
        };
        KTTest::check(read,
                      {" 17  -> 17|17|+|+|+", "-1.5e1 -> 7|-15|+|+|+", "2147483648 -> 7|2147483648|+|+|+",
                       "1e999 -> 7|0.5|+|+|-", "inf -> 7|0.5|+|+|-", "nan -> 7|0.5|+|+|-",
                       "0x10 -> 7|0.5|+|+|-", "1,000 -> 7|0.5|+|+|-", " -> 7|0.5|+|+|-", "0 -> 0|0|-|+|+",
                       " False\n -> 7|0.5|-|+|+", "no -> 7|0.5|+|+|-"});
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

    void convertsDistances()
    {
        const auto converted = [](const QString &unit) {
            const QDomElement element = KTTest::element(u"<e a='2.5' b='1.7e308'/>"_s);
            const auto distance = KTXMLParser::readDistance(element, u"a"_s, 0.0, unit);
            const auto absurd = KTXMLParser::readDistance(element, u"b"_s, 2.0, unit);
            return KTTest::text(distance.layoutUnits(), distance.value(unit), absurd.value(unit));
        };
        KTTest::check(converted,
                      {"layoutunit -> 2.5|2.5|1.7e+308", "MM -> 25|2.5|2", "inch -> 635|2.5|2",
                       "cm -> 250|2.5|2", "pt -> 8.81944444444|2.5|2"});
    }

    void computesWithDistances()
    {
        const KTDistance two(2.0, KTDistanceUnitLayout);
        const KTDistance more(2.5, KTDistanceUnitLayout);
        QVERIFY(two < more && !(more < two) && two != more && KTDistance() == two * 0.0);
        QCOMPARE(KTTest::logged(two - more * 3 + two), u"KTDistance: -3.5 "_s);
    }

    void warnsOfUnknownUnit()
    {
        const KTMessageRecorder recorder;
        QCOMPARE(KTDistanceUnit(static_cast<KTDistanceUnitEnum>(3)).units2Pixels(2.5), 2.5);
        QCOMPARE(recorder.messages().size(), 1);
        const KTMessageRecorder::Message message = recorder.messages().first();
        QCOMPARE(message.text, u"distance not supported! 3"_s);
        QCOMPARE(message.file, QByteArray("libs/KTCore/KTDistanceUnit"));
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
