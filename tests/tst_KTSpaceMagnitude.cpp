#include <KTOrientation.h>
#include <KTSpaceMagnitude.h>

#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <QFont>
#include <QtTest>

#include <cmath>
#include <limits>

namespace {

constexpr int UNION = 192;
constexpr int HIGHEST = std::numeric_limits<int>::max();

KTSpaceMagnitude magnitude(int value)
{
    return static_cast<KTSpaceMagnitudeEnum>(value);
}

QFont inPoints(double size)
{
    QFont font;
    font.setPointSizeF(size);
    return font;
}

QFont inPixels(int size)
{
    QFont font;
    font.setPixelSize(size);
    return font;
}

} // namespace

class tst_KTSpaceMagnitude : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void classifiesAreas()
    {
        int value = 1;
        for (const int area : {100, 175, 204, 220, 295, 355, 512, 762, 950, 1900, 2100}) {
            QCOMPARE(int(KTSpaceMagnitude::fromSquareCentimeters(area).value()), value);
            value *= 2;
            QCOMPARE(int(KTSpaceMagnitude::fromSquareCentimeters(area + 1).value()), value);
        }
        QCOMPARE(int(KTSpaceMagnitude::fromSquareCentimeters(-HIGHEST).value()), 1);
        QCOMPARE(int(KTSpaceMagnitude::fromSquareCentimeters(HIGHEST).value()), 2048);
    }

    void estimates_data()
    {
        QTest::addColumn<double>("areaSizes");
        QTest::addColumn<int>("value");
        QTest::newRow("zero") << -0.0 << 0;
        QTest::newRow("300") << 0.1 << 32;
        QTest::newRow("100.9 is cut off") << 30.0 / 100.9 << 1;
        QTest::newRow("negative") << -0.1 << 1;
        QTest::newRow("tiny") << 1e-300 << 2048;
        QTest::newRow("denormal") << std::numeric_limits<double>::denorm_min() << 2048;
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 1;
    }
    void estimates()
    {
        QFETCH(double, areaSizes);
        QTEST(int(KTSpaceMagnitude::estimateByAreaSizes(areaSizes).value()), "value");
    }

    void knowsItsFacts_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("facts");
        QTest::newRow("null") << 0 << u"Undefiniert 0 1 12 2.1 2.1"_s;
        QTest::newRow("nameless class") << 1 << u"Undefiniert 50 1 12 1.5 1.5"_s;
        QTest::newRow("one image only") << 8 << u"Compact Quadratisch 225 1 12 1.5 1.5"_s;
        QTest::newRow("last with small font") << 32 << u"A5 310 5 12 1.5 1.5"_s;
        QTest::newRow("by orientation") << 128 << u"A4 625 8 16 2.8 3"_s;
        QTest::newRow("fewer photos") << 512 << u"A3 1250 14 24 3.2 3.2"_s;
        QTest::newRow("largest") << 2048 << u"A2 2500 14 32 4 4"_s;
        QTest::newRow("union") << UNION << u"Undefiniert 0 1 12 2.1 2.1"_s;
        QTest::newRow("unknown bit") << 4096 << u"Undefiniert 0 1 12 2.1 2.1"_s;
    }
    void knowsItsFacts()
    {
        QFETCH(int, value);
        const KTSpaceMagnitude one = magnitude(value);
        const QString facts = u"%1 %2 %3 %4 %5 %6"_s.arg(one.humanReadableName())
                                  .arg(one.normativeSize())
                                  .arg(one.maxReasonableImagesPerPage())
                                  .arg(one.suitableFontSizeInPoints())
                                  .arg(one.optimumFotosPerPage(u"portrait_slim,square"_s))
                                  .arg(one.optimumFotosPerPage(KTOrientationSquare));
        QTEST(facts, "facts");
    }

    void readsNamesAndIsPrinted()
    {
        QVERIFY(KTSpaceMagnitude::createFromHumanReadable(u"Mini"_s) == KTSpaceMagnitude150cm2);
        for (const QString &name : {u"a4"_s, u"Undefiniert"_s, QString()})
            QVERIFY(KTSpaceMagnitude::createFromHumanReadable(name).isNull());
        QCOMPARE(KTSpaceMagnitude::names()->map.size(), 11);
        QString debug;
        QDebug(&debug) << magnitude(128);
        QCOMPARE(debug, u"\"KTSpaceMagnitude: 600cm2\" "_s);
    }

    void scales()
    {
        QCOMPARE(magnitude(128).scaleFactorForArea(magnitude(2048)), 4.0);
        QCOMPARE(magnitude(128).scaleFactorPerDimension(magnitude(2048)), 2.0);
        QCOMPARE(magnitude(0).scaleFactorForArea(magnitude(UNION)), 1.0);
        QCOMPARE(magnitude(UNION).scaleFactorForArea(magnitude(0)), 1.0);
        QCOMPARE(magnitude(1).scaleFactorForArea(magnitude(UNION)), 0.0);
        QVERIFY(std::isinf(magnitude(UNION).scaleFactorForArea(magnitude(1))));
        QVERIFY(std::isnan(magnitude(UNION).scaleFactorPerDimension(magnitude(UNION))));
    }

    void adaptsFonts_data()
    {
        QTest::addColumn<QFont>("font");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QFont>("adapted");
        QTest::newRow("points") << inPoints(10.5) << 128 << 2048 << inPoints(21.0);
        QTest::newRow("pixels") << inPixels(15) << 128 << 2048 << inPixels(30);
        QTest::newRow("pixels rounded down") << inPixels(15) << 2048 << 128 << inPixels(7);
        QTest::newRow("null") << inPixels(15) << 0 << 128 << inPixels(15);
        QTest::newRow("infinite") << inPoints(10.5) << UNION << 128 << inPoints(10.5);
        QTest::newRow("not a number") << inPixels(15) << UNION << UNION << inPixels(15);
        QTest::newRow("zero points") << inPoints(10.5) << 128 << UNION << inPoints(10.5);
        QTest::newRow("zero pixels") << inPixels(15) << 128 << UNION << inPixels(15);
        QTest::newRow("less than a pixel") << inPixels(1) << 2048 << 1 << inPixels(1);
        QTest::newRow("too many pixels") << inPixels(HIGHEST) << 128 << 2048 << inPixels(HIGHEST);
        QTest::newRow("too many points") << inPoints(1e308) << 1 << 2048 << inPoints(HIGHEST);
    }
    void adaptsFonts()
    {
        QFETCH(QFont, font);
        QFETCH(int, from);
        QFETCH(int, to);
        const KTMessageRecorder recorder;
        const QFont adapted = magnitude(from).adaptFont(font, magnitude(to));
        QVERIFY(recorder.messages().isEmpty());
        QTEST(adapted, "adapted");
    }
};

// Without an application, whose platform plug-in leaks; only measuring fonts would need one.
QTEST_APPLESS_MAIN(tst_KTSpaceMagnitude)
#include "tst_KTSpaceMagnitude.moc"
