#include <KTEnumToStringTable.h>

#include "KTAllocationCounter.h"
#include "KTMessageRecorder.h"

#include <QHash>
#include <QRandomGenerator>
#include <QVector>
#include <QtTest>

#include <limits>

enum KTSampleEnum : qint32 { KTSampleNone = 0, KTSampleRed = 1, KTSampleGreen = 2, KTSampleBlue = 8 };
enum KTWideSampleEnum : qint64 {};

namespace {

struct Row
{
    QString keyword;
    int value;
};

/** red (also "crimson"), green and blue, "warm" for the union of red and blue. */
const QVector<Row> ROWS = {
    {QStringLiteral("Red"),        1  },
    {QStringLiteral("crimson"),    1  },
    {QStringLiteral("GREEN"),      2  },
    {QStringLiteral("blue"),       8  },
    {QStringLiteral("warm"),       9  },
    {QStringLiteral("dark green"), 64 },
    {QStringLiteral("\u00c4k"),    32 },
    {QStringLiteral("i\u0307k"),   128},
};
const int UNKNOWN = 16;

/** The rows, "any" written for other values. */
KTEnumToStringTable<KTSampleEnum> sampleTable()
{
    KTEnumToStringTable<KTSampleEnum> table;
    for (const Row &row : ROWS)
        table.insert(row.keyword, static_cast<KTSampleEnum>(row.value));
    table.defaultKeyword = QStringLiteral("any");
    table.defaultValue = static_cast<KTSampleEnum>(UNKNOWN);
    return table;
}

/** decodeCSV() in its plainest form, to measure the real one by. */
int literalDecodeCSV(const QHash<QString, int> &model, const QString &text)
{
    int values = 0;
    for (const QString &part : text.split(QLatin1Char(','), Qt::KeepEmptyParts))
        values |= model.value(part.trimmed().toLower(), UNKNOWN);
    return values;
}

} // namespace

class tst_KTEnumToStringTable : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void decodesList_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        QTest::newRow("written keyword") << QStringLiteral("Red") << 1;
        QTest::newRow("further keyword, other case") << QStringLiteral("CRIMSON") << 1;
        QTest::newRow("blanks around") << QStringLiteral(" \t\u00a0\u2003red\n") << 1;
        QTest::newRow("blank inside") << QStringLiteral("dark green") << 64;
        QTest::newRow("wrong blank inside") << QStringLiteral("dark  green") << 16;
        QTest::newRow("union") << QStringLiteral("green, warm") << 11;
        QTest::newRow("empty") << QString() << 16;
        QTest::newRow("trailing comma") << QStringLiteral("red,") << 17;
        QTest::newRow("two commas") << QStringLiteral("red,,green") << 19;
        QTest::newRow("unknown entry") << QStringLiteral("red,violet") << 17;
        QTest::newRow("umlaut in capitals") << QStringLiteral("red,\u00e4K") << 33;
        QTest::newRow("Kelvin sign is a k") << QStringLiteral("\u00e4\u212a,green") << 34;
        QTest::newRow("dotted capital I grows") << QStringLiteral("green,\u0130K") << 130;
    }
    void decodesList()
    {
        QFETCH(QString, text);
        QTEST(static_cast<int>(sampleTable().decodeCSV(text)), "value");
    }

    void decodesRandomListsAsTheLiteralAlgorithm()
    {
        const KTEnumToStringTable<KTSampleEnum> table = sampleTable();
        QHash<QString, int> model;
        for (const Row &row : ROWS)
            model.insert(row.keyword.toLower(), row.value);
        const QString alphabet
            = QStringLiteral(",,,  \t\u00a0\u2003\u0085RrEeDdGgNnKk\u212a\u0130\u0307iI\u00c4\u00e4")
            + QChar(0xd800) + QChar(0xdc00);
        const QStringList words = {QStringLiteral("red"), QStringLiteral("GREEN"), QStringLiteral("warm"),
                                   QStringLiteral("\u00c4k"), QStringLiteral("I\u0307K")};
        QRandomGenerator random(20);
        for (int round = 0; round < 20000; ++round) {
            QString text;
            for (int i = random.bounded(12); i > 0; --i) {
                if (random.bounded(3) == 0)
                    text += words.at(random.bounded(words.size()));
                else
                    text += alphabet.at(random.bounded(alphabet.size()));
            }
            QCOMPARE(static_cast<int>(table.decodeCSV(text)), literalDecodeCSV(model, text));
            QCOMPARE(static_cast<int>(table.decode(text, KTSampleNone)),
                     model.value(text.trimmed().toLower(), KTSampleNone));
        }
    }

    void allocatesOnlyForNewTexts()
    {
        if (!KTAllocationCounter::isAvailable())
            QSKIP("Allocations are not counted under a sanitizer");
        const KTEnumToStringTable<KTSampleEnum> table = sampleTable();
        const QString keyword = QStringLiteral("green");
        const QString list = QStringLiteral(" red, CRIMSON,green ,nothing,blue");
        QStringList words;
        for (int i = 0; i < 54; ++i)
            words.append(QStringLiteral("keyword_%1").arg(i));

        const KTAllocationCounter reading;
        QCOMPARE(table.decode(keyword, KTSampleNone), KTSampleGreen);
        QCOMPARE(static_cast<int>(table.decodeCSV(list)), 27);
        QCOMPARE(table.encode(KTSampleRed).size(), 3);
        QCOMPARE(table.encodeCSV(KTSampleGreen).size(), 5);
        QCOMPARE(reading.allocations(), 0L);
        const KTAllocationCounter writing;
        QCOMPARE(table.encodeCSV(static_cast<KTSampleEnum>(11)).size(), 16);
        QCOMPARE(writing.allocations(), 1L);
        const KTAllocationCounter filling;
        KTEnumToStringTable<KTSampleEnum> filled;
        for (int i = 0; i < words.size(); ++i)
            filled.insert(words.at(i), static_cast<KTSampleEnum>(i));
        QVERIFY(filling.allocations() > 0 && filling.allocations() <= 20);
    }

    void warnsOfUndecodableText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("warn");
        QTest::addColumn<QString>("message");
        const QString tail = QStringLiteral(" (using default in 12KTSampleEnum )");
        QTest::newRow("unknown") << QStringLiteral("violet") << true
                                 << QString(QStringLiteral("undecodable: \"violet\"") + tail);
        QTest::newRow("blanks only") << QStringLiteral("  ") << true
                                     << QString(QStringLiteral("undecodable: \"  \"") + tail);
        QTest::newRow("not asked to") << QStringLiteral("violet") << false << QString();
        QTest::newRow("empty") << QStringLiteral("") << true << QString();
        QTest::newRow("null") << QString() << true << QString();
    }
    void warnsOfUndecodableText()
    {
        QFETCH(QString, text);
        QFETCH(bool, warn);
        QFETCH(QString, message);
        const KTMessageRecorder recorder;
        QCOMPARE(static_cast<int>(sampleTable().decodeOneElement(text, warn)), 16);
        QCOMPARE(recorder.messages().size(), message.isNull() ? 0 : 1);
        if (message.isNull())
            return;
        const KTMessageRecorder::Message &recorded = recorder.messages().constFirst();
        QCOMPARE(recorded.type, QtWarningMsg);
        QCOMPARE(recorded.text, message);
        QCOMPARE(recorded.category, QByteArray("default"));
        QCOMPARE(recorded.file, QByteArray("libs/KTTemplateClasses/KTEnumToStringTable"));
        QCOMPARE(recorded.function,
                 QByteArray(
                     "ENUM KTEnumToStringTable<KTSampleEnum>::decodeOneElement(const QString &, bool) const "
                     "[ENUM = KTSampleEnum]"));
        QVERIFY(recorded.line > 0);
    }

    void decodesKnownElementSilently()
    {
        const KTMessageRecorder recorder;
        QCOMPARE(sampleTable().decodeOneElement(QStringLiteral(" Crimson "), true), KTSampleRed);
        QVERIFY(recorder.messages().isEmpty());
    }

    void encodes_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("whole");
        QTest::addColumn<QString>("bits");
        QTest::newRow("bit") << 1 << "Red"
                             << "Red";
        QTest::newRow("union with a keyword") << 9 << "warm"
                                              << "Red, blue";
        QTest::newRow("union without one") << 3 << "any"
                                           << "Red, GREEN";
        QTest::newRow("bit without keyword") << 5 << "any"
                                             << "Red, any";
        QTest::newRow("null") << 0 << "any"
                              << "any";
        QTest::newRow("sign bit") << std::numeric_limits<int>::min() << "any"
                                  << "any";
        QTest::newRow("highest bit") << (1 << 30) << "any"
                                     << "any";
    }
    void encodes()
    {
        QFETCH(int, value);
        const KTEnumToStringTable<KTSampleEnum> table = sampleTable();
        QTEST(table.encode(static_cast<KTSampleEnum>(value)), "whole");
        QTEST(table.encodeCSV(static_cast<KTSampleEnum>(value)), "bits");
    }

    void splitsBits()
    {
        const KTEnumToStringTable<KTWideSampleEnum> table;
        const auto value = [](qint64 number) { return static_cast<KTWideSampleEnum>(number); };
        const QList<KTWideSampleEnum> bits = {value(1), value(qint64(1) << 31), value(qint64(1) << 62)};
        const auto all = value((qint64(1) << 62) | (qint64(1) << 31) | 1);
        QCOMPARE(table.splitToBitsSorted(all), bits);
        QCOMPARE(table.splitToBits(all), QSet<KTWideSampleEnum>(bits.begin(), bits.end()));
        QVERIFY(table.splitToBitsSorted(value(0)).isEmpty());
        QVERIFY(table.splitToBits(value(-1)).isEmpty());
    }

    void keepsFirstKeywordAndLastValue()
    {
        KTEnumToStringTable<KTSampleEnum> table = sampleTable();
        table.insert(QStringLiteral("CRIMSON"), KTSampleBlue);
        QCOMPARE(table.decode(QStringLiteral("crimson"), KTSampleNone), KTSampleBlue);
        QCOMPARE(table.encode(KTSampleRed), QStringLiteral("Red"));
        QCOMPARE(table.encode(KTSampleBlue), QStringLiteral("blue"));
    }

    void listsKeywords()
    {
        KTEnumToStringTable<KTSampleEnum> table = sampleTable();
        const QStringList reds = {QStringLiteral("crimson"), QStringLiteral("red")};
        QCOMPARE(table.allPossibleKeywordsOneElement(KTSampleRed), reds);
        QCOMPARE(table.allPossibleKeywords(static_cast<KTSampleEnum>(3)),
                 reds + QStringList(QStringLiteral("green")));
        QStringList all;
        for (const Row &row : ROWS)
            all.append(row.keyword.toLower());
        QCOMPARE(table.allKnownKeywords(), all);
    }
};

QTEST_APPLESS_MAIN(tst_KTEnumToStringTable)
#include "tst_KTEnumToStringTable.moc"
