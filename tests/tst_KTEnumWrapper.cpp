#include <KTEnumWrapper.h>

#include "KTTestNeighbour.h"
#include "KTTestSupport.h"

#include <atomic>
#include <cstddef>
#include <cstring>
#include <stdexcept>

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
        KTTest::linger();
        table->insert(u"b"_s, KTToyB);
    }

    /** Gets the first slot that the wrapper leaves free. */
    virtual void next() { }

    int excluded = 0;
    int expanded = 0;
    static std::atomic<int> fillCount;
};

std::atomic<int> KTToy::fillCount {0};

namespace {

/** The place of a virtual operation in the table of virtual functions, as pointers to members hold it. */
template <typename OPERATION>
std::ptrdiff_t slot(OPERATION operation)
{
    std::ptrdiff_t offset;
    std::memcpy(&offset, &operation, sizeof offset);
    return (offset - 1) / std::ptrdiff_t(sizeof(void *));
}

} // namespace

class tst_KTEnumWrapper : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    // The first test function, since the table is built once per process.
    void fillsTableOnceForAllThreads()
    {
        QVERIFY_EXCEPTION_THROWN(KTToy(1).countBits(), std::runtime_error);
        KTEnumToStringTable<KTToyEnum> *tables[8];
        KTTest::runInThreads(8, [&](int i) { tables[i] = KTToy(1).enumToStringTable(); });
        for (const auto *const table : tables)
            QCOMPARE(table, tables[0]);
        QCOMPARE(KTToy::fillCount.load(), 2);
        QCOMPARE(tables[0]->keywordToValue.size(), 2);
    }

    void asksForBits()
    {
        // The number of bits; whether there is exactly one, more than one, any value, none.
        const auto facts = [](int value) {
            const KTToy toy(value);
            return KTTest::text(toy.countBits(), toy.hasExactlyOneBit(), toy.isConglumerate(), toy.isValid(),
                                toy.isNull());
        };
        KTTest::check<int>(facts,
                           {"0 -> 0|-|-|-|+", "4 -> 1|+|-|+|-", "5 -> 2|-|+|+|-", "2147483647 -> 31|-|+|+|-",
                            "-2147483648 -> 0|-|-|+|-", "-1 -> 0|-|-|+|-"});
        const KTToy toy(5);
        const auto none = static_cast<KTToyEnum>(0);
        QVERIFY(toy.containsAll(none) && !toy.matches(none) && toy.matches(KTToy(6)));
        QVERIFY(!toy.containsAll(KTToy(6)) && !toy.hasValue(KTToyA));
        QVERIFY((toy & KTToy(6)) == 4 && (toy | KTToy(2)) == 7 && toy.reducedTo(KTToyA) == 1
                && toy.value() == 5);
        QVERIFY(KTToy(-1) < toy && toy <= toy && !(toy <= KTToy(4)) && toy > KTToy(4) && !(toy > toy));
    }

    void changesBitsThroughTheVirtualOperations()
    {
        KTToy toy(5);
        const auto state = [&toy] { return KTTest::text(int(toy.value()), toy.excluded, toy.expanded); };
        toy.setBit(KTToyB, false);
        QCOMPARE(state(), u"5|1|0"_s);
        toy.setBit(KTToyB, true);
        QCOMPARE(state(), u"7|1|1"_s);
        toy.toggleBits(KTToy(9));
        QCOMPARE(state(), u"14|2|2"_s);
        QVERIFY(&toy.expandTo(KTToy(1)) == &toy && &(toy &= KTToy(7)) == &toy);
        QCOMPARE(state(), u"7|2|3"_s);
        const auto bits = [](int value) { return static_cast<KTToyEnum>(value); };
        QCOMPARE(int(toy.reduceTo(bits(6)).value()), 6);
        KTToy other(5);
        other |= KTToy(6);
        QCOMPARE(int((((other |= bits(10)) &= bits(14)).exclude(KTToy(9))).value()), 6);
    }

    void keepsItsSlots()
    {
        using Toy = KTEnumWrapper<KTToyEnum>;
        using Asks = bool (Toy::*)(const Toy &) const;
        using AsksValue = bool (Toy::*)(KTToyEnum) const;
        using Changes = Toy &(Toy::*)(const Toy &);
        using ChangesValue = Toy &(Toy::*)(KTToyEnum);
        using Combines = KTToyEnum (Toy::*)(const Toy &) const;
        // Behind the two of the destructor.
        const QString slots = KTTest::text(
            slot<Asks>(&Toy::operator<), slot<Asks>(&Toy::operator<=), slot<Asks>(&Toy::operator>),
            slot<Asks>(&Toy::operator==), slot<AsksValue>(&Toy::operator==), slot<Asks>(&Toy::operator!=),
            slot<AsksValue>(&Toy::operator!=), slot<Changes>(&Toy::operator|=),
            slot<ChangesValue>(&Toy::operator|=), slot<Changes>(&Toy::operator&=),
            slot<ChangesValue>(&Toy::operator&=), slot<Combines>(&Toy::operator&),
            slot<Combines>(&Toy::operator|), slot<Changes>(&Toy::exclude), slot<ChangesValue>(&Toy::exclude),
            slot<Changes>(&Toy::expandTo), slot<ChangesValue>(&Toy::expandTo), slot(&Toy::reduceTo),
            slot(&Toy::reducedTo), slot(&Toy::isValid), slot(&Toy::fillTable), slot(&KTToy::next));
        QCOMPARE(slots, u"2|3|4|5|6|7|8|9|10|11|12|13|14|15|16|17|18|19|20|21|22|23"_s);
    }

    void sharesTableAcrossLibraries()
    {
        QCOMPARE(KTTestNeighbour::spotColorTable(),
                 static_cast<const void *>(KTSpotColor(KTSpotColorGold).enumToStringTable()));
        QCOMPARE(KTSpotColor(u"Silver, gloss"_s).encodeCSV(), u"gloss, silver"_s);
        QTest::ignoreMessage(QtWarningMsg, "undecodable: \"tin\" (using default in 15KTSpotColorEnum )");
        QVERIFY(KTSpotColor().decodeOneElement(u"tin"_s) == 0);
        QCOMPARE(qHash(KTSpotColor(KTSpotColorGold), 7u), qHash(KTSpotColor(u"gold"_s), 7u));
    }
};

QTEST_APPLESS_MAIN(tst_KTEnumWrapper)
#include "tst_KTEnumWrapper.moc"
