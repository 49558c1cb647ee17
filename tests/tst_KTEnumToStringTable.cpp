#include <KTEnumToStringTable.h>

#include "KTAllocationCounter.h"
#include "KTMessageRecorder.h"
#include "KTTestSupport.h"

#include <QHash>
#include <QRandomGenerator>
#include <QVector>

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
    {u"zero"_s,       0  },
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
    void decodesRandomListsAsTheLiteralAlgorithm()
    {
        const KTEnumToStringTable<KTSampleEnum> table = sampleTable();
        QHash<QString, int> model;
        for (const Row &row : ROWS)
            model.insert(row.keyword.toLower(), row.value);
        const QString alphabet = u",,,  \t\u00a0\u2003\u0085RrEeDdGgNnKk\u212a\u0130\u0307iI\u00c4\u00e4"_s
            + QChar(0xd800) + QChar(0xdc00);
        const QStringList words = {u"red"_s,      u"GREEN"_s,      u"warm"_s,       u"\u00c4k"_s,
                                   u"I\u0307K"_s, u"dark green"_s, u"dark  green"_s};
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

    void tellsUnknownEntries()
    {
        const auto unknown
            = [](const QString &text) { return sampleTable().unknownEntries(text).join(u'/'); };
        KTTest::check(unknown, {"red, Gren ,,WARM,\u00c4K,x y -> Gren//x y", " Red -> "});
        QCOMPARE(sampleTable().unknownEntries(QString()), QStringList {QString()});
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

    void warnsOfUndecodableText()
    {
        const auto table = sampleTable();
        const KTMessageRecorder recorder;
        QCOMPARE(int(table.decodeOneElement(u"violet"_s, false)), UNKNOWN);
        for (const QString &empty : {u""_s, QString()})
            QCOMPARE(int(table.decodeOneElement(empty, true)), UNKNOWN);
        QCOMPARE(table.decodeOneElement(u" Crimson "_s, true), KTSampleRed);
        QVERIFY(recorder.messages().isEmpty());
        for (const QString &text : {u"violet"_s, u"  "_s}) {
            QCOMPARE(int(table.decodeOneElement(text, true)), UNKNOWN);
            const KTMessageRecorder::Message message = recorder.messages().last();
            QCOMPARE(message.text, u"undecodable: \"%1\" (using default in 12KTSampleEnum )"_s.arg(text));
            QVERIFY(message.type == QtWarningMsg && message.line > 0);
            QCOMPARE(
                QByteArray(message.category + ' ' + message.file + ": " + message.function),
                QByteArray(
                    "default libs/KTTemplateClasses/KTEnumToStringTable: "
                    "ENUM KTEnumToStringTable<KTSampleEnum>::decodeOneElement(const QString &, bool) const "
                    "[ENUM = KTSampleEnum]"));
        }
        QCOMPARE(recorder.messages().size(), 2);
    }

    void encodes()
    {
        // As a whole, bit by bit, and for the log.
        const auto encoded = [](int bits) {
            const auto value = static_cast<KTSampleEnum>(bits);
            return KTTest::text(sampleTable().encode(value), sampleTable().encodeCSV(value),
                                sampleTable().debugText(value));
        };
        KTTest::check<int>(encoded,
                           {"1 -> Red|Red|Red", "9 -> warm|Red, blue|warm", "3 -> any|Red, GREEN|Red, GREEN",
                            "13 -> any|Red, any, blue|13", "5 -> any|Red, any|5", "0 -> zero|any|zero",
                            "-2147483648 -> any|any|-2147483648", "1073741824 -> any|any|1073741824"});
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
        QCOMPARE(table.encode(KTSampleRed), u"Red"_s);
        QCOMPARE(table.encode(KTSampleBlue), u"blue"_s);
        const QStringList blues = {u"blue"_s, u"crimson"_s};
        QCOMPARE(table.allPossibleKeywordsOneElement(KTSampleBlue), blues);
        QCOMPARE(table.allPossibleKeywords(static_cast<KTSampleEnum>(9)), QStringList(u"red"_s) + blues);
        QCOMPARE(table.allKnownKeywords().size(), ROWS.size());
    }
};

QTEST_APPLESS_MAIN(tst_KTEnumToStringTable)
#include "tst_KTEnumToStringTable.moc"
