#include <KTPageAlignment.h>
#include <KTProductArrangement.h>

#include "KTTestSupport.h"

#include <QtTest>

class tst_KTPageAlignment : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsKeywords()
    {
        for (const char *const text : {"left", "LeftPage", "cover", "coverpage", "bock", ""})
            QCOMPARE(int(KTPageAlignment(QString::fromLatin1(text)).value()), 1);
        QCOMPARE(KTPageAlignment(u"rightpage"_s).encode(), u"right"_s);
        QCOMPARE(int(KTPageAlignment(u"right,"_s).value()), 3);
        QCOMPARE(KTPageAlignment(static_cast<KTPageAlignmentEnum>(127)).encodeCSV(),
                 u"left, right, middle, fullpage, top, bottom, center"_s);
        QVERIFY(KTPageAlignment().encode().isEmpty());
        QCOMPARE(KTProductArrangement(static_cast<KTProductArrangementEnum>(63)).encodeCSV(),
                 u"trivial, , gift, card, photobook, calendar"_s);
    }

    void namesProductionFiles_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("apart");
        QTest::addColumn<QString>("together");
        const QString path = u"/out/a.pDf.d/b.PDF"_s;
        QTest::newRow("left") << 1 << path << u"/out/a_left.pdf.d/b_left.pdf"_s
                              << u"/out/a_center.pdf.d/b_center.pdf"_s;
        QTest::newRow("right") << 2 << u"b.pdf"_s << u"b_right.pdf"_s << u"b_center.pdf"_s;
        QTest::newRow("union") << 3 << u"b.pdf"_s << u"b_center.pdf"_s << u"b_center.pdf"_s;
        QTest::newRow("bottom") << 32 << u"b.pdf"_s << u"b_center.pdf"_s << u"b_center.pdf"_s;
        QTest::newRow("other ending") << 1 << u"bpdf"_s << u"bpdf"_s << u"bpdf"_s;
        QTest::newRow("empty path") << 1 << u""_s << u""_s << u""_s;
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
        QStringList places;
        for (int value = 1; value <= 64; value *= 2)
            places.append(KTPageAlignment(static_cast<KTPageAlignmentEnum>(value)).describe());
        QCOMPARE(places.join(u'|'),
                 u"links|rechts|auf dem Buchr\u00fccken|auf dieser Seite|oben|unten|mittig"_s);
        for (const int value : {0, 3, 128})
            QVERIFY(KTPageAlignment(static_cast<KTPageAlignmentEnum>(value)).describe().isNull());
    }
};

QTEST_APPLESS_MAIN(tst_KTPageAlignment)
#include "tst_KTPageAlignment.moc"
