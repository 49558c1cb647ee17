#pragma once

#include <QList>
#include <QString>
#include <QStringView>
#include <QtAlgorithms>

#include <cstddef>
#include <cstring>
#include <iterator>
#include <type_traits>
#include <utility>
#include <vector>

/**
 * A text that a KTKeywordMap is asked for: it is found when it is ASCII and its lower case is a keyword.
 *
 * No lower case is made: units are looked at four at a time, as one 64-bit word. The text stays the caller's.
 */
class KTKeywordText
{
public:
    explicit KTKeywordText(QStringView text)
        : myUnits(text.utf16())
        , mySize(static_cast<std::size_t>(text.size()))
    {
    }

    bool isAscii() const
    {
        for (std::size_t i = 0; i + WORD < mySize; i += WORD) {
            if (wordAt(myUnits + i) & NOT_ASCII)
                return false;
        }
        return (lastWord(myUnits, mySize) & NOT_ASCII) == 0;
    }

    /** The same for texts that differ in the case of ASCII letters only; its highest bits are the best. */
    quint64 hash() const
    {
        // Units that differ in this bit alone need not be letters, but then comparing tells them apart.
        const quint64 first = firstWord(myUnits, mySize) | CASE_BITS;
        const quint64 last = lastWord(myUnits, mySize) | CASE_BITS;
        return ((first + mySize) * FIRST_FACTOR + last) * LAST_FACTOR;
    }

    /** True when the text is ASCII and the keyword is its lower case. */
    Q_ALWAYS_INLINE bool matches(const QString &keyword) const
    {
        if (static_cast<std::size_t>(keyword.size()) != mySize)
            return false;
        const char16_t *const units = QStringView(keyword).utf16();
        quint64 allUnits = 0;
        for (std::size_t i = 0; i + WORD < mySize; i += WORD) {
            const quint64 word = wordAt(units + i);
            if (!isLowerCase(word, wordAt(myUnits + i)))
                return false;
            allUnits |= word;
        }
        const quint64 word = lastWord(units, mySize);
        return isLowerCase(word, lastWord(myUnits, mySize)) && ((allUnits | word) & NOT_ASCII) == 0;
    }

private:
    static constexpr std::size_t WORD = 4;
    static constexpr quint64 EACH_UNIT = 0x0001'0001'0001'0001;
    static constexpr quint64 NOT_ASCII = 0xff80 * EACH_UNIT;
    static constexpr quint64 CASE_BITS = 0x20 * EACH_UNIT;
    // Odd numbers without a pattern in their bits.
    static constexpr quint64 FIRST_FACTOR = 0x9e37'79b9'7f4a'7c15;
    static constexpr quint64 LAST_FACTOR = 0xd6e8'feb8'6659'fd93;

    static quint64 wordAt(const char16_t *units)
    {
        quint64 word;
        std::memcpy(&word, units, sizeof word);
        return word;
    }
    /** All units of a text shorter than a word; some twice, which spares a loop. */
    static quint64 shortWord(const char16_t *units, std::size_t size)
    {
        if (size == 0)
            return 0;
        return quint64(units[0]) | quint64(units[size / 2]) << 16 | quint64(units[size - 1]) << 32;
    }
    static quint64 firstWord(const char16_t *units, std::size_t size)
    {
        return size < WORD ? shortWord(units, size) : wordAt(units);
    }
    static quint64 lastWord(const char16_t *units, std::size_t size)
    {
        return size < WORD ? shortWord(units, size) : wordAt(units + size - WORD);
    }
    /** True when `lower` is the lower case of `word`, both ASCII; most texts are in lower case already. */
    static bool isLowerCase(quint64 lower, quint64 word) { return word == lower || folded(word) == lower; }
    /** Lower-cases ASCII letters. Bit 7 of a sum tells whether a unit has reached 'A', or passed 'Z'. */
    static constexpr quint64 folded(quint64 word)
    {
        const quint64 reached = word + (0x80 - u'A') * EACH_UNIT;
        const quint64 passed = word + (0x80 - u'Z' - 1) * EACH_UNIT;
        return word | (reached & ~passed & 0x80 * EACH_UNIT) >> 2;
    }

    const char16_t *myUnits;
    std::size_t mySize;
};

/**
 * A small map from keywords, or from values of an enumeration, that is filled once and then read very often.
 *
 * It is read like a QHash, but keeps its entries in the order of insertion, and a map from keywords can be
 * asked for a KTKeywordText. Inserting invalidates iterators and pointers to entries. Keys come from the
 * program, never from a file, so the hash needs no random seed.
 *
 * Open addressing with linear probing: a slot holds the number of an entry, counted from 1, or 0 when it is
 * free. There are none or a power of two of them, at least twice as many as entries. Entries are never
 * removed, so a search ends at the first free slot.
 */
template <typename KEY, typename VALUE>
class Q_DECL_EXPORT KTKeywordMap
{
public:
    /** A key with its value. */
    struct Entry
    {
        KEY key;
        VALUE value;
    };
    /** As that of a QHash: `*` and `->` give the value. */
    class const_iterator
    {
    public:
        using iterator_category = std::forward_iterator_tag;
        using difference_type = std::ptrdiff_t;
        using value_type = VALUE;
        using pointer = const VALUE *;
        using reference = const VALUE &;

        const_iterator() = default;

        const KEY &key() const { return myEntry->key; }
        const VALUE &value() const { return myEntry->value; }
        const VALUE &operator*() const { return myEntry->value; }
        const VALUE *operator->() const { return &myEntry->value; }
        const_iterator &operator++()
        {
            ++myEntry;
            return *this;
        }
        const_iterator operator++(int) { return const_iterator(myEntry++); }
        bool operator==(const_iterator other) const { return myEntry == other.myEntry; }
        bool operator!=(const_iterator other) const { return myEntry != other.myEntry; }

    private:
        friend class KTKeywordMap;
        explicit const_iterator(const Entry *entry)
            : myEntry(entry)
        {
        }

        const Entry *myEntry = nullptr;
    };
    using key_type = KEY;
    using mapped_type = VALUE;
    using const_key_value_iterator = QKeyValueIterator<const KEY &, const VALUE &, const_iterator>;

    /** A key that is there keeps its place and gets the new value. */
    void insert(const KEY &key, const VALUE &value);

    /** The entry of the key, or null; the key may be a KTKeywordText instead of a keyword in lower case. */
    template <typename QUERY>
    Q_ALWAYS_INLINE const Entry *entryOf(const QUERY &key) const;
    const_iterator find(const KEY &key) const
    {
        const Entry *const entry = entryOf(key);
        return entry ? const_iterator(entry) : end();
    }
    const_iterator constFind(const KEY &key) const { return find(key); }
    VALUE value(const KEY &key, const VALUE &defaultValue = VALUE()) const
    {
        const Entry *const entry = entryOf(key);
        return entry ? entry->value : defaultValue;
    }
    VALUE operator[](const KEY &key) const { return value(key); }
    bool contains(const KEY &key) const { return entryOf(key) != nullptr; }
    int count(const KEY &key) const { return contains(key) ? 1 : 0; }

    /** The first key with this value, in the order of insertion, or the default. */
    KEY key(const VALUE &value, const KEY &defaultKey = KEY()) const;
    /** All keys, or those with this value, in the order of insertion. */
    QList<KEY> keys() const;
    QList<KEY> keys(const VALUE &value) const;
    /** The value of each key, in the order of insertion. */
    QList<VALUE> values() const;

    int size() const { return static_cast<int>(myEntries.size()); }
    int count() const { return size(); }
    bool isEmpty() const { return myEntries.empty(); }
    const_iterator begin() const { return const_iterator(myEntries.data()); }
    const_iterator end() const { return const_iterator(myEntries.data() + myEntries.size()); }
    const_iterator cbegin() const { return begin(); }
    const_iterator cend() const { return end(); }
    const_iterator constBegin() const { return begin(); }
    const_iterator constEnd() const { return end(); }
    const_key_value_iterator keyValueBegin() const { return const_key_value_iterator(begin()); }
    const_key_value_iterator keyValueEnd() const { return const_key_value_iterator(end()); }

private:
    static constexpr std::size_t FIRST_SLOTS = 16;
    // An odd number without a pattern in its bits.
    static constexpr quint64 FACTOR = 0x9e37'79b9'7f4a'7c15;

    static quint64 hash(KTKeywordText text) { return text.hash(); }
    static quint64 hash(const QString &keyword) { return KTKeywordText(keyword).hash(); }
    template <typename ENUM, typename = std::enable_if_t<std::is_enum_v<ENUM>>>
    static quint64 hash(ENUM value)
    {
        return static_cast<quint64>(value) * FACTOR;
    }
    static bool matches(const KEY &key, const KEY &other) { return key == other; }
    Q_ALWAYS_INLINE static bool matches(const KEY &key, KTKeywordText text) { return text.matches(key); }

    void occupySlot(std::size_t number);
    void grow();

    std::vector<Entry> myEntries;
    std::vector<quint32> mySlots;
    // 64 - log2(slot count): reduces a hash to the index of a slot.
    int myShift = 64;
};

template <typename KEY, typename VALUE>
template <typename QUERY>
const typename KTKeywordMap<KEY, VALUE>::Entry *KTKeywordMap<KEY, VALUE>::entryOf(const QUERY &key) const
{
    if (mySlots.empty())
        return nullptr;
    for (auto slot = static_cast<std::size_t>(hash(key) >> myShift); const quint32 number = mySlots[slot];
         slot = (slot + 1) & (mySlots.size() - 1)) {
        const Entry &entry = myEntries[number - 1];
        if (matches(entry.key, key))
            return &entry;
    }
    return nullptr;
}

template <typename KEY, typename VALUE>
void KTKeywordMap<KEY, VALUE>::insert(const KEY &key, const VALUE &value)
{
    if (const Entry *const entry = entryOf(key)) {
        myEntries[static_cast<std::size_t>(entry - myEntries.data())].value = value;
        return;
    }
    // Taken before the entries move: key or value may be a part of one of them.
    Entry added {key, value};
    if (2 * (myEntries.size() + 1) > mySlots.size())
        grow();
    myEntries.push_back(std::move(added));
    occupySlot(myEntries.size());
}

template <typename KEY, typename VALUE>
KEY KTKeywordMap<KEY, VALUE>::key(const VALUE &value, const KEY &defaultKey) const
{
    for (const Entry &entry : myEntries) {
        if (entry.value == value)
            return entry.key;
    }
    return defaultKey;
}

template <typename KEY, typename VALUE>
QList<KEY> KTKeywordMap<KEY, VALUE>::keys() const
{
    QList<KEY> result;
    result.reserve(size());
    for (const Entry &entry : myEntries)
        result.append(entry.key);
    return result;
}

template <typename KEY, typename VALUE>
QList<KEY> KTKeywordMap<KEY, VALUE>::keys(const VALUE &value) const
{
    QList<KEY> result;
    for (const Entry &entry : myEntries) {
        if (entry.value == value)
            result.append(entry.key);
    }
    return result;
}

template <typename KEY, typename VALUE>
QList<VALUE> KTKeywordMap<KEY, VALUE>::values() const
{
    QList<VALUE> result;
    result.reserve(size());
    for (const Entry &entry : myEntries)
        result.append(entry.value);
    return result;
}

/** Doubles the slots, makes room for as many entries as they allow, and lets the present ones move in. */
template <typename KEY, typename VALUE>
void KTKeywordMap<KEY, VALUE>::grow()
{
    const std::size_t slotCount = mySlots.empty() ? FIRST_SLOTS : 2 * mySlots.size();
    myEntries.reserve(slotCount / 2);
    mySlots.assign(slotCount, 0);
    myShift = 64 - static_cast<int>(qCountTrailingZeroBits(static_cast<quint64>(slotCount)));
    for (std::size_t number = 1; number <= myEntries.size(); ++number)
        occupySlot(number);
}

/** Enters the entry of this number, counted from 1, into the first free slot from its hash on. */
template <typename KEY, typename VALUE>
void KTKeywordMap<KEY, VALUE>::occupySlot(std::size_t number)
{
    auto slot = static_cast<std::size_t>(hash(myEntries[number - 1].key) >> myShift);
    while (mySlots[slot])
        slot = (slot + 1) & (mySlots.size() - 1);
    mySlots[slot] = static_cast<quint32>(number);
}
