#include <KTCoverType.h>

#include "KTClassificationTest.h"

class tst_KTCoverType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void knowsItsTexts()
    {
        const auto texts = [](const QString &text) {
            const KTCoverType coverType(text);
            return KTTest::text(qint64(coverType.value()), coverType.encode(), coverType.humanReadableName(),
                                coverType.toolTip());
        };
        KTTest::check(
            texts,
            {" hArd  -> 1|HARDCOVER|Hardcover|"
             "Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.\nDas Cover ist vollständig "
             "gestaltbar.",
             "wall_calendar -> 32|CALENDAR_SIMPLEX|Kalender einseitig|"
             "Einseitig bedruckte Kalender eignen sich besonders zum Aufhängen,\nda die leere Seite zur Wand "
             "zeigt, und daher nicht gesehen werden kann.",
             "calendar_annual_simplex -> 128|CALENDAR_ONE_PAGE|1-Seiten-Kalender|"
             "Ein großformatiger Einseitig bedruckter Jahreskalender gibt übersicht über das gesamte "
             "Kalenderjahr.\nAlles auf einen Blick.",
             "cromo -> 4|CROMOLINEN|Leinen|"
             "Der hochwertige Leinen-Einband ist in verschiedenen Farben erhältlich.\nDas Cover kann nur mit "
             "veredelten Elementen gestaltet werden.",
             "tacked -> 16|BOOKLET|Heft|"
             "Individuell gestaltbarer flexibler Einband mit Rückstichbindung.",
             "wire-o -> 2147483648|wire-o|Kunststoff-Spiralbindung|unbekannter Bindungstyp",
             "canvas -> 4096|canvas||unbekannter Bindungstyp",
             "calender_advent_photo -> 16777216|calender_advent_photo||unbekannter Bindungstyp",
             "ceramics -> 33554432|ceramics|unbekannter Bindungstyp|unbekannter Bindungstyp",
             "hard,soft -> 3||unbekannter Bindungstyp|unbekannter Bindungstyp",
             "calendar_advent_photo -> 0||unbekannter Bindungstyp|unbekannter Bindungstyp",
             " -> 0||unbekannter Bindungstyp|unbekannter Bindungstyp"});
    }

    void readsNames()
    {
        const auto read
            = [](const QString &name) { return qint64(KTCoverType::createFromHumanReadable(name).value()); };
        KTTest::check(read,
                      {"Leder -> 8", "2-Seiten-Jahresplaner -> 256", " -> 512", "leder -> 0",
                       "unbekannter Bindungstyp -> 0"});
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
