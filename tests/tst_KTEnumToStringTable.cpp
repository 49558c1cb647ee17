#include <KTEnumToStringTable.h>

#include "KTAllocationCounter.h"
#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

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
    {u"Red"_s,        1  },
    {u"crimson"_s,    1  },
    {u"GREEN"_s,      2  },
    {u"blue"_s,       8  },
    {u"warm"_s,       9  },
    {u"dark green"_s, 64 },
    {u"\u00c4k"_s,    32 },
    {u"i\u0307k"_s,   128},
};
const int UNKNOWN = 16;

/** The rows, "any" written for other values. */
KTEnumToStringTable<KTSampleEnum> sampleTable()
{
    KTEnumToStringTable<KTSampleEnum> table;
    for (const Row &row : ROWS)
        table.insert(row.keyword, static_cast<KTSampleEnum>(row.value));
    table.defaultKeyword = u"any"_s;
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
        QTest::newRow("written keyword") << u"Red"_s << 1;
        QTest::newRow("further keyword, other case") << u"CRIMSON"_s << 1;
        QTest::newRow("blanks around") << u" \t\u00a0\u2003red\n"_s << 1;
        QTest::newRow("blank inside") << u"dark green"_s << 64;
        QTest::newRow("wrong blank inside") << u"dark  green"_s << 16;
        QTest::newRow("union") << u"green, warm"_s << 11;
        QTest::newRow("empty") << QString() << 16;
        QTest::newRow("trailing comma") << u"red,"_s << 17;
        QTest::newRow("two commas") << u"red,,green"_s << 19;
        QTest::newRow("unknown entry") << u"red,violet"_s << 17;
        QTest::newRow("umlaut in capitals") << u"red,\u00e4K"_s << 33;
        QTest::newRow("Kelvin sign is a k") << u"\u00e4\u212a,green"_s << 34;
        QTest::newRow("dotted capital I grows") << u"green,\u0130K"_s << 130;
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
        const QString alphabet = u",,,  \t\u00a0\u2003\u0085RrEeDdGgNnKk\u212a\u0130\u0307iI\u00c4\u00e4"_s
            + QChar(0xd800) + QChar(0xdc00);
        const QStringList words = {u"red"_s, u"GREEN"_s, u"warm"_s, u"\u00c4k"_s, u"I\u0307K"_s};
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
        const QString keyword = u"green"_s;
        const QString list = u" red, CRIMSON,green ,nothing,blue"_s;
        QStringList words;
        for (int i = 0; i < 54; ++i)
            words.append(u"keyword_%1"_s.arg(i));

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
        const QString tail = u" (using default in 12KTSampleEnum )"_s;
        QTest::newRow("unknown") << u"violet"_s << true << QString(u"undecodable: \"violet\""_s + tail);
        QTest::newRow("blanks only") << u"  "_s << true << QString(u"undecodable: \"  \""_s + tail);
        QTest::newRow("not asked to") << u"violet"_s << false << QString();
        QTest::newRow("empty") << u""_s << true << QString();
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
        QCOMPARE(sampleTable().decodeOneElement(u" Crimson "_s, true), KTSampleRed);
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
        table.insert(u"CRIMSON"_s, KTSampleBlue);
        QCOMPARE(table.decode(u"crimson"_s, KTSampleNone), KTSampleBlue);
        QCOMPARE(table.encode(KTSampleRed), u"Red"_s);
        QCOMPARE(table.encode(KTSampleBlue), u"blue"_s);
    }

    void listsKeywords()
    {
        KTEnumToStringTable<KTSampleEnum> table = sampleTable();
        const QStringList reds = {u"crimson"_s, u"red"_s};
        QCOMPARE(table.allPossibleKeywordsOneElement(KTSampleRed), reds);
        QCOMPARE(table.allPossibleKeywords(static_cast<KTSampleEnum>(3)), reds + QStringList(u"green"_s));
        QStringList all;
        for (const Row &row : ROWS)
            all.append(row.keyword.toLower());
        QCOMPARE(table.allKnownKeywords(), all);
    }
};

QTEST_APPLESS_MAIN(tst_KTEnumToStringTable)
#include "tst_KTEnumToStringTable.moc"
