#include <KTAngle.h>
#include <KTOrientation.h>

#include "KTClassificationTest.h"
#include "KTTestSupport.h"

#include <QSizeF>
#include <QtTest>

#include <limits>

class tst_KTOrientation : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void derivesFromSize_data()
    {
        QTest::addColumn<double>("width");
        QTest::addColumn<double>("height");
        QTest::addColumn<int>("value");
        QTest::newRow("slim landscape") << 100.0 << 50.0 << 16;
        QTest::newRow("below slim landscape") << 99.9 << 50.0 << 2;
        QTest::newRow("slim portrait") << 50.0 << 100.0 << 8;
        QTest::newRow("above slim portrait") << 50.1 << 100.0 << 1;
        QTest::newRow("portrait") << 90.0 << 100.0 << 1;
        QTest::newRow("above portrait") << 90.1 << 100.0 << 4;
        QTest::newRow("square") << 110.0 << 100.0 << 4;
        QTest::newRow("above square") << 110.1 << 100.0 << 2;
        QTest::newRow("nothing") << 0.0 << 0.0 << 0;
        QTest::newRow("no height") << 10.0 << 0.0 << 16;
        QTest::newRow("no width") << 0.0 << 10.0 << 8;
        QTest::newRow("negative width") << -10.0 << 10.0 << 0;
        QTest::newRow("negative height") << 10.0 << -10.0 << 0;
        QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 10.0 << 2;
    }
    void derivesFromSize()
    {
        QFETCH(double, width);
        QFETCH(double, height);
        const QSizeF size(width, height);
        const KTOrientation square(KTOrientationSquare);
        QTEST(int(square.fromSize(size)), "value");
        QCOMPARE(square.value(), KTOrientationSquare);
        QTEST(int(KTOrientation(size).value()), "value");
        QTEST(int(KTOrientation::createFromSize(size).value()), "value");
        QTEST(int(KTOrientation(u"bock"_s, size).value()), "value");
        QCOMPARE(KTOrientation(u"Quadratic"_s, size).value(), KTOrientationSquare);
    }

    void readsAndWritesKeywords()
    {
        QCOMPARE(KTOrientation(u"landscape_large"_s).encode(), u"landscape"_s);
        QCOMPARE(KTOrientation(u"quadratic"_s).encode(), u"square"_s);
        QCOMPARE(int(KTOrientation(u"all"_s).value()), 31);
        QCOMPARE(KTOrientation().encodeCSV(), u"portrait"_s);
        QCOMPARE(KTOrientation(static_cast<KTOrientationEnum>(6)).encode(), u"portrait"_s);
        QCOMPARE(KTOrientation::createFromPageTilt(-0.0).value(), KTOrientationLandscape);
        QCOMPARE(KTOrientation::createFromPageTilt(90).value(), KTOrientationPortrait);
    }

    void answersFormatQuestions_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("dlp");
        QTest::addColumn<int>("fold");
        QTest::addColumn<int>("negativeFold");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QString>("adjective");
        const auto row = [](const char *name, int value, const char *dlp, int fold, int negativeFold,
                            double ratio, const char *adjective) {
            QTest::newRow(name) << value << QString::fromLatin1(dlp) << fold << negativeFold << ratio
                                << QString::fromLatin1(adjective);
        };
        row("none", 0, "portrait", 53, -54, 1.0, nullptr);
        row("portrait", 1, "portrait", 53, -54, 0.666666, "Hochkant-");
        row("slim portrait", 8, "portrait", 53, -54, 0.5, "schlanke Hochkant-");
        row("both portraits", 9, "portrait", 53, -54, 1.0, nullptr);
        row("all", 31, "portrait", 53, -54, 1.0, nullptr);
        row("landscape", 2, "landscape", 40, -41, 1.5, "Panorama-");
        row("slim landscape", 16, "landscape", 40, -41, 2.0, "schlanke Panorama-");
        row("both landscapes", 18, "landscape", 40, -41, 1.0, nullptr);
        row("square", 4, "square", 44, -45, 1.0, "quadratische ");
        row("mixture", 3, "portrait", 0, 0, 1.0, nullptr);
        row("slim ones", 24, "portrait", 0, 0, 1.0, nullptr);
        row("unknown bit", 33, "portrait", 0, 0, 1.0, nullptr);
    }
    void answersFormatQuestions()
    {
        QFETCH(int, value);
        QFETCH(QString, adjective);
        const KTOrientation orientation(static_cast<KTOrientationEnum>(value));
        QTEST(orientation.encodeForDLP(), "dlp");
        QTEST(orientation.foldMargin(1000), "fold");
        QTEST(orientation.foldMargin(-1000), "negativeFold");
        QTEST(orientation.defaultWidthHeightRatio(), "ratio");
        QCOMPARE(orientation.humanReadable(), adjective);
        QCOMPARE(orientation.humanReadable().isNull(), adjective.isNull());
    }

    void knowsItsFamilies()
    {
        using KTTest::bitsWhere;
        QCOMPARE(bitsWhere<KTOrientation>([](auto format) { return format.isPortrait(); }), 9);
        QCOMPARE(bitsWhere<KTOrientation>([](auto format) { return format.isLandscape(); }), 18);
        QCOMPARE(bitsWhere<KTOrientation>([](auto format) { return format.isQuadratic(); }), 4);
        QVERIFY(KTOrientation(static_cast<KTOrientationEnum>(24)).isLandscape());
        QCOMPARE(KTOrientation(KTOrientationPortrait).foldMargin(std::numeric_limits<int>::max()), 115231825);
    }

    void writesTemplate()
    {
        QDomElement element = KTTest::element(u"<t/>"_s);
        KTOrientation(KTOrientationAll).toTemplates2Format(element);
        KTOrientation().toTemplates2Format(element);
        QVERIFY(element.firstChild().isNull());
        KTOrientation(static_cast<KTOrientationEnum>(20)).toTemplates2Format(element);
        QCOMPARE(KTTest::xml(element),
                 u"<t><orientation>square</orientation>"
                 "<orientation>landscape_slim</orientation></t>"_s);
    }
};

QTEST_APPLESS_MAIN(tst_KTOrientation)
#include "tst_KTOrientation.moc"
