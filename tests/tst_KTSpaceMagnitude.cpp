#include <KTOrientation.h>
#include <KTSpaceMagnitude.h>

#include "KTClassificationTest.h"
#include "KTMessageRecorder.h"

#include <QFont>

#include <climits>
#include <cmath>
#include <limits>

namespace {

constexpr int UNION = 192;

const auto magnitude = &KTTest::withBits<KTSpaceMagnitude>;

/** A font of that many points, or of that many pixels. */
QFont fontOf(double pointSize, int pixelSize = 0)
{
    QFont font;
    pixelSize > 0 ? font.setPixelSize(pixelSize) : font.setPointSizeF(pointSize);
    return font;
}

} // namespace

class tst_KTSpaceMagnitude : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void classifiesAreas()
    {
        const auto classOf
            = [](int area) { return int(KTSpaceMagnitude::fromSquareCentimeters(area).value()); };
        int value = 1;
        for (const int area : {100, 175, 204, 220, 295, 355, 512, 762, 950, 1900, 2100}) {
            QCOMPARE(classOf(area), value);
            value *= 2;
            QCOMPARE(classOf(area + 1), value);
        }
        QCOMPARE(classOf(INT_MIN), 1);
        QCOMPARE(classOf(INT_MAX), 2048);
    }

    void estimates()
    {
        const auto estimate
            = [](double sizes) { return int(KTSpaceMagnitude::estimateByAreaSizes(sizes).value()); };
        // The area of 100.9 is cut off; what is no size at all fills a page with one image or none.
        KTTest::check<double>(estimate,
                              {"0 -> 0", "-0 -> 0", "0.1 -> 32", "0.2974 -> 1", "-0.1 -> 1", "inf -> 1",
                               "nan -> 1", "1e-300 -> 2048"});
    }

    void knowsItsFacts()
    {
        const auto facts = [](int value) {
            const KTSpaceMagnitude one = magnitude(value);
            const double portrait = one.optimumFotosPerPage(KTOrientationPortraitSlim);
            const double square = one.optimumFotosPerPage(KTOrientationSquare);
            const bool areSame = portrait == one.optimumFotosPerPage(KTOrientation(u"portrait,square"_s))
                && square == one.optimumFotosPerPage(KTOrientationLandscape);
            return KTTest::text(one.humanReadableName(), one.normativeSize(),
                                one.maxReasonableImagesPerPage(), one.suitableFontSizeInPoints(), portrait,
                                square, areSame);
        };
        KTTest::checkTable<int>(u"magnitudes.tsv"_s, facts);
    }

    void readsNames()
    {
        for (const int value : {2, 16, 64, 1024})
            QVERIFY(KTSpaceMagnitude::createFromHumanReadable(magnitude(value).humanReadableName())
                    == magnitude(value));
        for (const char *const name : {"a4", "Undefiniert", "", "A4 "})
            QVERIFY(KTSpaceMagnitude::createFromHumanReadable(QString::fromLatin1(name)).isNull());
        QCOMPARE(KTTest::text(KTSpaceMagnitude(u"bock"_s)), u"KTSpaceMagnitude: any"_s);
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
        const KTTest::Rows<QFont, int, int, QFont> row;
        const QFont points = fontOf(10.5);
        const QFont pixels = fontOf(0, 15);
        row("points", points, 128, 2048, fontOf(21));
        row("pixels rounded down", pixels, 2048, 128, fontOf(0, 7));
        row("infinite", points, UNION, 128, points);
        row("not a number", pixels, UNION, UNION, pixels);
        row("zero points", points, 128, UNION, points);
        row("zero pixels", pixels, 128, UNION, pixels);
        row("too many pixels", fontOf(0, INT_MAX), 128, 2048, fontOf(0, INT_MAX));
        row("too many points", fontOf(1e308), 1, 2048, fontOf(INT_MAX));
    }
    void adaptsFonts()
    {
        const auto [font, from, to, adapted] = KTTest::row<QFont, int, int, QFont>();
        const KTMessageRecorder recorder;
        QCOMPARE(magnitude(from).adaptFont(font, magnitude(to)), adapted);
        QVERIFY(recorder.messages().isEmpty());
    }
};

// Without an application, whose platform plug-in leaks; only measuring fonts would need one.
QTEST_APPLESS_MAIN(tst_KTSpaceMagnitude)
#include "tst_KTSpaceMagnitude.moc"
