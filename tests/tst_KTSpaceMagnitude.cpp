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

KTSpaceMagnitude magnitude(int value)
{
    return static_cast<KTSpaceMagnitudeEnum>(value);
}

QFont fontOf(double pointSize, int pixelSize)
{
    QFont font;
    if (pixelSize > 0)
        font.setPixelSize(pixelSize);
    else
        font.setPointSizeF(pointSize);
    return font;
}

} // namespace

class tst_KTSpaceMagnitude : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsAndWritesKeywords()
    {
        QCOMPARE(int(KTSpaceMagnitude(u"a4, 50CM2"_s).value()), 129);
        QCOMPARE(magnitude(2812).encode(), u"normal"_s);
        QCOMPARE(magnitude(2812).encodeCSV(),
                 u"200cm2, 220cm2, 280cm2, 310cm2, 400cm2, 600cm2, 1200cm2, 2400cm2"_s);
        QCOMPARE(magnitude(4095).encode(), u"any"_s);
        QCOMPARE(int(KTSpaceMagnitude(u"any"_s).value()), 4095);
        QCOMPARE(int(KTSpaceMagnitude(u"xl"_s).value()), 1280);
        QString debug;
        QDebug(&debug).noquote() << KTSpaceMagnitude(u"A4"_s);
        QCOMPARE(debug, u"KTSpaceMagnitude: 600cm2 "_s);
    }

    void classifiesAreas_data()
    {
        QTest::addColumn<int>("area");
        QTest::addColumn<int>("value");
        const auto limit = [](int area, int value) {
            QTest::addRow("up to %d", area) << area << value;
            QTest::addRow("above %d", area) << area + 1 << 2 * value;
        };
        QTest::newRow("lowest") << std::numeric_limits<int>::min() << 1;
        QTest::newRow("highest") << std::numeric_limits<int>::max() << 2048;
        int value = 1;
        for (const int area : {100, 175, 204, 220, 295, 355, 512, 762, 950, 1900, 2100}) {
            limit(area, value);
            value *= 2;
        }
    }
    void classifiesAreas()
    {
        QFETCH(int, area);
        QTEST(int(KTSpaceMagnitude::fromSquareCentimeters(area).value()), "value");
    }

    void estimates_data()
    {
        QTest::addColumn<double>("areaSizes");
        QTest::addColumn<int>("value");
        QTest::newRow("zero") << 0.0 << 0;
        QTest::newRow("negative zero") << -0.0 << 0;
        QTest::newRow("300") << 0.1 << 32;
        QTest::newRow("100.9 is cut off") << 30.0 / 100.9 << 1;
        QTest::newRow("negative") << -0.1 << 1;
        QTest::newRow("tiny") << 1e-300 << 2048;
        QTest::newRow("denormal") << std::numeric_limits<double>::denorm_min() << 2048;
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << 1;
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
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("images");
        QTest::addColumn<int>("font");
        QTest::addColumn<double>("portrait");
        QTest::addColumn<double>("square");
        const auto row = [](const char *name, int value, const char *display, int size, int images, int font,
                            double portrait, double square) {
            QTest::newRow(name) << value << QString::fromLatin1(display) << size << images << font << portrait
                                << square;
        };
        row("null", 0, "Undefiniert", 0, 1, 12, 2.1, 2.1);
        row("nameless class", 1, "Undefiniert", 50, 1, 12, 1.5, 1.5);
        row("one image only", 8, "Compact Quadratisch", 225, 1, 12, 1.5, 1.5);
        row("last with small font", 32, "A5", 310, 5, 12, 1.5, 1.5);
        row("by orientation", 128, "A4", 625, 8, 16, 2.8, 3.0);
        row("fewer photos", 512, "A3", 1250, 14, 24, 3.2, 3.2);
        row("largest", 2048, "A2", 2500, 14, 32, 4.0, 4.0);
        row("union", UNION, "Undefiniert", 0, 1, 12, 2.1, 2.1);
        row("unknown bit", 4096, "Undefiniert", 0, 1, 12, 2.1, 2.1);
    }
    void knowsItsFacts()
    {
        QFETCH(int, value);
        const KTSpaceMagnitude one = magnitude(value);
        QTEST(one.humanReadableName(), "name");
        QTEST(one.normativeSize(), "size");
        QTEST(one.maxReasonableImagesPerPage(), "images");
        QTEST(one.suitableFontSizeInPoints(), "font");
        QTEST(one.optimumFotosPerPage(KTOrientationPortraitSlim), "portrait");
        QTEST(one.optimumFotosPerPage(KTOrientation(u"portrait,square"_s)), "portrait");
        QTEST(one.optimumFotosPerPage(KTOrientationSquare), "square");
        QTEST(one.optimumFotosPerPage(KTOrientationLandscape), "square");
    }

    void readsNames()
    {
        for (const int value : {2, 16, 64, 1024})
            QVERIFY(KTSpaceMagnitude::createFromHumanReadable(magnitude(value).humanReadableName())
                    == magnitude(value));
        for (const char *const name : {"a4", "Undefiniert", "", "A4 "})
            QVERIFY(KTSpaceMagnitude::createFromHumanReadable(QString::fromLatin1(name)).isNull());
        QCOMPARE(KTSpaceMagnitude::names()->map.size(), 11);
        QCOMPARE(KTSpaceMagnitude::names(), KTSpaceMagnitude::names());
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
        const QFont points = fontOf(10.5, 0);
        const QFont pixels = fontOf(0.0, 15);
        const int highest = std::numeric_limits<int>::max();
        QTest::newRow("points") << points << 128 << 2048 << fontOf(21.0, 0);
        QTest::newRow("pixels") << pixels << 128 << 2048 << fontOf(0.0, 30);
        QTest::newRow("pixels rounded down") << pixels << 2048 << 128 << fontOf(0.0, 7);
        QTest::newRow("same class") << points << 128 << 128 << points;
        QTest::newRow("null") << pixels << 0 << 128 << pixels;
        QTest::newRow("infinite") << points << UNION << 128 << points;
        QTest::newRow("not a number") << pixels << UNION << UNION << pixels;
        QTest::newRow("zero points") << points << 128 << UNION << points;
        QTest::newRow("zero pixels") << pixels << 128 << UNION << pixels;
        QTest::newRow("less than a pixel") << fontOf(0.0, 1) << 2048 << 1 << fontOf(0.0, 1);
        QTest::newRow("too many pixels") << fontOf(0.0, highest) << 128 << 2048 << fontOf(0.0, highest);
        QTest::newRow("too many points") << fontOf(1e308, 0) << 1 << 2048 << fontOf(highest, 0);
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

QTEST_MAIN(tst_KTSpaceMagnitude)
#include "tst_KTSpaceMagnitude.moc"
