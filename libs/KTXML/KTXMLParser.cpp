#include "KTXMLParser.h"

#include <KTDistanceUnit.h>
#include <KTStringLiteral.h>

#include <QDomElement>
#include <QDomNamedNodeMap>
#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

constexpr KTStringLiteral UNITS_ATTRIBUTE = "units";
constexpr KTStringLiteral DEFAULT_UNIT = "mm";

/**
 * Reads numbers as QString does, but without the copy that QStringView makes of its text. It lives as long as
 * the process, so that destructors of the application can read, too.
 */
const QLocale &numbers()
{
    static const auto *const myLocale = [] {
        auto *const locale = new QLocale(QLocale::C);
        locale->setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
        return locale;
    }();
    return *myLocale;
}

/** Whether the text is the word, which is in lower case, in any letter case. */
bool isWord(QStringView text, QLatin1String word)
{
    return std::equal(text.begin(), text.end(), word.begin(), word.end(), [](QChar character, char expected) {
        return character.toLower() == QLatin1Char(expected);
    });
}

} // namespace

std::optional<int> KTXMLParser::parseInt(QStringView text)
{
    bool ok = false;
    const int number = numbers().toInt(text, &ok);
    return ok ? std::make_optional(number) : std::nullopt;
}

std::optional<double> KTXMLParser::parseDouble(QStringView text)
{
    bool ok = false;
    const double number = numbers().toDouble(text, &ok);
    return ok && std::isfinite(number) ? std::make_optional(number) : std::nullopt;
}

std::optional<bool> KTXMLParser::parseBool(QStringView text)
{
    const QStringView word = text.trimmed();
    if (isWord(word, QLatin1String("true")) || isWord(word, QLatin1String("1")))
        return true;
    if (isWord(word, QLatin1String("false")) || isWord(word, QLatin1String("0")))
        return false;
    return std::nullopt;
}

QString KTXMLParser::attribute(const QDomElement &element, const QString &name, const QString &defaultValue,
                               bool)
{
    return element.attribute(name, defaultValue);
}

QString KTXMLParser::attribute(const KTXMLElement &element, const QString &name, const QString &defaultValue,
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

int KTXMLParser::intAttribute(const KTXMLElement &element, const QString &name, int defaultValue)
{
    QString storage;
    return parseInt(element.attributeView(name, &storage)).value_or(defaultValue);
}

bool KTXMLParser::boolAttribute(const QDomElement &element, const QString &name, bool defaultValue)
{
    return parseBool(element.attribute(name)).value_or(defaultValue);
}

bool KTXMLParser::boolAttribute(const KTXMLElement &element, const QString &name, bool defaultValue)
{
    QString storage;
    return parseBool(element.attributeView(name, &storage)).value_or(defaultValue);
}

double KTXMLParser::doubleAttribute(const QDomElement &element, const QString &name, double defaultValue)
{
    return parseDouble(element.attribute(name)).value_or(defaultValue);
}

double KTXMLParser::doubleAttribute(const KTXMLElement &element, const QString &name, double defaultValue)
{
    QString storage;
    return parseDouble(element.attributeView(name, &storage)).value_or(defaultValue);
}

KTDistance KTXMLParser::readDistance(const QDomElement &element, const QString &name, double defaultValue,
                                     const KTDistanceUnit &unit)
{
    return readDistance(KTXMLElement(element), name, defaultValue, unit);
}

KTDistance KTXMLParser::readDistance(const KTXMLElement &element, const QString &name, double defaultValue,
                                     const KTDistanceUnit &unit)
{
    const KTDistance distance(doubleAttribute(element, name, defaultValue), unit);
    return std::isfinite(distance.layoutUnits()) ? distance : KTDistance(defaultValue, unit);
}

KTDistanceUnit KTXMLParser::readUnit(const KTXMLElement &element)
{
    const QString unit = element.attribute(UNITS_ATTRIBUTE);
    return KTDistanceUnit(unit.isEmpty() ? QString(DEFAULT_UNIT) : unit);
}
