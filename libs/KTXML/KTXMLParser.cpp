#include "KTXMLParser.h"

#include <KTDistanceUnit.h>

#include <QDomElement>
#include <QDomNamedNodeMap>

#include <cmath>

namespace {

int toInt(const QString &text, int defaultValue)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    return ok ? number : defaultValue;
}

} // namespace

QString KTXMLParser::attribute(const QDomElement &element, const QString &name, const QString &defaultValue,
                               bool)
{
    return element.attribute(name, defaultValue);
}

int KTXMLParser::intAttribute(const QDomElement &element, const QString &name, int defaultValue)
{
    return toInt(element.attribute(name), defaultValue);
}

int KTXMLParser::intAttribute(const QDomNamedNodeMap &attributes, const QString &name, int defaultValue)
{
    return toInt(attributes.namedItem(name).nodeValue(), defaultValue);
}

bool KTXMLParser::boolAttribute(const QDomElement &element, const QString &name, bool defaultValue)
{
    const QString text = element.attribute(name).trimmed().toLower();
    if (text == QLatin1String("true") || text == QLatin1String("1"))
        return true;
    if (text == QLatin1String("false") || text == QLatin1String("0"))
        return false;
    return defaultValue;
}

double KTXMLParser::doubleAttribute(const QDomElement &element, const QString &name, double defaultValue)
{
    bool ok = false;
    const double number = element.attribute(name).toDouble(&ok);
    return ok && std::isfinite(number) ? number : defaultValue;
}

KTDistance KTXMLParser::readDistance(const QDomElement &element, const QString &name, double defaultValue,
                                     const KTDistanceUnit &unit)
{
    const KTDistance distance(doubleAttribute(element, name, defaultValue), unit);
    return std::isfinite(distance.layoutUnits()) ? distance : KTDistance(defaultValue, unit);
}
