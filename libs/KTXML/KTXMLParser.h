#pragma once

#include "KTXMLElement.h"
#include "ktxml_export.h"

#include <KTDistance.h>

#include <QString>

#include <optional>

class QDomNamedNodeMap;

/**
 * Typed attributes of an element, each with the default for an attribute that is missing or unreadable.
 *
 * Nothing is reported. Numbers are read as QString::toInt() and toDouble() read them; one that is out of
 * range or not finite is unreadable. A null element reads as if every attribute were missing.
 */
class KTXML_EXPORT KTXMLParser
{
public:
    /** @name The values of texts; none of an unreadable one. Blanks around them are ignored. */
    /** @{ */
    [[nodiscard]] static std::optional<int> parseInt(QStringView text);
    [[nodiscard]] static std::optional<double> parseDouble(QStringView text);
    /** "true" and "1", "false" and "0", in any letter case. */
    [[nodiscard]] static std::optional<bool> parseBool(QStringView text);
    /** @} */

    /** The text as it stands; an attribute without text is not missing. The last argument has no effect. */
    [[nodiscard]] static QString attribute(const QDomElement &element, const QString &name,
                                           const QString &defaultValue, bool reserved = true);
    [[nodiscard]] static QString attribute(const KTXMLElement &element, const QString &name,
                                           const QString &defaultValue, bool reserved = true);
    [[nodiscard]] static int intAttribute(const QDomElement &element, const QString &name, int defaultValue);
    [[nodiscard]] static int intAttribute(const QDomNamedNodeMap &attributes, const QString &name,
                                          int defaultValue);
    [[nodiscard]] static int intAttribute(const KTXMLElement &element, const QString &name, int defaultValue);
    [[nodiscard]] static bool boolAttribute(const QDomElement &element, const QString &name,
                                            bool defaultValue);
    [[nodiscard]] static bool boolAttribute(const KTXMLElement &element, const QString &name,
                                            bool defaultValue);
    [[nodiscard]] static double doubleAttribute(const QDomElement &element, const QString &name,
                                                double defaultValue);
    [[nodiscard]] static double doubleAttribute(const KTXMLElement &element, const QString &name,
                                                double defaultValue);
    /**
     * A length given, like its default, as a number of the unit. One that is not finite in layout units, such
     * as 1.7e308 millimetres, is unreadable, too.
     */
    [[nodiscard]] static KTDistance readDistance(const QDomElement &element, const QString &name,
                                                 double defaultValue, const KTDistanceUnit &unit);
    [[nodiscard]] static KTDistance readDistance(const KTXMLElement &element, const QString &name,
                                                 double defaultValue, const KTDistanceUnit &unit);
    /** The unit of the element's lengths, "units"; millimetres where it is missing or has no text. */
    [[nodiscard]] static KTDistanceUnit readUnit(const KTXMLElement &element);
};
