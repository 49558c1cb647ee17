#include <KTPriceClass.h>
#include <KTProductTypeList.h>

#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

/** Two different codes of the letters with the same hash. */
QPair<QString, QString> collision(const QString &letters)
{
    QRandomGenerator random(1);
    for (QHash<uint, QString> codes;;) {
        QString code(40, QLatin1Char(' '));
        for (QChar &letter : code)
            letter = letters.at(random.bounded(letters.size()));
        const QString earlier = codes.value(qHash(code, 0), code);
        if (earlier != code)
            return {earlier, code};
        codes.insert(qHash(code, 0), code);
    }
}

} // namespace

class tst_KTProductType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void normalisesCode_data()
    {
        QTest::addColumn<QString>("code");
        QTest::addColumn<QString>("stored");
        const auto row = [](const char *name, const QString &code, const QString &stored) {
            QTest::newRow(name) << code << stored;
        };
        row("album", QStringLiteral("ALB9_30"), QStringLiteral("ALB9"));
        row("second family", QStringLiteral("ALBS12xyz"), QStringLiteral("ALBS12"));
        row("first place", QStringLiteral("A\nXALB3ALBS4\n"), QStringLiteral("ALB3"));
        row("ASCII digits", QStringLiteral("ALB\u0663_ALB1\u0663"), QStringLiteral("ALB1"));
        for (const char *code : {"", "ALB", "ALBX1", "Alb9_30", " ALB9_30", "XALB9_30"})
            row(code, QString::fromLatin1(code), QString::fromLatin1(code));
        const QString surrogate = QStringLiteral("ALB9_") + QChar(0xd800);
        row("lone surrogate", surrogate, surrogate);
    }
    void normalisesCode()
    {
        QFETCH(QString, code);
        QFETCH(QString, stored);
        const KTProductType type(code);
        QCOMPARE(KTProductType::fromPriceClass(code).toString(), stored);
        QCOMPARE(qHash(type, 5u), (stored.isEmpty() ? 0u : qHash(stored, 0)) ^ 5u);
        QCOMPARE(type, KTProductType(stored));
        QCOMPARE(type == KTProductType(QString()), code.isEmpty());
    }

    void knowsCalendars()
    {
        const auto kind = [](const char *code) {
            const KTProductType type(QString::fromLatin1(code));
            return int(type.isCalendar()) + 2 * int(type.isAgenda());
        };
        for (const char *code : {"CAL29", "CAL30"})
            QVERIFY2(kind(code) == 3, code);
        for (const char *code : {"CAL", "CAL3", "CAL290"})
            QVERIFY2(kind(code) == 1, code);
        for (const char *code : {"cal29", " CAL29", "CA", ""})
            QVERIFY2(kind(code) == 0, code);
        QCOMPARE(KTProductType(QString()).orderTxtName(), QStringLiteral("UNKNOWN"));
    }

    void readsElement()
    {
        const auto read = [](const QString &xml) { return KTProductType::fromMcf(KTTest::element(xml)); };
        QCOMPARE(read(QStringLiteral("<p productname='CAL29'/>")).toString(), QStringLiteral("CAL29"));
        QCOMPARE(read(QStringLiteral("<p/>")).toString(), QStringLiteral("ALB9"));
        QVERIFY(read(QStringLiteral("<p productname=''/>")).isUnknown());
    }

    void comparesHashBeforeCode()
    {
        const KTProductType calendar(QStringLiteral("CAL29"));
        for (const char *code : {"cal29", "CAL30", "A", "B", "C", "D"}) {
            const KTProductType type(QString::fromLatin1(code));
            QVERIFY2(type != calendar, code);
            QCOMPARE(type < calendar, type.calcHashValue() < calendar.calcHashValue());
        }
        for (const QString &letters : {QStringLiteral("xX"), QStringLiteral("xy")}) {
            const QPair<QString, QString> codes = collision(letters);
            QCOMPARE(KTProductType(codes.first) == KTProductType(codes.second),
                     letters == QStringLiteral("xX"));
            QCOMPARE(KTProductType(codes.first) < KTProductType(codes.second), codes.first < codes.second);
            QCOMPARE(KTProductType(codes.second) < KTProductType(codes.first), codes.second < codes.first);
        }
    }

    void searchesLists()
    {
        const auto found = [](const char *csv) {
            const auto list = KTProductTypeList::buildFromCSV(QString::fromLatin1(csv));
            return int(list.containsCalendar()) + 2 * int(list.containsAgenda())
                + 4 * int(list.containsNotOnlyCalendars());
        };
        QCOMPARE(found(""), 0);
        QCOMPARE(found("CAL3,CAL1"), 1);
        QCOMPARE(found("CAL3,CAL30"), 3);
        QCOMPARE(found("ALB9,CAL29"), 7);
    }

    void addsWithoutDoubles()
    {
        const KTMessageRecorder recorder;
        KTProductTypeList list(QStringLiteral("B,,B,UNKNOWN").split(QLatin1Char(',')));
        list.addWithoutDoubles(list);
        list.addWithoutDoubles(KTProductTypeList::buildFromCSV(QStringLiteral("ALB9_3, B,,ALB9_2,B")));
        list.addWithoutDoubles(KTProductType(QStringLiteral("UNKNOWN")));
        QVERIFY(recorder.messages().isEmpty());
        QString debug;
        QDebug(&debug) << list;
        QCOMPARE(debug.trimmed(), QStringLiteral("(\"B\", \"B\", \"UNKNOWN\", \"ALB9\", \" B\")"));

        // Refused first of all, so even where the list has one already.
        list.append(KTProductType(QString()));
        list.addWithoutDoubles(KTProductType(QString()));
        QCOMPARE(list.size(), 6);
        QCOMPARE(recorder.messages().size(), 1);
        const KTMessageRecorder::Message message = recorder.messages().first();
        QCOMPARE(message.text, QStringLiteral("there is no \"UNKNOWN\""));
        QCOMPARE(QByteArray::number(message.type) + ' ' + message.category + ' ' + message.file + ':'
                     + QByteArray::number(message.line) + ' ' + message.function,
                 QByteArray("1 default libs/KTProductBase/KTProductTypeList:106 "
                            "void KTProductTypeList::addWithoutDoubles(const KTProductType &)"));
    }
};

QTEST_APPLESS_MAIN(tst_KTProductType)
#include "tst_KTProductType.moc"
