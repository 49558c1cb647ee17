#include <KTCoverType.h>

#include "KTClassificationTest.h"
#include "KTTestSupport.h"

#include <QtTest>

class tst_KTCoverType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isNamed_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("toolTip");
        const QString unknown = u"unbekannter Bindungstyp"_s;
        QTest::newRow("hard cover")
            << u"hard"_s << u"Hardcover"_s
            << u"Stabiler und individuell gestaltbarer Festeinband mit Klebebindung.\n"
               "Das Cover ist vollst\u00e4ndig gestaltbar."_s;
        QTest::newRow("one page") << u"calendar_one_page"_s << u"1-Seiten-Kalender"_s
                                  << u"Ein gro\u00dfformatiger Einseitig bedruckter Jahreskalender gibt "
                                     "\u00fcbersicht \u00fcber das gesamte Kalenderjahr.\n"
                                     "Alles auf einen Blick."_s;
        QTest::newRow("linen") << u"cromo"_s << u"Leinen"_s
                               << u"Der hochwertige Leinen-Einband ist in verschiedenen Farben "
                                  "erh\u00e4ltlich.\n"
                                  "Das Cover kann nur mit veredelten Elementen gestaltet werden."_s;
        QTest::newRow("highest") << u"wire-o"_s << u"Kunststoff-Spiralbindung"_s << unknown;
        QTest::newRow("empty name") << u"canvas"_s << u""_s << unknown;
        QTest::newRow("without a name") << u"ceramics"_s << unknown << unknown;
        QTest::newRow("union") << u"hard,soft"_s << unknown << unknown;
        QTest::newRow("none") << QString() << unknown << unknown;
    }
    void isNamed()
    {
        QFETCH(QString, text);
        QTEST(KTCoverType(text).humanReadableName(), "name");
        QTEST(KTCoverType(text).toolTip(), "toolTip");
    }

    void readsNames()
    {
        QCOMPARE(int(KTCoverType::createFromHumanReadable(u"2-Seiten-Jahresplaner"_s).value()), 256);
        QCOMPARE(int(KTCoverType::createFromHumanReadable(QString()).value()), 512);
        for (const QString &name : {u"leder"_s, u"unbekannter Bindungstyp"_s})
            QVERIFY(KTCoverType::createFromHumanReadable(name).isNull());
        QCOMPARE(KTCoverType::bindingNames()->map.size(), 31);
        QCOMPARE(KTCoverType::bindingToolTips()->map.size(), 9);
    }

    void groupsTypes()
    {
        using KTTest::bitsWhere;
        QCOMPARE(bitsWhere<KTCoverType>([](auto coverType) { return coverType.isFullCover(); }), 19);
        QCOMPARE(bitsWhere<KTCoverType>([](auto coverType) { return coverType.isSimplex(); }), 1952);
    }
};

QTEST_APPLESS_MAIN(tst_KTCoverType)
#include "tst_KTCoverType.moc"
