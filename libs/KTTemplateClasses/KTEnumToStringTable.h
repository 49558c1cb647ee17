#pragma once

#include <QDebug>
#include <QHash>
#include <QList>
#include <QMessageLogger>
#include <QSet>
#include <QString>
#include <QStringList>

#include <algorithm>
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

    /** The written keyword of exactly this value, a union included, or defaultKeyword. */
    QString encode(ENUM value) const;
    /** The written keyword, or defaultKeyword, of each bit, lowest first; never a union's own keyword. */
    QStringList encodeAsList(ENUM value) const;
    /** encodeAsList() joined by ", ", or defaultKeyword for a value without bits. */
    QString encodeCSV(ENUM value) const;

    /** Each bit of the value; empty for a value below 1. */
    QSet<ENUM> splitToBits(ENUM value) const;
    /** Each bit of the value, lowest first; empty for a value below 1. */
    QList<ENUM> splitToBitsSorted(ENUM value) const;

    /** Everything that can be read, in lower case, further keywords of a value included; in no stated order.
     */
    QStringList allKnownKeywords() const;
    /** Every keyword that reads as exactly this value, in lower case, sorted. */
    QStringList allPossibleKeywordsOneElement(ENUM value) const;
    /** allPossibleKeywordsOneElement() of each bit of the value, lowest bit first. */
    QStringList allPossibleKeywords(ENUM value) const;

    /** Every keyword in lower case. */
    QHash<QString, ENUM> keywordToValue;
    /** Every value that has a keyword, with the one that is written. */
    QHash<ENUM, QString> valueToKeyword;
    /** Written for a value or bit without a keyword; set by the classification class. */
    QString defaultKeyword;
    /** Read from a text that is no keyword; set by the classification class. */
    ENUM defaultValue = static_cast<ENUM>(0);

private:
    using Signed = std::underlying_type_t<ENUM>;
    using Unsigned = std::make_unsigned_t<Signed>;
    static_assert(std::is_signed_v<Signed>, "the enumeration needs a fixed signed underlying type");

    static constexpr QChar KOMMA = u',';
    // Stands for "no keyword" inside the decoders; no enumeration has it.
    static constexpr ENUM UNKNOWN = static_cast<ENUM>(-260570);

    static const char *warningFunction();
    ENUM decodePart(QStringView part, QString *buffer) const;
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
    return keywordToValue.value(text.trimmed().toLower(), fallback);
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
    if (!text.contains(KOMMA)) {
        const ENUM value = decode(text, UNKNOWN);
        return value == UNKNOWN ? defaultValue : value;
    }
    QString buffer;
    buffer.reserve(text.size());
    const QStringView view(text);
    auto values = static_cast<Unsigned>(0);
    for (qsizetype start = 0; start <= view.size();) {
        const qsizetype end = std::find(view.begin() + start, view.end(), KOMMA) - view.begin();
        const ENUM value = decodePart(view.mid(start, end - start), &buffer);
        values |= static_cast<Unsigned>(value == UNKNOWN ? defaultValue : value);
        start = end + 1;
    }
    return static_cast<ENUM>(values);
}

/**
 * Decodes one entry of a list without a string of its own: an entry in ASCII is lower-cased into the buffer.
 * Others take the general way, because their lower case may be longer, or ASCII though they are not.
 */
template <typename ENUM>
ENUM KTEnumToStringTable<ENUM>::decodePart(QStringView part, QString *buffer) const
{
    const QStringView trimmed = part.trimmed();
    buffer->resize(0);
    for (const QChar character : trimmed) {
        const char16_t unit = character.unicode();
        if (unit > 0x7f)
            return decode(trimmed.toString(), UNKNOWN);
        buffer->append(unit >= u'A' && unit <= u'Z' ? QChar(char16_t(unit + (u'a' - u'A'))) : character);
    }
    return keywordToValue.value(*buffer, UNKNOWN);
}

template <typename ENUM>
QString KTEnumToStringTable<ENUM>::encode(ENUM value) const
{
    return valueToKeyword.value(value, defaultKeyword);
}

template <typename ENUM>
QStringList KTEnumToStringTable<ENUM>::encodeAsList(ENUM value) const
{
    QStringList keywords;
    for (const ENUM bit : splitToBitsSorted(value))
        keywords.append(encode(bit));
    return keywords;
}

template <typename ENUM>
QString KTEnumToStringTable<ENUM>::encodeCSV(ENUM value) const
{
    const QStringList keywords = encodeAsList(value);
    return keywords.isEmpty() ? defaultKeyword : keywords.join(QStringLiteral(", "));
}

template <typename ENUM>
QSet<ENUM> KTEnumToStringTable<ENUM>::splitToBits(ENUM value) const
{
    const QList<ENUM> bits = splitToBitsSorted(value);
    return QSet<ENUM>(bits.begin(), bits.end());
}

template <typename ENUM>
QList<ENUM> KTEnumToStringTable<ENUM>::splitToBitsSorted(ENUM value) const
{
    QList<ENUM> bits;
    auto rest = static_cast<Unsigned>(value);
    // The remainder is asked as a signed number, so that a value with its sign bit set has no bits at all.
    for (Unsigned probe = 1; static_cast<Signed>(rest) > 0; probe <<= 1) {
        if (rest & probe) {
            bits.append(static_cast<ENUM>(probe));
            rest &= ~probe;
        }
    }
    return bits;
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
    for (const ENUM bit : splitToBitsSorted(value))
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
