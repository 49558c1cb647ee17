#include <KTPageType.h>
#include <KTSpotColor.h>

#include "KTTestSupport.h"

#include <QtTest>

class tst_KTPageType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsAndWritesKeywords_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("bits");
        const auto row = [](const char *text, int value, const char *written, const char *bits) {
            QTest::newRow(*text ? text : "empty")
                << QString::fromLatin1(text) << value << QString::fromLatin1(written)
                << QString::fromLatin1(bits);
        };
        row("Content", 0x8, "normalpage", "normalpage");
        row("CalenderCoverFront", 0x40, "calendarcoverfront", "calendarcoverfront");
        row("normaladvdoorback", 0x408, "normaladvdoorback", "normalpage, ");
        row("slipcasecover", 0xc0000, "slipcasecover", "slipcasefrontcover, slipcasebackcover");
        row("cover", 0xf03e1, "cover",
            "spine, fullcover, calendarcoverfront, calendarcoverback, cromolinen, leather, slipcasespine, "
            "slipcaseemptyspine, slipcasefrontcover, slipcasebackcover");
        row("all", 0xf03f9, "all",
            "spine, normalpage, emptypage, fullcover, calendarcoverfront, calendarcoverback, cromolinen, "
            "leather, slipcasespine, slipcaseemptyspine, slipcasefrontcover, slipcasebackcover");
        row("spine,bock", 0x1, "spine", "spine");
        row("bock", 0, "", "");
        row("", 0, "", "");
    }
    void readsAndWritesKeywords()
    {
        QFETCH(QString, text);
        KTPageType pageType(text);
        QTEST(int(pageType.value()), "value");
        QTEST(pageType.encode(), "written");
        QTEST(pageType.encodeCSV(), "bits");
        QCOMPARE(pageType.isValid(), pageType.value() != 0);
        QCOMPARE(&pageType.expandToKeyword(u"cardfront, duplexcard"_s), &pageType);
        QCOMPARE(int(pageType.value()), KTPageType(text).value() | 0x1002);
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
        QTest::newRow("leather") << 0x200 << u"+-+--+"_s;
        QTest::newRow("linen full cover") << 0x120 << u"+-+--+"_s;
    }
    void allowsSpotColors()
    {
        QFETCH(int, value);
        const KTPageType pageType(static_cast<KTPageTypeEnum>(value));
        QString allowed;
        for (const char *const colors : {"", "1", "2", "16", "1 16", "3"}) {
            QList<KTSpotColor> list;
            for (const QString &color : QString::fromLatin1(colors).split(u' ', Qt::SkipEmptyParts))
                list.append(static_cast<KTSpotColorEnum>(color.toInt()));
            allowed.append(pageType.isSpotColorAllowed(list) ? u'+' : u'-');
        }
        QTEST(allowed, "allowed");
    }

    void knowsItsRules_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("productionRendering");
        QTest::addColumn<quint32>("rendering");
        QTest::addColumn<int>("orderPageNumber");
        QTest::addColumn<int>("acceptTemplate");
        QTest::addColumn<int>("acceptFoto");
        const auto row = [](const char *name, int value, int productionRendering, quint32 rendering,
                            int orderPageNumber, int acceptTemplate, int acceptFoto) {
            QTest::newRow(name) << value << productionRendering << rendering << orderPageNumber
                                << acceptTemplate << acceptFoto;
        };
        row("none", 0, 1, 0x1c00, -1, 0, 3);
        row("spine", 0x1, 1, 0x80001e00, 0, 7, 3);
        row("card front", 0x2, 1, 0x1c00, -1, 7, 3);
        row("normal card front", 0xa, 0, 0x1e00, -1, 3, 3);
        row("empty page", 0x10, 2, 0, -1, 0, 0);
        row("calendar front", 0x40, 0, 0x1e00, 1, 3, 3);
        row("calendar back", 0x80, 2, 0, 1, 0, 0);
        row("leather", 0x200, 1, 0, 0, 7, 0);
        row("slipcase spine", 0x10000, 0, 0x1c00, 2, 7, 3);
        row("slipcase empty spine", 0x20000, 2, 0x1c00, -1, 7, 3);
        row("slipcase back", 0x80000, 0, 0x1c00, 1, 7, 3);
        row("slipcase cover", 0xc0000, 1, 0x1c00, -1, 7, 3);
        row("cover", 0xf03e1, 1, 0x1c00, 0, 7, 3);
        row("normal page with spine", 0x9, 1, 0x1c00, 0, 7, 3);
        row("normal page both ways", 0xe, 1, 0x1c00, -1, 7, 3);
        row("advent door", 0x408, 1, 0x1c00, -1, 7, 3);
    }
    void knowsItsRules()
    {
        QFETCH(int, value);
        const KTPageType pageType(static_cast<KTPageTypeEnum>(value));
        QTEST(pageType.productionRenderingRule(), "productionRendering");
        QTEST(pageType.renderingRule(), "rendering");
        QTEST(pageType.explicitOrderPageNumber(), "orderPageNumber");
        QTEST(pageType.acceptTemplateRule(), "acceptTemplate");
        QTEST(pageType.acceptFotoRule(), "acceptFoto");
    }
};

QTEST_APPLESS_MAIN(tst_KTPageType)
#include "tst_KTPageType.moc"
