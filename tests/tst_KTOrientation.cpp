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
        QTest::addColumn<QSizeF>("size");
        QTest::addColumn<int>("value");
        QTest::newRow("slim landscape") << QSizeF(100.0, 50.0) << 16;
        QTest::newRow("below slim landscape") << QSizeF(99.9, 50.0) << 2;
        QTest::newRow("slim portrait") << QSizeF(50.0, 100.0) << 8;
        QTest::newRow("above slim portrait") << QSizeF(50.1, 100.0) << 1;
        QTest::newRow("portrait") << QSizeF(90.0, 100.0) << 1;
        QTest::newRow("above portrait") << QSizeF(90.1, 100.0) << 4;
        QTest::newRow("square") << QSizeF(110.0, 100.0) << 4;
        QTest::newRow("above square") << QSizeF(110.1, 100.0) << 2;
        QTest::newRow("nothing") << QSizeF(0.0, 0.0) << 0;
        QTest::newRow("no height") << QSizeF(10.0, 0.0) << 16;
        QTest::newRow("no width") << QSizeF(0.0, 10.0) << 8;
        QTest::newRow("negative width") << QSizeF(-10.0, 10.0) << 0;
        QTest::newRow("negative height") << QSizeF(10.0, -10.0) << 0;
        QTest::newRow("not a number") << QSizeF(std::numeric_limits<double>::quiet_NaN(), 10.0) << 2;
    }
    void derivesFromSize()
    {
        QFETCH(QSizeF, size);
        QTEST(int(KTOrientation(KTOrientationSquare).fromSize(size)), "value");
        QTEST(int(KTOrientation(size).value()), "value");
        QTEST(int(KTOrientation::createFromSize(size).value()), "value");
        QTEST(int(KTOrientation(u"bock"_s, size).value()), "value");
        QCOMPARE(KTOrientation(u"Quadratic"_s, size).value(), KTOrientationSquare);
    }

    void answersFormatQuestions_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("dlp");
        QTest::addColumn<QPoint>("folds");
        QTest::addColumn<double>("ratio");
        QTest::addColumn<QString>("adjective");
        const QPoint portrait(53, -54);
        const QPoint landscape(40, -41);
        QTest::newRow("none") << 0 << u"portrait"_s << portrait << 1.0 << QString();
        QTest::newRow("portrait") << 1 << u"portrait"_s << portrait << 0.666666 << u"Hochkant-"_s;
        QTest::newRow("slim portrait") << 8 << u"portrait"_s << portrait << 0.5 << u"schlanke Hochkant-"_s;
        QTest::newRow("both portraits") << 9 << u"portrait"_s << portrait << 1.0 << QString();
        QTest::newRow("all") << 31 << u"portrait"_s << portrait << 1.0 << QString();
        QTest::newRow("landscape") << 2 << u"landscape"_s << landscape << 1.5 << u"Panorama-"_s;
        QTest::newRow("slim landscape")
            << 16 << u"landscape"_s << landscape << 2.0 << u"schlanke Panorama-"_s;
        QTest::newRow("both landscapes") << 18 << u"landscape"_s << landscape << 1.0 << QString();
        QTest::newRow("square") << 4 << u"square"_s << QPoint(44, -45) << 1.0 << u"quadratische "_s;
        QTest::newRow("mixture") << 3 << u"portrait"_s << QPoint() << 1.0 << QString();
        QTest::newRow("slim ones") << 24 << u"portrait"_s << QPoint() << 1.0 << QString();
        QTest::newRow("unknown bit") << 33 << u"portrait"_s << QPoint() << 1.0 << QString();
    }
    void answersFormatQuestions()
    {
        QFETCH(int, value);
        QFETCH(QString, adjective);
        const KTOrientation orientation(static_cast<KTOrientationEnum>(value));
        QTEST(orientation.encodeForDLP(), "dlp");
        QTEST(QPoint(orientation.foldMargin(1000), orientation.foldMargin(-1000)), "folds");
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
        QCOMPARE(KTOrientation::createFromPageTilt(-0.0).value(), KTOrientationLandscape);
        QCOMPARE(KTOrientation::createFromPageTilt(90).value(), KTOrientationPortrait);
    }

    void writesTemplate()
    {
        QDomElement element = KTTest::element(u"<t/>"_s);
        KTOrientation(KTOrientationAll).toTemplates2Format(element);
        KTOrientation().toTemplates2Format(element);
        QVERIFY(element.firstChild().isNull());
        KTOrientation(u"square,landscape_slim"_s).toTemplates2Format(element);
        QCOMPARE(KTTest::xml(element),
                 u"<t><orientation>square</orientation><orientation>landscape_slim</orientation></t>"_s);
    }
};

QTEST_APPLESS_MAIN(tst_KTOrientation)
#include "tst_KTOrientation.moc"
