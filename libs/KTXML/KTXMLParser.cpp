#include "KTXMLParser.h"

#include <KTDistanceUnit.h>

#include <QDomElement>
#include <QDomNamedNodeMap>

#include <cmath>

std::optional<int> KTXMLParser::parseInt(const QString &text)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    return ok ? std::make_optional(number) : std::nullopt;
}

std::optional<double> KTXMLParser::parseDouble(const QString &text)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    return ok && std::isfinite(number) ? std::make_optional(number) : std::nullopt;
}

std::optional<bool> KTXMLParser::parseBool(const QString &text)
{
    const QString word = text.trimmed().toLower();
    if (word == QLatin1String("true") || word == QLatin1String("1"))
        return true;
    if (word == QLatin1String("false") || word == QLatin1String("0"))
        return false;
    return std::nullopt;
}

QString KTXMLParser::attribute(const QDomElement &element, const QString &name, const QString &defaultValue,
                               bool)
{
    return element.attribute(name, defaultValue);
}

int KTXMLParser::intAttribute(const QDomElement &element, const QString &name, int defaultValue)
{
    return parseInt(element.attribute(name)).value_or(defaultValue);
}

int KTXMLParser::intAttribute(const QDomNamedNodeMap &attributes, const QString &name, int defaultValue)
{
    return parseInt(attributes.namedItem(name).nodeValue()).value_or(defaultValue);
}

bool KTXMLParser::boolAttribute(const QDomElement &element, const QString &name, bool defaultValue)
{
    return parseBool(element.attribute(name)).value_or(defaultValue);
}

double KTXMLParser::doubleAttribute(const QDomElement &element, const QString &name, double defaultValue)
{
    return parseDouble(element.attribute(name)).value_or(defaultValue);
}

KTDistance KTXMLParser::readDistance(const QDomElement &element, const QString &name, double defaultValue,
                                     const KTDistanceUnit &unit)
{
    const KTDistance distance(doubleAttribute(element, name, defaultValue), unit);
    return std::isfinite(distance.layoutUnits()) ? distance : KTDistance(defaultValue, unit);
}
