#include "KTArticleId.h"

#include <KTStringLiteral.h>
#include <KTXMLBuilder.h>
#include <KTXMLElement.h>
#include <KTXMLParser.h>

#include <QDataStream>
#include <QDebug>
#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QJsonObject>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace {

constexpr KTStringLiteral ARTICLE_ID_KEY = "id";
constexpr KTStringLiteral ARTICLE_ART_ID_KEY = "art_id";
constexpr KTStringLiteral ARTICLE_ARTICLE_ID_KEY = "article_id";

constexpr int FOTOS_WITHOUT_VARIABLE_LENGTH[] = {9024, 9025, 9026};
constexpr int ADVENT_CALENDARS_WITH_DOOR_BACK_PRINT[] = {6322, 6323, 6513, 6514};

template <std::size_t N>
bool contains(const int (&ids)[N], int id)
{
    return std::find(std::begin(ids), std::end(ids), id) != std::end(ids);
}

} // namespace

KTArticleId::KTArticleId(const QJsonObject &object)
    : KTArticleId(object, ARTICLE_ID_KEY)
{
}

KTArticleId::KTArticleId(const QJsonObject &object, const QString &key)
    : myId(object.value(key).toInt(0))
{
}

KTArticleId::KTArticleId(const QDomNamedNodeMap &attributes, const QString &attributeName)
    : myId(KTXMLParser::intAttribute(attributes, attributeName, 0))
{
}

KTArticleId::KTArticleId(const QDomElement &element, const QString &attributeName)
    : myId(KTXMLParser::intAttribute(element, attributeName, 0))
{
}

KTArticleId::KTArticleId(const KTXMLElement &element, const QString &attributeName)
    : myId(KTXMLParser::intAttribute(element, attributeName, 0))
{
}

KTArticleId KTArticleId::fromIdAttribute(const QDomElement &element)
{
    return KTArticleId(element, ARTICLE_ID_KEY);
}

KTArticleId KTArticleId::fromIdAttribute(const QDomNamedNodeMap &attributes)
{
    return KTArticleId(attributes, ARTICLE_ID_KEY);
}

KTArticleId KTArticleId::fromArtIdAttribute(const QDomElement &element)
{
    return KTArticleId(element, ARTICLE_ART_ID_KEY);
}

KTArticleId KTArticleId::fromArtIdAttribute(const QDomNamedNodeMap &attributes)
{
    return KTArticleId(attributes, ARTICLE_ART_ID_KEY);
}

KTArticleId KTArticleId::fromArticleIdAttribute(const QDomElement &element)
{
    return KTArticleId(element, ARTICLE_ARTICLE_ID_KEY);
}

KTArticleId KTArticleId::fromArticleIdAttribute(const QDomNamedNodeMap &attributes)
{
    return KTArticleId(attributes, ARTICLE_ARTICLE_ID_KEY);
}

KTArticleId KTArticleId::findId(const QDomElement &element)
{
    return findId(KTXMLElement(element));
}

KTArticleId KTArticleId::findId(const KTXMLElement &element)
{
    const KTArticleId articleId(element, ARTICLE_ART_ID_KEY);
    return articleId.isValid() ? articleId : KTArticleId(element, ARTICLE_ID_KEY);
}

QString KTArticleId::defaultKey()
{
    return ARTICLE_ID_KEY;
}

QString KTArticleId::toString() const
{
    return QString::number(myId);
}

QDomElement KTArticleId::createSubElement(QDomElement &parent, const QString &tagName) const
{
    QDomElement child = KTXMLBuilder::buildDomElement(parent, tagName);
    toIdAttribute(child);
    return child;
}

void KTArticleId::toIdAttribute(QDomElement &element) const
{
    toAttribute(element, ARTICLE_ID_KEY);
}

void KTArticleId::toArtIdAttribute(QDomElement &element) const
{
    toAttribute(element, ARTICLE_ART_ID_KEY);
}

void KTArticleId::toAttribute(QDomElement &element, const QString &attributeName) const
{
    element.setAttribute(attributeName, toString());
}

void KTArticleId::toJSON(QJsonObject &object) const
{
    object.insert(ARTICLE_ID_KEY, myId);
}

bool KTArticleId::isFotoWithoutVariableLength() const
{
    return contains(FOTOS_WITHOUT_VARIABLE_LENGTH, myId);
}

bool KTArticleId::isAdventCalendarWithDoorBackPrint() const
{
    return contains(ADVENT_CALENDARS_WITH_DOOR_BACK_PRINT, myId);
}

QDataStream &KTArticleId::operator<<(QDataStream &stream) const
{
    return stream << toString();
}

QDebug operator<<(QDebug stream, const KTArticleId &articleId)
{
    return stream << articleId.toString();
}
