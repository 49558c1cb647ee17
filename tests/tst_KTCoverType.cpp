#include <KTCoverType.h>

#include "KTClassificationTest.h"
#include "KTTestSupport.h"

#include <QtTest>

class tst_KTCoverType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void knowsItsTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("value");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("toolTip");
        const auto row
            = [](const char *text, qint64 value, const char *written, const char *name, const char *toolTip) {
                  QTest::newRow(*text ? text : "empty")
                      << QString::fromLatin1(text) << value << QString::fromLatin1(written)
                      << QString::fromUtf8(name) << QString::fromUtf8(toolTip);
              };
        const char *const unknown = "unbekannter Bindungstyp";
        row(" hArd ", 1, "HARDCOVER", "Hardcover",
            "Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.\nDas Cover ist vollständig "
            "gestaltbar.");
        row("wall_calendar", 32, "CALENDAR_SIMPLEX", "Kalender einseitig",
            "Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,\nda die leere Seite zur Wand "
            "zeigt, und daher nicht gesehen werden kann.");
        row("calendar_annual_simplex", 128, "CALENDAR_ONE_PAGE", "1-Seiten-Kalender",
            "Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte "
            "Kalenderjahr.\nAlles auf einen Blick.");
        row("cromo", 4, "CROMOLINEN", "Leinen",
            "Der hochwertige Leinen-Einband ist in verschiedenen Farben erhältlich.\nDas Cover kann nur mit "
            "veredelten Elementen gestaltet werden.");
        row("tacked", 16, "BOOKLET", "Heft",
            "Individuell gestaltbarer flexibler Einband mit Rückstichbindung.");
        row("wire-o", 2147483648, "wire-o", "Kunststoff-Spiralbindung", unknown);
        row("canvas", 4096, "canvas", "", unknown);
        row("calender_advent_photo", 16777216, "calender_advent_photo", "", unknown);
        row("ceramics", 33554432, "ceramics", unknown, unknown);
        row("hard,soft", 3, "", unknown, unknown);
        row("calendar_advent_photo", 0, "", unknown, unknown);
        row("", 0, "", unknown, unknown);
    }
    void knowsItsTexts()
    {
        QFETCH(QString, text);
        const KTCoverType coverType(text);
        QTEST(qint64(coverType.value()), "value");
        QTEST(coverType.encode(), "written");
        QTEST(coverType.humanReadableName(), "name");
        QTEST(coverType.toolTip(), "toolTip");
    }

    void readsNames()
    {
        const auto read = [](const char *name) {
            return qint64(KTCoverType::createFromHumanReadable(QString::fromLatin1(name)).value());
        };
        QCOMPARE(read("Leder"), 8);
        QCOMPARE(read("2-Seiten-Jahresplaner"), 256);
        QCOMPARE(read(""), 512);
        QCOMPARE(read("leder"), 0);
        QCOMPARE(read("unbekannter Bindungstyp"), 0);
        QCOMPARE(KTCoverType::bindingNames()->map.size(), 31);
        QCOMPARE(KTCoverType::bindingToolTips()->map.size(), 9);
    }

    void groupsTypes()
    {
        using KTTest::bitsWhere;
        QCOMPARE(bitsWhere<KTCoverType>([](auto coverType) { return coverType.isFullCover(); }), 19);
        QCOMPARE(bitsWhere<KTCoverType>([](auto coverType) { return coverType.isSimplex(); }), 1952);
        QVERIFY(KTCoverType(u"LEATHER,SOFT"_s).isFullCover());
    }
};

QTEST_APPLESS_MAIN(tst_KTCoverType)
#include "tst_KTCoverType.moc"
