#include <KTKeywordMap.h>

#include "KTTestSupport.h"

#include <QHash>
#include <QRandomGenerator>

#include <algorithm>
#include <iterator>

enum KTSampleEnum : qint64 {};

namespace {

// The neighbours of the letters, and units that a careless lower-casing takes for one another.
const QString UNITS = u"aAbkzZ@[`{_ 0\u00c4\u00e4\u0130\u0141\u0161\u212a\ua0c1\ua0e1"_s;

QChar randomUnit(QRandomGenerator *random)
{
    return UNITS.at(random->bounded(UNITS.size()));
}

bool isAscii(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit <= u'\x7f'; });
}

} // namespace

class tst_KTKeywordMap : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void takesItsOwnEntries()
    {
        KTKeywordMap<KTSampleEnum, QString> map;
        map.insert(KTSampleEnum(0), QString(8, u'x'));
        for (int i = 1; i < 100; ++i)
            map.insert(KTSampleEnum(i), *map.begin());
        QCOMPARE(map.value(KTSampleEnum(99)), QString(8, u'x'));
    }

    void readsAsQHash()
    {
        QRandomGenerator random(54);
        KTKeywordMap<QString, int> map;
        QHash<QString, int> model;
        QStringList order;
        KTKeywordMap<KTSampleEnum, int> numbers;
        QHash<qint64, int> numberModel;
        QVERIFY(!map.contains(QString()) && map.isEmpty());
        for (int round = 0; round < 20000; ++round) {
            // A text of the map with one unit changed, so that many texts differ in one place only.
            QString text = order.value(random.bounded(order.size() + 1));
            if (text.isEmpty() || random.bounded(20) == 0)
                text = QString(random.bounded(14), randomUnit(&random));
            else
                text[random.bounded(text.size())] = randomUnit(&random);

            const QString lower = text.toLower();
            const auto *const entry = map.entryOf(KTKeywordText(text));
            QCOMPARE(entry != nullptr, isAscii(text) && model.contains(lower));
            QVERIFY(!entry || (entry->key == lower && entry->value == model.value(lower)));
            QCOMPARE(KTKeywordText(text).isAscii(), isAscii(text));
            QCOMPARE(map.value(text, -1), model.value(text, -1));

            const qint64 number = qint64(random.generate64()) >> random.bounded(64);
            QCOMPARE(numbers.value(KTSampleEnum(number), -1), numberModel.value(number, -1));
            if (round % 8 == 0) {
                numbers.insert(KTSampleEnum(number), round);
                numberModel.insert(number, round);
                if (!model.contains(lower))
                    order.append(lower);
                map.insert(lower, round % 100);
                model.insert(lower, round % 100);
            }
        }
        QCOMPARE(map.size(), model.size());
        QCOMPARE(QStringList(map.keys()), order);
        QList<int> values;
        for (auto entry = map.begin(); entry != map.end(); ++entry) {
            QCOMPARE(*entry, model.value(entry.key(), -1));
            QVERIFY(map.find(entry.key()) == entry && map[entry.key()] == entry.value());
            values.append(*entry);
        }
        QCOMPARE(map.values(), values);
        const std::pair<QString, int> second = *std::next(map.keyValueBegin());
        QVERIFY(second.first == order.at(1) && second.second == values.at(1));
        const QString missing(99, u'x');
        QVERIFY(map.find(missing) == map.end() && map.count(missing) == 0 && map.key(-1, missing) == missing);
        QCOMPARE(numbers.size(), numberModel.size());
        const auto isOther = [&model](const QString &key) { return model.value(key) != 8; };
        order.erase(std::remove_if(order.begin(), order.end(), isOther), order.end());
        QCOMPARE(QStringList(map.keys(8)), order);
        QCOMPARE(map.key(8), order.first());
        QVERIFY2(order.size() > 1, "the keys of one value are several");
    }
};

QTEST_APPLESS_MAIN(tst_KTKeywordMap)
#include "tst_KTKeywordMap.moc"
