#include "KTProductType.h"

#include "KTPriceClass.h"

#include <KTStringLiteral.h>
#include <KTXMLParser.h>

#include <QDebug>
#include <QDomElement>
#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <iterator>

namespace {

constexpr KTStringLiteral PRODUCT_NAME_ATTRIBUTE = "productname";
constexpr KTStringLiteral DEFAULT_PRODUCT_NAME = "ALB9_30";
constexpr KTStringLiteral UNKNOWN_NAME = "UNKNOWN";
constexpr KTStringLiteral CALENDAR_PREFIX = "CAL";
constexpr KTStringLiteral AGENDAS[] = {"CAL29", "CAL30"};

constexpr QChar ALBUM_INITIAL = u'A';

/** Finds an album family anywhere in a code; a function, because product types are made during start-up. */
const QRegularExpression &bookRegExp()
{
    static const QRegularExpression myBookRegExp(QStringLiteral("((ALB|ALBS)\\d+).*"));
    return myBookRegExp;
}

QString normalised(const QString &code)
{
    // Only the initial is asked beforehand: a family later in a code that begins with "A" counts as well.
    if (!code.startsWith(ALBUM_INITIAL))
        return code;
    const QRegularExpressionMatch match = bookRegExp().match(code);
    return match.hasMatch() ? match.captured(1) : code;
}

} // namespace

KTProductType::KTProductType(const QString &code)
    : myCode(normalised(code))
    , myHashValue(myCode.isEmpty() ? 0 : qHash(myCode, 0))
{
}

KTProductType KTProductType::fromMcf(const QDomElement &element)
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
    return myHashValue == other.myHashValue && myCode.compare(other.myCode, Qt::CaseInsensitive) == 0;
}

bool KTProductType::operator<(const KTProductType &other) const
{
    return myHashValue == other.myHashValue ? myCode < other.myCode : myHashValue < other.myHashValue;
}

QDebug operator<<(QDebug stream, const KTProductType &type)
{
    return stream << type.toString();
}
