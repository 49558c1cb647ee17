#include <KTPriceClass.h>
#include <KTProductTypeList.h>

#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <QRandomGenerator>
#include <QtTest>

#include <functional>

namespace {

/** Two different codes with the same hash, among those the generator gives. */
QPair<QString, QString> collision(const std::function<QString(QRandomGenerator *)> &generate)
{
    QRandomGenerator random(1);
    QHash<uint, QString> codes;
    for (;;) {
        const QString code = generate(&random);
        const QString earlier = codes.value(qHash(code, 0), code);
        if (earlier != code)
            return {earlier, code};
        codes.insert(qHash(code, 0), code);
    }
}

/** Made before main(), maybe before anything of the library. */
const KTProductType EARLY(QStringLiteral("ALBS7_1"));

} // namespace

class tst_KTProductType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void normalisesCode_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("stored");
        const auto row = [](const char *code, const char *stored) {
            QTest::newRow(code) << QString::fromUtf8(code) << QString::fromUtf8(stored);
        };
        row("ALB9_30", "ALB9");
        row("ALBS12xyz", "ALBS12");
        row("ALBS3-B", "ALBS3");
        row("AXALB3", "ALB3");
        row("ALB_ALBS07ALB2", "ALBS07");
        row("A\nALB4\nx", "ALB4");
        row("ALB", "ALB");
        row("ALBX1", "ALBX1");
        row("Alb9_30", "Alb9_30");
        row(" ALB9_30", " ALB9_30");
        row("XALB9_30", "XALB9_30");
        row("CAL29", "CAL29");
        row("ALB\u0663_30", "ALB\u0663_30");
        row("ALB1\u0663", "ALB1");
        row("", "");
        QTest::newRow("lone surrogate behind")
            << QStringLiteral("ALB9_") + QChar(0xd800) << QStringLiteral("ALB9_") + QChar(0xd800);
    }
    void normalisesCode()
    {
        QFETCH(QString, code);
        QFETCH(QString, stored);
        const KTProductType type(code);
        QCOMPARE(type.toString(), stored);
        QCOMPARE(type.calcHashValue(), stored.isEmpty() ? 0u : qHash(stored, 0));
        QCOMPARE(qHash(type, 5u), type.calcHashValue() ^ 5u);
        QVERIFY(type == KTProductType(stored) && !(type < KTProductType(stored)));
        QCOMPARE(KTProductType::fromPriceClass(code).toString(), stored);
    }

    void knowsCalendars_data()
    {
        QTest::addColumn<bool>("calendar");
        QTest::addColumn<bool>("agenda");
        for (const char *code : {"CAL29", "CAL30"})
            QTest::newRow(code) << true << true;
        for (const char *code : {"CAL", "CAL3", "CAL290", "CAL29 "})
            QTest::newRow(code) << true << false;
        for (const char *code : {"cal29", " CAL29", "CA", "UNKNOWN", ""})
            QTest::newRow(code) << false << false;
    }
    void knowsCalendars()
    {
        const QString code = QString::fromLatin1(QTest::currentDataTag());
        const KTProductType type(code);
        QTEST(type.isCalendar(), "calendar");
        QTEST(type.isAgenda(), "agenda");
        QCOMPARE(type.orderTxtName(), code.isEmpty() ? QStringLiteral("UNKNOWN") : code);
        QCOMPARE(type.isUnknown(), code.isEmpty());
    }

    void readsElement()
    {
        const auto read = [](const char *xml) {
            return KTProductType::fromMcf(KTTest::element(QString::fromLatin1(xml))).toString();
        };
        QCOMPARE(read("<p productname='CAL29'/>"), QStringLiteral("CAL29"));
        QCOMPARE(read("<p/>"), QStringLiteral("ALB9"));
        QCOMPARE(read("<p productname=''/>"), QString());
        QCOMPARE(KTProductType::fromMcf(QDomElement()).toString(), QStringLiteral("ALB9"));
    }

    void comparesHashesFirst()
    {
        QVERIFY(KTProductType(QStringLiteral("CAL29")) != KTProductType(QStringLiteral("cal29")));
        QCOMPARE(EARLY, KTProductType(QStringLiteral("ALBS7")));
        const KTProductType unknown {QString()};
        for (int i = 0; i < 64; ++i) {
            const KTProductType type(QString::number(i));
            QVERIFY(type != unknown);
            QCOMPARE(type < EARLY, type.calcHashValue() < EARLY.calcHashValue());
        }
    }

    void comparesCodesOfTheSameHash_data()
    {
        QTest::addColumn<bool>("caseVariants");
        QTest::newRow("case variants") << true;
        QTest::newRow("different codes") << false;
    }
    void comparesCodesOfTheSameHash()
    {
        QFETCH(bool, caseVariants);
        const QPair<QString, QString> codes = collision([caseVariants](QRandomGenerator *random) {
            QString code(40, QLatin1Char('x'));
            for (QChar &character : code)
                character = QLatin1Char(char("xXyY"[random->bounded(caseVariants ? 2 : 4)]));
            return code;
        });
        const KTProductType first(codes.first);
        const KTProductType second(codes.second);
        QCOMPARE(first == second, caseVariants);
        QCOMPARE(first < second, codes.first < codes.second);
        QCOMPARE(second < first, codes.second < codes.first);
    }

    void listsCodes()
    {
        const KTProductTypeList list
            = KTProductTypeList::buildFromCSV(QStringLiteral("CAL29,,ALB9_30, CAL29,CAL29"));
        const QStringList codes {QStringLiteral("CAL29"), QStringLiteral("ALB9"), QStringLiteral(" CAL29"),
                                 QStringLiteral("CAL29")};
        QCOMPARE(list.toStringList(), codes);
        QCOMPARE(KTProductTypeList(static_cast<QList<KTProductType>>(list)).toStringList(), codes);
        QString debug;
        QDebug(&debug) << list;
        QCOMPARE(debug.trimmed(), QStringLiteral("(\"CAL29\", \"ALB9\", \" CAL29\", \"CAL29\")"));
    }

    void searchesLists_data()
    {
        QTest::addColumn<QString>("found");
        QTest::newRow("") << QString();
        QTest::newRow("CAL3,CAL1") << QStringLiteral("c");
        QTest::newRow("CAL3,CAL30") << QStringLiteral("ac");
        QTest::newRow("CAL29,ALB9") << QStringLiteral("aco");
        QTest::newRow("ALB9") << QStringLiteral("o");
    }
    void searchesLists()
    {
        const KTProductTypeList list
            = KTProductTypeList::buildFromCSV(QString::fromLatin1(QTest::currentDataTag()));
        const auto letter
            = [](bool found, char name) { return found ? QString(QLatin1Char(name)) : QString(); };
        QTEST(letter(list.containsAgenda(), 'a') + letter(list.containsCalendar(), 'c')
                  + letter(list.containsNotOnlyCalendars(), 'o'),
              "found");
    }

    void addsWithoutDoubles()
    {
        const KTMessageRecorder recorder;
        KTProductTypeList list = KTProductTypeList::buildFromCSV(QStringLiteral("CAL1,CAL1,UNKNOWN"));
        list.addWithoutDoubles(list);
        list.addWithoutDoubles(KTProductType(QStringLiteral("UNKNOWN")));
        list.addWithoutDoubles(KTProductTypeList::buildFromCSV(QStringLiteral("B,CAL1,A,B")));
        QCOMPARE(list.toStringList().join(QLatin1Char(' ')), QStringLiteral("CAL1 CAL1 UNKNOWN B A"));
        QVERIFY(recorder.messages().isEmpty());

        // An unknown type is refused even where the list has one already.
        list.append(KTProductType(QString()));
        list.addWithoutDoubles(KTProductType(QString()));
        QCOMPARE(list.size(), 6);
        QCOMPARE(recorder.messages().size(), 1);
        const KTMessageRecorder::Message message = recorder.messages().first();
        QCOMPARE(message.type, QtWarningMsg);
        QCOMPARE(message.text, QStringLiteral("there is no \"UNKNOWN\""));
        QCOMPARE(message.category, QByteArray("default"));
        QCOMPARE(message.file, QByteArray("libs/KTProductBase/KTProductTypeList"));
        QCOMPARE(message.function,
                 QByteArray("void KTProductTypeList::addWithoutDoubles(const KTProductType &)"));
        QCOMPARE(message.line, 106);
    }
};

QTEST_APPLESS_MAIN(tst_KTProductType)
#include "tst_KTProductType.moc"
