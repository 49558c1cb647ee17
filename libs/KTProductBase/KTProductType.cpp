#include "KTProductType.h"

#include "KTPriceClass.h"

#include <KTStringLiteral.h>
#include <KTXMLElement.h>
#include <KTXMLParser.h>

#include <QDebug>
#include <QDomElement>
#include <QHash>
#include <QStringView>

#include <algorithm>
#include <iterator>

namespace {

constexpr KTStringLiteral PRODUCT_NAME_ATTRIBUTE = "productname";
constexpr KTStringLiteral DEFAULT_PRODUCT_NAME = "ALB9_30";
constexpr KTStringLiteral UNKNOWN_NAME = "UNKNOWN";
constexpr KTStringLiteral CALENDAR_PREFIX = "CAL";
constexpr KTStringLiteral AGENDAS[] = {"CAL29", "CAL30"};

constexpr QChar ALBUM_INITIAL = u'A';

bool isAsciiDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/** The first place where "ALB" or "ALBS" has digits behind it, with all of them; empty if there is none. */
QStringView albumFamily(QStringView code)
{
    constexpr QStringView LETTERS = u"ALB";
    for (auto start = code.indexOf(LETTERS); start >= 0; start = code.indexOf(LETTERS, start + 1)) {
        const auto *const letters = code.begin() + start;
        const auto *const behind = letters + LETTERS.size();
        const auto *const digits = behind != code.end() && *behind == u'S' ? behind + 1 : behind;
        const auto *const end = std::find_if_not(digits, code.end(), isAsciiDigit);
        if (end != digits)
            return QStringView(letters, end);
    }
    return QStringView();
}

/** Not by a regular expression of Qt's: those end with main(), and product types may be made afterwards. */
QString normalised(const QString &code)
{
    // Only the initial is asked beforehand: a family later in a code that begins with "A" counts as well.
    if (!code.startsWith(ALBUM_INITIAL))
        return code;
    const QStringView family = albumFamily(code);
    const bool isShorter = !family.isEmpty() && family.size() < code.size();
    return isShorter && code.isValidUtf16() ? family.toString() : code;
}

/** The hash that Qt 5 has for the text with seed 0; that of Qt 6 would put lists of types in another order.
 */
uint hashOf(const QString &code)
{
    uint hash = 0;
    for (const QChar unit : code)
        hash = 31 * hash + unit.unicode();
    return hash;
}

} // namespace

KTProductType::KTProductType(const QString &code)
    : myCode(normalised(code))
    , myHashValue(hashOf(myCode))
{
}

KTProductType KTProductType::fromMcf(const QDomElement &element)
{
    return fromMcf(KTXMLElement(element));
}

KTProductType KTProductType::fromMcf(const KTXMLElement &element)
{
    return KTProductType(KTXMLParser::attribute(element, PRODUCT_NAME_ATTRIBUTE, DEFAULT_PRODUCT_NAME));
}

KTProductType KTProductType::fromPriceClass(const KTPriceClass &priceClass)
{
    return KTProductType(priceClass.toString());
}

QString KTProductType::orderTxtName() const
{
    return isUnknown() ? UNKNOWN_NAME : myCode;
}

bool KTProductType::isCalendar() const
{
    return orderTxtName().startsWith(CALENDAR_PREFIX);
}

bool KTProductType::isAgenda() const
{
    return std::find(std::begin(AGENDAS), std::end(AGENDAS), orderTxtName()) != std::end(AGENDAS);
}

bool KTProductType::operator==(const KTProductType &other) const
{
    // What gets past the hash is nearly always equal to the letter, and often the same text.
    return myHashValue == other.myHashValue
        && (myCode == other.myCode || myCode.compare(other.myCode, Qt::CaseInsensitive) == 0);
}

bool KTProductType::operator<(const KTProductType &other) const
{
    return myHashValue == other.myHashValue ? myCode < other.myCode : myHashValue < other.myHashValue;
}

QDebug operator<<(QDebug stream, const KTProductType &type)
{
    return stream << type.toString();
}
