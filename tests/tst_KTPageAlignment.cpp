#include <KTPageAlignment.h>

#include "KTTestSupport.h"

#include <QtTest>

class tst_KTPageAlignment : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void namesProductionFiles_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("apart");
        QTest::addColumn<QString>("together");
        QTest::newRow("left") << 1 << u"a.pDf.d/b.PDF"_s << u"a_left.pdf.d/b_left.pdf"_s
                              << u"a_center.pdf.d/b_center.pdf"_s;
        QTest::newRow("right") << 2 << u"b.pdf"_s << u"b_right.pdf"_s << u"b_center.pdf"_s;
        QTest::newRow("union") << 3 << u"b.pdf"_s << u"b_center.pdf"_s << u"b_center.pdf"_s;
        QTest::newRow("bottom") << 32 << u"b.pdf"_s << u"b_center.pdf"_s << u"b_center.pdf"_s;
        QTest::newRow("other ending") << 1 << u"bpdf"_s << u"bpdf"_s << u"bpdf"_s;
        QTest::newRow("empty path") << 1 << QString() << QString() << QString();
    }
    void namesProductionFiles()
    {
        QFETCH(int, value);
        QFETCH(QString, path);
        const KTPageAlignment alignment(static_cast<KTPageAlignmentEnum>(value));
        QTEST(alignment.modifyProductionPath(path, true), "apart");
        QTEST(alignment.modifyProductionPath(path, false), "together");
    }

    void describesPlaces()
    {
        QString places;
        for (int value = 1; value <= 64; value *= 2)
            places += KTPageAlignment(static_cast<KTPageAlignmentEnum>(value)).describe() + u'|';
        QCOMPARE(places, u"links|rechts|auf dem Buchr\u00fccken|auf dieser Seite|oben|unten|mittig|"_s);
        for (const int value : {0, 3, 128})
            QVERIFY(KTPageAlignment(static_cast<KTPageAlignmentEnum>(value)).describe().isNull());
    }
};

QTEST_APPLESS_MAIN(tst_KTPageAlignment)
#include "tst_KTPageAlignment.moc"
