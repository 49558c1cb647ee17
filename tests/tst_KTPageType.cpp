#include <KTPageType.h>
#include <KTSpotColor.h>

#include "KTTestSupport.h"

#include <QtTest>

class tst_KTPageType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void expandsToKeywords()
    {
        KTPageType pageType(KTPageTypeSpine);
        QCOMPARE(&pageType.expandToKeyword(u"cardfront, bock, duplexcard"_s), &pageType);
        QCOMPARE(int(pageType.value()), 0x1003);
    }

    void allowsSpotColors_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("allowed");
        // Of: no colour, gloss, gold, silver ink, gloss and silver ink, gloss or gold as one colour.
        QTest::newRow("normal page") << 0x8 << u"---++-"_s;
        QTest::newRow("card front") << 0x2 << u"++++++"_s;
        QTest::newRow("card back") << 0x4 << u"---++-"_s;
        QTest::newRow("full cover") << 0x20 << u"++++++"_s;
        QTest::newRow("linen") << 0x100 << u"+-+--+"_s;
        QTest::newRow("leather full cover") << 0x220 << u"+-+--+"_s;
    }
    void allowsSpotColors()
    {
        QFETCH(int, value);
        const KTPageType pageType(static_cast<KTPageTypeEnum>(value));
        QString allowed;
        for (const QList<int> &colors : {
                 QList<int>(), {1 },
                  {2 },
                  {16},
                  {1,  16},
                  {3 }
        }) {
            QList<KTSpotColor> list;
            for (const int color : colors)
                list.append(static_cast<KTSpotColorEnum>(color));
            allowed.append(pageType.isSpotColorAllowed(list) ? u'+' : u'-');
        }
        QTEST(allowed, "allowed");
    }

    void knowsItsRules_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("rules");
        QTest::newRow("none") << 0 << u"1 1c00 -1 0 3"_s;
        QTest::newRow("spine") << 0x1 << u"1 80001e00 0 7 3"_s;
        QTest::newRow("card front") << 0x2 << u"1 1c00 -1 7 3"_s;
        QTest::newRow("normal card front") << 0xa << u"0 1e00 -1 3 3"_s;
        QTest::newRow("empty page") << 0x10 << u"2 0 -1 0 0"_s;
        QTest::newRow("calendar front") << 0x40 << u"0 1e00 1 3 3"_s;
        QTest::newRow("calendar back") << 0x80 << u"2 0 1 0 0"_s;
        QTest::newRow("leather") << 0x200 << u"1 0 0 7 0"_s;
        QTest::newRow("slipcase spine") << 0x10000 << u"0 1c00 2 7 3"_s;
        QTest::newRow("slipcase empty spine") << 0x20000 << u"2 1c00 -1 7 3"_s;
        QTest::newRow("slipcase back") << 0x80000 << u"0 1c00 1 7 3"_s;
        QTest::newRow("slipcase cover") << 0xc0000 << u"1 1c00 -1 7 3"_s;
        QTest::newRow("cover") << 0xf03e1 << u"1 1c00 0 7 3"_s;
        QTest::newRow("normal page with spine") << 0x9 << u"1 1c00 0 7 3"_s;
        QTest::newRow("normal page both ways") << 0xe << u"1 1c00 -1 7 3"_s;
    }
    void knowsItsRules()
    {
        QFETCH(int, value);
        const KTPageType pageType(static_cast<KTPageTypeEnum>(value));
        const QString rules = u"%1 %2 %3 %4 %5"_s.arg(pageType.productionRenderingRule())
                                  .arg(pageType.renderingRule(), 0, 16)
                                  .arg(pageType.explicitOrderPageNumber())
                                  .arg(pageType.acceptTemplateRule())
                                  .arg(pageType.acceptFotoRule());
        QTEST(rules, "rules");
    }
};

QTEST_APPLESS_MAIN(tst_KTPageType)
#include "tst_KTPageType.moc"
