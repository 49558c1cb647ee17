#pragma once

#include "KTKeywordMap.h"
#include "KTQtTypes.h"

#include <QByteArray>
#include <QDebug>
#include <QList>
#include <QMessageLogger>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QtAlgorithms>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <type_traits>
#include <typeinfo>

/**
 * Where a flag enumeration meets text: maps keywords to values and values to the one keyword that is written.
 *
 * ENUM is an unscoped enumeration with a fixed signed underlying type, whose values are single bits or unions
 * of bits; all bit arithmetic runs at its width, and a value below 1 has no bits. The table is filled once,
 * by the classification class over the enumeration, and only read afterwards, from any thread without a lock.
 * No operation fails: what is not in the table yields a default.
 */
template <typename ENUM>
class Q_DECL_EXPORT KTEnumToStringTable
{
public:
    /**
     * Adds a keyword. Reading ignores its letter case; the first keyword of a value is the one that is
     * written, as given, and further ones are only read. A keyword given again reads as the later value.
     */
    void insert(const QString &keyword, ENUM value);

    /** The value of one keyword in any letter case, blanks around it ignored, or the fallback. */
    ENUM decode(const QString &text, ENUM fallback) const;
    /** As decode() with defaultValue as the fallback; logs a warning, if asked to, unless the text is empty.
     */
    ENUM decodeOneElement(const QString &text, bool warn) const;
    /**
     * The union of the values of a comma-separated list. Each entry that is no keyword, an empty one
     * included, contributes defaultValue, silently; so an empty text is defaultValue.
     */
    ENUM decodeCSV(const QString &text) const;
    /** The entries of such a list that are no keywords, as they are written, but without blanks around. */
    QStringList unknownEntries(const QString &text) const;

    /** The written keyword of exactly this value, a union included, or defaultKeyword. */
    QString encode(ENUM value) const;
    /** The written keyword, or defaultKeyword, of each bit, lowest first; never a union's own keyword. */
    QStringList encodeAsList(ENUM value) const;
    /** encodeAsList() joined by ", ", or defaultKeyword for a value without bits. */
    QString encodeCSV(ENUM value) const;
    /**
     * For logs: the written keyword of exactly this value; else those of its bits, joined by ", ", if there
     * is one for each bit; else the number.
     */
    QString debugText(ENUM value) const;

    /** Each bit of the value; empty for a value below 1. */
    QSet<ENUM> splitToBits(ENUM value) const;
    /** Each bit of the value, lowest first; empty for a value below 1. */
    QList<ENUM> splitToBitsSorted(ENUM value) const;

    /** Everything that can be read, in lower case, in no stated order. */
    QStringList allKnownKeywords() const;
    /** Every keyword that reads as exactly this value, in lower case, sorted. */
    QStringList allPossibleKeywordsOneElement(ENUM value) const;
    /** allPossibleKeywordsOneElement() of each bit of the value, lowest bit first. */
    QStringList allPossibleKeywords(ENUM value) const;

    /** Every keyword in lower case. */
    KTKeywordMap<QString, ENUM> keywordToValue;
    /** Every value that has a keyword, with the one that is written. */
    KTKeywordMap<ENUM, QString> valueToKeyword;
    /** Written for a value or bit without a keyword; set by the classification class. */
    QString defaultKeyword;
    /** Read from a text that is no keyword; set by the classification class. */
    ENUM defaultValue = static_cast<ENUM>(0);

private:
    using KeywordEntry = typename KTKeywordMap<QString, ENUM>::Entry;

    /** The bits of a value, lowest first, to walk over; none for a value below 1. */
    class Bits
    {
    public:
        struct Iterator
        {
            quint64 rest;
            ENUM operator*() const { return static_cast<ENUM>(rest & (~rest + 1)); }
            void operator++() { rest &= rest - 1; }
            bool operator!=(Iterator other) const { return rest != other.rest; }
        };
        explicit Bits(ENUM value)
            : myBits(value < 1 ? 0 : static_cast<quint64>(value))
        {
        }
        Iterator begin() const { return {myBits}; }
        Iterator end() const { return {0}; }
        int count() const { return static_cast<int>(qPopulationCount(myBits)); }

    private:
        quint64 myBits;
    };

    static_assert(std::is_signed_v<std::underlying_type_t<ENUM>>,
                  "the enumeration needs a fixed signed underlying type");

    static constexpr QChar KOMMA = u',';
    static constexpr int SEPARATOR_SIZE = 2;
    static constexpr QChar SEPARATOR[SEPARATOR_SIZE] = {u',', u' '};
    // Stands for "no keyword" inside decodeOneElement(); no enumeration has it.
    static constexpr ENUM UNKNOWN = static_cast<ENUM>(-260570);

    static const char *warningFunction();
    ENUM decodeView(QStringView text, ENUM fallback) const;
    Q_NEVER_INLINE Q_DECL_COLD_FUNCTION const KeywordEntry *findExactly(QStringView trimmed) const;
    static QString joined(const QString *const *first, const QString *const *last);
    const QString &keywordOf(ENUM value) const;
};

template <typename ENUM>
void KTEnumToStringTable<ENUM>::insert(const QString &keyword, ENUM value)
{
    keywordToValue.insert(keyword.toLower(), value);
    if (!valueToKeyword.contains(value))
        valueToKeyword.insert(value, keyword);
}

template <typename ENUM>
ENUM KTEnumToStringTable<ENUM>::decode(const QString &text, ENUM fallback) const
{
    return decodeView(text, fallback);
}

template <typename ENUM>
ENUM KTEnumToStringTable<ENUM>::decodeView(QStringView text, ENUM fallback) const
{
    const QChar *first = text.begin();
    const QChar *last = text.end();
    while (first != last && first->isSpace())
        ++first;
    while (first != last && last[-1].isSpace())
        --last;
    const KTKeywordText keyword(QStringView(first, last));
    const KeywordEntry *entry = keywordToValue.entryOf(keyword);
    if (!entry && !keyword.isAscii())
        entry = findExactly(QStringView(first, last));
    return entry ? entry->value : fallback;
}

/** For the texts that a KTKeywordText does not find: their lower case may be longer, or ASCII after all. */
template <typename ENUM>
const typename KTEnumToStringTable<ENUM>::KeywordEntry *
KTEnumToStringTable<ENUM>::findExactly(QStringView trimmed) const
{
    return keywordToValue.entryOf(trimmed.toString().toLower());
}

template <typename ENUM>
ENUM KTEnumToStringTable<ENUM>::decodeOneElement(const QString &text, bool warn) const
{
    const ENUM value = decode(text, UNKNOWN);
    if (value != UNKNOWN)
        return value;
    if (warn && !text.isEmpty()) {
        QMessageLogger("libs/KTTemplateClasses/KTEnumToStringTable", __LINE__, warningFunction(), "default")
                .warning()
            << "undecodable:" << text << "(using default in" << typeid(ENUM).name() << ")";
    }
    return defaultValue;
}

template <typename ENUM>
ENUM KTEnumToStringTable<ENUM>::decodeCSV(const QString &text) const
{
    const QStringView view(text);
    auto values = static_cast<std::underlying_type_t<ENUM>>(0);
    for (auto start = view.begin();;) {
        const auto end = std::find(start, view.end(), KOMMA);
        values |= decodeView(QStringView(start, end), defaultValue);
        if (end == view.end())
            return static_cast<ENUM>(values);
        start = end + 1;
    }
}

template <typename ENUM>
QStringList KTEnumToStringTable<ENUM>::unknownEntries(const QString &text) const
{
    QStringList unknown;
    for (const QString &part : text.split(KOMMA)) {
        const QString entry = part.trimmed();
        if (!keywordToValue.contains(entry.toLower()))
            unknown.append(entry);
    }
    return unknown;
}

template <typename ENUM>
QString KTEnumToStringTable<ENUM>::encode(ENUM value) const
{
    return keywordOf(value);
}

template <typename ENUM>
const QString &KTEnumToStringTable<ENUM>::keywordOf(ENUM value) const
{
    const auto *const entry = valueToKeyword.entryOf(value);
    return entry ? entry->value : defaultKeyword;
}

template <typename ENUM>
QStringList KTEnumToStringTable<ENUM>::encodeAsList(ENUM value) const
{
    const Bits bits(value);
    QStringList keywords;
    keywords.reserve(bits.count());
    for (const ENUM bit : bits)
        keywords.append(keywordOf(bit));
    return keywords;
}

template <typename ENUM>
QString KTEnumToStringTable<ENUM>::encodeCSV(ENUM value) const
{
    std::array<const QString *, 63> keywords; // A value without its sign bit has no more bits.
    std::size_t count = 0;
    for (const ENUM bit : Bits(value))
        keywords[count++] = &keywordOf(bit);
    if (count == 0)
        return defaultKeyword;
    return count == 1 ? *keywords[0] : joined(keywords.data(), keywords.data() + count);
}

template <typename ENUM>
QString KTEnumToStringTable<ENUM>::debugText(ENUM value) const
{
    if (valueToKeyword.contains(value))
        return encode(value);
    bool hasKeywords = value > 0;
    for (const ENUM bit : Bits(value))
        hasKeywords = hasKeywords && valueToKeyword.contains(bit);
    return hasKeywords ? encodeCSV(value) : QString::number(static_cast<qint64>(value));
}

/** The texts with ", " between them, in one allocation; there is at least one. */
template <typename ENUM>
QString KTEnumToStringTable<ENUM>::joined(const QString *const *first, const QString *const *last)
{
    KTSize size = 0;
    for (const QString *const *text = first; text != last; ++text)
        size += (*text)->size() + SEPARATOR_SIZE;
    QString result(size, Qt::Uninitialized);
    QChar *end = result.data();
    for (const QString *const *text = first; text != last; ++text) {
        end = std::copy((*text)->begin(), (*text)->end(), end);
        end = std::copy(std::begin(SEPARATOR), std::end(SEPARATOR), end);
    }
    result.chop(SEPARATOR_SIZE);
    return result;
}

template <typename ENUM>
QSet<ENUM> KTEnumToStringTable<ENUM>::splitToBits(ENUM value) const
{
    const Bits bits(value);
    QSet<ENUM> result;
    result.reserve(bits.count());
    for (const ENUM bit : bits)
        result.insert(bit);
    return result;
}

template <typename ENUM>
QList<ENUM> KTEnumToStringTable<ENUM>::splitToBitsSorted(ENUM value) const
{
    const Bits bits(value);
    QList<ENUM> result;
    result.reserve(bits.count());
    for (const ENUM bit : bits)
        result.append(bit);
    return result;
}

template <typename ENUM>
QStringList KTEnumToStringTable<ENUM>::allKnownKeywords() const
{
    return keywordToValue.keys();
}

template <typename ENUM>
QStringList KTEnumToStringTable<ENUM>::allPossibleKeywordsOneElement(ENUM value) const
{
    QStringList keywords = keywordToValue.keys(value);
    keywords.sort();
    return keywords;
}

template <typename ENUM>
QStringList KTEnumToStringTable<ENUM>::allPossibleKeywords(ENUM value) const
{
    QStringList keywords;
    for (const ENUM bit : Bits(value))
        keywords += allPossibleKeywordsOneElement(bit);
    return keywords;
}

/**
 * The function named in the warning's context, the same whatever the compiler and build type. Message
 * handlers may keep the pointer, so the text is never freed.
 */
template <typename ENUM>
const char *KTEnumToStringTable<ENUM>::warningFunction()
{
    static const QByteArray *const myFunction = [] {
        const std::unique_ptr<char, void (*)(void *)> name(
            abi::__cxa_demangle(typeid(ENUM).name(), nullptr, nullptr, nullptr), &std::free);
        const QByteArray enumName(name.get());
        return new QByteArray("ENUM KTEnumToStringTable<" + enumName
                              + ">::decodeOneElement(const QString &, bool) const [ENUM = " + enumName + "]");
    }();
    return myFunction->constData();
}
