#pragma once

#include "KTEnumToStringTable.h"
#include "KTQtTypes.h"

#include <QAtomicPointer>
#include <QMutex>
#include <QMutexLocker>
#include <QtAlgorithms>

#include <memory>
#include <type_traits>

/**
 * What no classification is made of, numbers and nullptr: a literal 0 would be read as a null text, and so
 * give the default of its keywords. Constructors and setValue() over these types are deleted.
 */
template <typename T>
using KTNoClassification = std::enable_if_t<std::is_arithmetic_v<T> || std::is_null_pointer_v<T>>;

/**
 * The base of every classification: one flag value of ENUM with its bit operations, comparisons and keywords.
 *
 * The value is a single bit, a union of bits, or 0 ("null"); comparisons are signed. A classification derives
 * from the wrapper of its own enumeration, offers constructors from the enumeration and from text, deletes
 * the one from what is KTNoClassification, and overrides fillTable() alone. The keyword table exists once per
 * enumeration and process; it is built, under a lock, by whichever object asks first. Objects themselves are
 * plain values of one thread.
 */
template <typename ENUM>
class Q_DECL_EXPORT KTEnumWrapper
{
public:
    KTEnumWrapper(const ENUM &value)
        : myValue(value)
    {
    }
    KTEnumWrapper(const KTEnumWrapper &other) = default;
    KTEnumWrapper(KTEnumWrapper &&other) noexcept = default;
    KTEnumWrapper &operator=(const KTEnumWrapper &other) = default;
    KTEnumWrapper &operator=(KTEnumWrapper &&other) noexcept = default;
    virtual ~KTEnumWrapper() = default;

    virtual bool operator<(const KTEnumWrapper &other) const { return myValue < other.myValue; }
    virtual bool operator<=(const KTEnumWrapper &other) const { return myValue <= other.myValue; }
    virtual bool operator>(const KTEnumWrapper &other) const { return myValue > other.myValue; }
    virtual bool operator==(const KTEnumWrapper &other) const { return myValue == other.myValue; }
    virtual bool operator==(ENUM other) const { return myValue == other; }
    virtual bool operator!=(const KTEnumWrapper &other) const { return myValue != other.myValue; }
    virtual bool operator!=(ENUM other) const { return myValue != other; }
    virtual KTEnumWrapper &operator|=(const KTEnumWrapper &other) { return assign(myValue | other.myValue); }
    virtual KTEnumWrapper &operator|=(ENUM other) { return assign(myValue | other); }
    virtual KTEnumWrapper &operator&=(const KTEnumWrapper &other) { return assign(myValue & other.myValue); }
    virtual KTEnumWrapper &operator&=(ENUM other) { return assign(myValue & other); }
    virtual ENUM operator&(const KTEnumWrapper &other) const { return common(other.myValue); }
    virtual ENUM operator|(const KTEnumWrapper &other) const
    {
        return static_cast<ENUM>(myValue | other.myValue);
    }
    /** Removes the bits of the other value. */
    virtual KTEnumWrapper &exclude(const KTEnumWrapper &other) { return assign(myValue & ~other.myValue); }
    virtual KTEnumWrapper &exclude(ENUM other) { return assign(myValue & ~other); }
    /** Adds the bits of the other value. */
    virtual KTEnumWrapper &expandTo(const KTEnumWrapper &other) { return expandTo(other.myValue); }
    virtual KTEnumWrapper &expandTo(ENUM other) { return assign(myValue | other); }
    /** Keeps only the bits that the other value has too. */
    virtual KTEnumWrapper &reduceTo(ENUM other) { return assign(myValue & other); }
    /** What reduceTo() would leave; the object stays as it is. */
    [[nodiscard]] virtual ENUM reducedTo(ENUM other) const { return common(other); }
    /** True for any value but 0. */
    virtual bool isValid() const { return myValue != 0; }
    /** Inserts the enumeration's keywords and sets the table's defaults; called once per process. */
    virtual void fillTable(KTEnumToStringTable<ENUM> *table) const = 0;

    ENUM operator&(ENUM other) const { return common(other); }
    ENUM operator|(ENUM other) const { return static_cast<ENUM>(myValue | other); }

    ENUM value() const { return myValue; }
    void setValue(ENUM value) { myValue = value; }
    /** Sets the value that decodeCSV() reads from the text. */
    void setValue(const QString &text) { myValue = decodeCSV(text); }
    template <typename T, typename = KTNoClassification<T>>
    void setValue(T) = delete;

    /** @name Keywords: see KTEnumToStringTable; the decoders do not change the object */
    /** @{ */
    ENUM decodeCSV(const QString &text) const { return enumToStringTable()->decodeCSV(text); }
    /** Warns when the text is neither a keyword nor empty. */
    ENUM decodeOneElement(const QString &text) const
    {
        return enumToStringTable()->decodeOneElement(text, true);
    }
    QStringList unknownEntries(const QString &text) const
    {
        return enumToStringTable()->unknownEntries(text);
    }
    QString encode() const { return enumToStringTable()->encode(myValue); }
    QString encodeCSV() const { return enumToStringTable()->encodeCSV(myValue); }
    QStringList encodeBits() const { return enumToStringTable()->encodeAsList(myValue); }
    QString debugText() const { return enumToStringTable()->debugText(myValue); }
    QStringList allKnownKeywords() const { return enumToStringTable()->allKnownKeywords(); }
    /** Every value that has a written keyword, in no stated order. */
    QList<ENUM> allKnownEnumValues() const { return enumToStringTable()->valueToKeyword.keys(); }
    QStringList allPossibleKeywords() const { return enumToStringTable()->allPossibleKeywords(myValue); }
    QStringList allPossibleKeywordsOneElement() const
    {
        return enumToStringTable()->allPossibleKeywordsOneElement(myValue);
    }
    QSet<ENUM> splitToBits() const { return enumToStringTable()->splitToBits(myValue); }
    QList<ENUM> splitToBitsSorted() const { return enumToStringTable()->splitToBitsSorted(myValue); }
    /** @} */

    bool isNull() const { return myValue == 0; }
    bool hasValue(const ENUM &value) const { return myValue == value; }
    /** True when there is a common bit; so never for 0. */
    bool matches(ENUM other) const { return common(other) != 0; }
    bool matches(const KTEnumWrapper &other) const { return matches(other.myValue); }
    /** True when no bit of the other value is missing; so always for 0. */
    bool containsAll(ENUM other) const { return common(other) == other; }
    bool containsAll(const KTEnumWrapper &other) const { return containsAll(other.myValue); }
    /** The number of set bits, 0 for a value below 1. */
    int countBits() const;
    bool hasExactlyOneBit() const { return countBits() == 1; }
    /** True when more than one bit is set. The misspelling is part of the API. */
    bool isConglumerate() const { return countBits() > 1; }
    /** Adds or removes the bits of the argument. */
    void setBit(ENUM bit, bool on);
    /** Flips, one by one, the bits that the other value has. */
    void toggleBits(const KTEnumWrapper &other);

    /** The keyword table of the enumeration, built on first use and never freed; safe from any thread. */
    KTEnumToStringTable<ENUM> *enumToStringTable() const;

private:
    using Signed = std::underlying_type_t<ENUM>;
    using TablePointer = QBasicAtomicPointer<KTEnumToStringTable<ENUM>>;

    ENUM common(ENUM other) const { return static_cast<ENUM>(myValue & other); }
    KTEnumWrapper &assign(Signed value)
    {
        myValue = static_cast<ENUM>(value);
        return *this;
    }
    Q_NEVER_INLINE Q_DECL_COLD_FUNCTION KTEnumToStringTable<ENUM> *
    createTable(TablePointer *sharedTable) const;

    ENUM myValue;
};

template <typename ENUM>
void KTEnumWrapper<ENUM>::setBit(ENUM bit, bool on)
{
    if (on)
        expandTo(bit);
    else
        exclude(bit);
}

template <typename ENUM>
void KTEnumWrapper<ENUM>::toggleBits(const KTEnumWrapper &other)
{
    for (const ENUM bit : other.splitToBits())
        setBit(bit, !matches(bit));
}

template <typename ENUM>
int KTEnumWrapper<ENUM>::countBits() const
{
    // Counting builds the table like every other question about bits: a caller may count first, then use it.
    enumToStringTable();
    return myValue < 1 ? 0 : static_cast<int>(qPopulationCount(static_cast<quint64>(myValue)));
}

template <typename ENUM>
KTEnumToStringTable<ENUM> *KTEnumWrapper<ENUM>::enumToStringTable() const
{
    static TablePointer myTable = Q_BASIC_ATOMIC_INITIALIZER(nullptr);
    KTEnumToStringTable<ENUM> *const table = myTable.loadAcquire();
    return table ? table : createTable(&myTable);
}

/** Apart from its caller, so that every later question is one load and one comparison. */
template <typename ENUM>
KTEnumToStringTable<ENUM> *KTEnumWrapper<ENUM>::createTable(TablePointer *sharedTable) const
{
    static QMutex theMutex;
    const QMutexLocker locker(&theMutex);
    if (!sharedTable->loadRelaxed()) {
        // Published only when it is complete; a throwing fillTable() leaves no table behind.
        auto table = std::make_unique<KTEnumToStringTable<ENUM>>();
        fillTable(table.get());
        sharedTable->storeRelease(table.release());
    }
    return sharedTable->loadRelaxed();
}

/** Hashes the value; equal wrappers are equal keys. */
template <typename ENUM>
KTHashValue qHash(const KTEnumWrapper<ENUM> &wrapper, KTHashValue seed = 0)
{
    return ::qHash(static_cast<std::underlying_type_t<ENUM>>(wrapper.value()), seed);
}
