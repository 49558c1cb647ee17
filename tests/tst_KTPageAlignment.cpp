#include <KTPageAlignment.h>
#include <KTProductArrangement.h>

#include <QtTest>

class tst_KTPageAlignment : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsKeywords()
    {
        for (const char *const text : {"left", "LeftPage", "cover", "coverpage", "bock", ""})
            QCOMPARE(int(KTPageAlignment(QString::fromLatin1(text)).value()), 1);
        QCOMPARE(KTPageAlignment(QStringLiteral("rightpage")).encode(), QStringLiteral("right"));
        QCOMPARE(int(KTPageAlignment(QStringLiteral("right,")).value()), 3);
        QCOMPARE(KTPageAlignment(static_cast<KTPageAlignmentEnum>(127)).encodeCSV(),
                 QStringLiteral("left, right, middle, fullpage, top, bottom, center"));
        QVERIFY(KTPageAlignment().encode().isEmpty());
        QCOMPARE(KTProductArrangement(static_cast<KTProductArrangementEnum>(63)).encodeCSV(),
                 QStringLiteral("trivial, , gift, card, photobook, calendar"));
    }

    void namesProductionFiles_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("apart");
        QTest::addColumn<QString>("together");
        const QString path = QStringLiteral("/out/a.pDf.d/b.PDF");
        QTest::newRow("left") << 1 << path << QStringLiteral("/out/a_left.pdf.d/b_left.pdf")
                              << QStringLiteral("/out/a_center.pdf.d/b_center.pdf");
        QTest::newRow("right") << 2 << QStringLiteral("b.pdf") << QStringLiteral("b_right.pdf")
                               << QStringLiteral("b_center.pdf");
        QTest::newRow("union") << 3 << QStringLiteral("b.pdf") << QStringLiteral("b_center.pdf")
                               << QStringLiteral("b_center.pdf");
        QTest::newRow("bottom") << 32 << QStringLiteral("b.pdf") << QStringLiteral("b_center.pdf")
                                << QStringLiteral("b_center.pdf");
        QTest::newRow("other ending")
            << 1 << QStringLiteral("bpdf") << QStringLiteral("bpdf") << QStringLiteral("bpdf");
        QTest::newRow("empty path") << 1 << QStringLiteral("") << QStringLiteral("") << QStringLiteral("");
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
                 QStringLiteral("links|rechts|auf dem Buchr\u00fccken|auf dieser Seite|oben|unten|mittig"));
        for (const int value : {0, 3, 128})
            QVERIFY(KTPageAlignment(static_cast<KTPageAlignmentEnum>(value)).describe().isNull());
    }
};

QTEST_APPLESS_MAIN(tst_KTPageAlignment)
#include "tst_KTPageAlignment.moc"
