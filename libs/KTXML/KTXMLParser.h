#pragma once

#include "ktxml_export.h"

#include <KTDistance.h>

#include <QString>

#include <optional>

class QDomElement;
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
    [[nodiscard]] static std::optional<int> parseInt(const QString &text);
    [[nodiscard]] static std::optional<double> parseDouble(const QString &text);
    /** "true" and "1", "false" and "0", in any letter case. */
    [[nodiscard]] static std::optional<bool> parseBool(const QString &text);
    /** @} */

    /** The text as it stands; an attribute without text is not missing. The last argument has no effect. */
    [[nodiscard]] static QString attribute(const QDomElement &element, const QString &name,
                                           const QString &defaultValue, bool reserved = true);
    [[nodiscard]] static int intAttribute(const QDomElement &element, const QString &name, int defaultValue);
    [[nodiscard]] static int intAttribute(const QDomNamedNodeMap &attributes, const QString &name,
                                          int defaultValue);
    [[nodiscard]] static bool boolAttribute(const QDomElement &element, const QString &name,
                                            bool defaultValue);
    [[nodiscard]] static double doubleAttribute(const QDomElement &element, const QString &name,
                                                double defaultValue);
    /**
     * A length given, like its default, as a number of the unit. One that is not finite in layout units, such
     * as 1.7e308 millimetres, is unreadable, too.
     */
    [[nodiscard]] static KTDistance readDistance(const QDomElement &element, const QString &name,
                                                 double defaultValue, const KTDistanceUnit &unit);
};
