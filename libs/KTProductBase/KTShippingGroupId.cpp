#include "KTShippingGroupId.h"

#include <KTStringLiteral.h>
#include <KTXMLElement.h>
#include <KTXMLParser.h>

#include <QDataStream>
#include <QDebug>
#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QJsonObject>

#include <optional>

namespace {

constexpr KTStringLiteral SHIPPING_GROUP_ID_KEY = "id";
constexpr int NO_GROUP = -1;

} // namespace

KTShippingGroupId::KTShippingGroupId(const QJsonObject &object)
    : myId(object.value(SHIPPING_GROUP_ID_KEY).toInt(NO_GROUP))
{
}

KTShippingGroupId::KTShippingGroupId(const QDomElement &element)
    : KTShippingGroupId(element, SHIPPING_GROUP_ID_KEY)
{
}

KTShippingGroupId::KTShippingGroupId(const KTXMLElement &element, const QString &attributeName)
    : myId(KTXMLParser::intAttribute(element, attributeName, NO_GROUP))
{
}

KTShippingGroupId::KTShippingGroupId(const QDomElement &element, const QString &attributeName)
    : myId(KTXMLParser::intAttribute(element, attributeName, NO_GROUP))
{
}

KTShippingGroupId::KTShippingGroupId(const QDomNamedNodeMap &attributes)
    : KTShippingGroupId(attributes, SHIPPING_GROUP_ID_KEY)
{
}

KTShippingGroupId::KTShippingGroupId(const QDomNamedNodeMap &attributes, const QString &attributeName)
    : myId(KTXMLParser::intAttribute(attributes, attributeName, NO_GROUP))
{
}

KTShippingGroupId KTShippingGroupId::createFrom(const QString &text)
{
    const std::optional<int> id = KTXMLParser::parseInt(text);
    return id ? KTShippingGroupId(*id) : KTShippingGroupId();
}

QString KTShippingGroupId::defaultKey()
{
    return SHIPPING_GROUP_ID_KEY;
}

QString KTShippingGroupId::toString() const
{
    return QString::number(myId);
}

void KTShippingGroupId::toXML(QDomElement &element) const
{
    element.setAttribute(SHIPPING_GROUP_ID_KEY, myId);
}

void KTShippingGroupId::toJSON(QJsonObject &object) const
{
    object.insert(SHIPPING_GROUP_ID_KEY, myId);
}

QDataStream &KTShippingGroupId::operator<<(QDataStream &stream) const
{
    return stream << toString();
}

QDebug operator<<(QDebug stream, const KTShippingGroupId &groupId)
{
    return stream << groupId.toString();
}
