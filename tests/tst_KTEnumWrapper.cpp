#include <KTEnumWrapper.h>

#include "KTTestNeighbour.h"
#include "KTTestSupport.h"

#include <QtTest>

#include <atomic>
#include <limits>
#include <stdexcept>
#include <thread>
#include <vector>

enum KTToyEnum : qint32 { KTToyA = 1, KTToyB = 2, KTToyC = 4 };

/** Counts what goes through the virtual operations and how often the table is filled. */
class KTToy : public KTEnumWrapper<KTToyEnum>
{
public:
    KTToy(int value)
        : KTEnumWrapper(static_cast<KTToyEnum>(value))
    {
    }

    using KTEnumWrapper::exclude;
    using KTEnumWrapper::expandTo;
    KTEnumWrapper &exclude(KTToyEnum other) override
    {
        ++excluded;
        return KTEnumWrapper::exclude(other);
    }
    KTEnumWrapper &expandTo(KTToyEnum other) override
    {
        ++expanded;
        return KTEnumWrapper::expandTo(other);
    }
    void fillTable(KTEnumToStringTable<KTToyEnum> *table) const override
    {
        if (++fillCount == 1)
            throw std::runtime_error("not yet");
        table->insert(u"a"_s, KTToyA);
        table->insert(u"b"_s, KTToyB);
    }

    int excluded = 0;
    int expanded = 0;
    static std::atomic<int> fillCount;
};

std::atomic<int> KTToy::fillCount {0};

class tst_KTEnumWrapper : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The first test function, since the table is built once per process.
    void fillsTableOnceForAllThreads()
    {
        bool thrown = false;
        try {
            KTToy(1).countBits();
        } catch (const std::runtime_error &) {
            thrown = true;
        }
        QVERIFY2(thrown, "counting builds the table too");

        std::vector<KTEnumToStringTable<KTToyEnum> *> tables(8);
        std::vector<std::thread> threads;
        for (auto &table : tables)
            threads.emplace_back([&table] { table = KTToy(1).enumToStringTable(); });
        for (std::thread &thread : threads)
            thread.join();
        for (const auto *const table : tables)
            QCOMPARE(table, tables.front());
        QCOMPARE(KTToy::fillCount.load(), 2);
        QCOMPARE(tables.front()->keywordToValue.size(), 2);
    }

    void countsBits_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("count");
        QTest::newRow("null") << 0 << 0;
        QTest::newRow("one") << 4 << 1;
        QTest::newRow("two") << 5 << 2;
        QTest::newRow("all positive") << std::numeric_limits<int>::max() << 31;
        QTest::newRow("sign bit") << std::numeric_limits<int>::min() << 0;
        QTest::newRow("minus one") << -1 << 0;
    }
    void countsBits()
    {
        QFETCH(int, value);
        QFETCH(int, count);
        const KTToy toy(value);
        QCOMPARE(toy.countBits(), count);
        QCOMPARE(toy.hasExactlyOneBit(), count == 1);
        QCOMPARE(toy.isConglumerate(), count > 1);
        QCOMPARE(toy.isValid(), value != 0);
        QCOMPARE(toy.isNull(), value == 0);
    }

    void asksForBits()
    {
        const KTToy toy(5);
        QVERIFY(toy.containsAll(static_cast<KTToyEnum>(0)));
        QVERIFY(!toy.matches(static_cast<KTToyEnum>(0)));
        QVERIFY(toy.matches(KTToy(6)));
        QVERIFY(!toy.containsAll(KTToy(6)));
        QVERIFY(!toy.hasValue(KTToyA));
        QCOMPARE(static_cast<int>(toy & KTToy(6)), 4);
        QCOMPARE(static_cast<int>(toy | KTToy(2)), 7);
        QCOMPARE(static_cast<int>(toy.reducedTo(KTToyA)), 1);
        QCOMPARE(static_cast<int>(toy.value()), 5);
        QVERIFY(KTToy(-1) < toy && toy > KTToy(4) && toy <= KTToy(5));
    }

    void changesBitsThroughTheVirtualOperations()
    {
        KTToy toy(5);
        toy.setBit(KTToyB, false);
        QCOMPARE(static_cast<int>(toy.value()), 5);
        QCOMPARE(toy.excluded, 1);
        toy.setBit(KTToyB, true);
        QCOMPARE(toy.expanded, 1);
        toy.toggleBits(KTToy(9));
        QCOMPARE(static_cast<int>(toy.value()), 14);
        QCOMPARE(toy.excluded, 2);
        QCOMPARE(toy.expanded, 2);
        QCOMPARE(&toy.expandTo(KTToy(1)), &toy);
        QCOMPARE(toy.expanded, 3);
        QCOMPARE(&(toy &= KTToy(7)), &toy);
        QCOMPARE(static_cast<int>(toy.reduceTo(static_cast<KTToyEnum>(6)).value()), 6);
    }

    void sharesTableAcrossLibraries()
    {
        QCOMPARE(KTTestNeighbour::spotColorTable(),
                 static_cast<const void *>(KTSpotColor(KTSpotColorGold).enumToStringTable()));
        QCOMPARE(KTSpotColor(u"Silver, gloss"_s).encodeCSV(), u"gloss, silver"_s);
        QCOMPARE(qHash(KTSpotColor(KTSpotColorGold), 7u), qHash(KTSpotColor(u"gold"_s), 7u));
    }
};

QTEST_APPLESS_MAIN(tst_KTEnumWrapper)
#include "tst_KTEnumWrapper.moc"
