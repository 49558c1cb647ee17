#include <KTPageAlignment.h>
#include <KTProductArrangement.h>

#include "KTClassificationTest.h"

class tst_KTPageAlignment : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsKeywords()
    {
        KTTest::check(KTTest::readKeywords<KTPageAlignment>,
                      {"left -> 1|left|left", "LeftPage -> 1|left|left", "cover -> 1|left|left",
                       "coverpage -> 1|left|left", "bock -> 1|left|left", " -> 1|left|left",
                       "rightpage -> 2|right|right", "right, -> 3||left, right"});
        QCOMPARE(KTTest::withBits<KTPageAlignment>(127).encodeCSV(),
                 u"left, right, middle, fullpage, top, bottom, center"_s);
        QVERIFY(KTPageAlignment().encode().isEmpty());
        QCOMPARE(KTTest::withBits<KTProductArrangement>(63).encodeCSV(),
                 u"trivial, , gift, card, photobook, calendar"_s);
    }

    void namesProductionFiles()
    {
        // The path for pages apart and together, after the bits and the path.
        const auto paths = [](const QString &input) {
            const auto alignment = KTTest::withBits<KTPageAlignment>(input.section(u' ', 0, 0).toInt());
            const QString path = input.section(u' ', 1);
            return KTTest::text(alignment.modifyProductionPath(path, true),
                                alignment.modifyProductionPath(path, false));
        };
        KTTest::check(
            paths,
            {"1 /out/a.pDf.d/b.PDF -> /out/a_left.pdf.d/b_left.pdf|/out/a_center.pdf.d/b_center.pdf",
             "2 b.pdf -> b_right.pdf|b_center.pdf", "3 b.pdf -> b_center.pdf|b_center.pdf",
             "32 b.pdf -> b_center.pdf|b_center.pdf", "1 bpdf -> bpdf|bpdf", "1  -> |"});
    }

    void describesPlaces()
    {
        const auto describe = [](int bits) { return KTTest::withBits<KTPageAlignment>(bits).describe(); };
        QCOMPARE(KTTest::each<int>({1, 2, 4, 8, 16, 32, 64, 0, 3, 128}, describe),
                 u"links rechts auf dem Buchr\u00fccken auf dieser Seite oben unten mittig   "_s);
        QVERIFY(describe(0).isNull());
    }
};

QTEST_APPLESS_MAIN(tst_KTPageAlignment)
#include "tst_KTPageAlignment.moc"
