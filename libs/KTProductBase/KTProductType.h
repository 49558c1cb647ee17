#pragma once

#include "KTPriceClass.h"
#include "ktproductbase_export.h"

#include <KTQtTypes.h>
#include <KTStdHash.h>

#include <QMetaType>
#include <QString>

class KTXMLElement;
class QDebug;
class QDomElement;

/**
 * The code that names a family of products in the ordering world, such as "CAL29"; empty means unknown.
 *
 * A product type is the key of registries and never changes. The constructor shortens the code of an album
 * to its family: "ALB9_30" becomes "ALB9", so that all its variants are one product type.
 */
class KTPRODUCTBASE_EXPORT KTProductType
{
public:
    /**
     * A code that begins with "A" and contains "ALB" or "ALBS" with ASCII digits behind is shortened to the
     * first such place. Any other code stays as it is, and so does one that is not valid UTF-16: half of a
     * surrogate pair anywhere in it, before or behind the place, keeps it whole. NUL is a character like any
     * other.
     */
    KTProductType(const QString &code = QString());
    // Declared so that there is no move, which would leave behind a hash without its code.
    KTProductType(const KTProductType &other) = default;
    KTProductType &operator=(const KTProductType &other) = default;

    /** Reads the attribute "productname"; where it is missing, the type is that of "ALB9_30". */
    [[nodiscard]] static KTProductType fromMcf(const QDomElement &element);
    [[nodiscard]] static KTProductType fromMcf(const KTXMLElement &element);
    /** The product type with the code of the price class. */
    [[nodiscard]] static KTProductType fromPriceClass(const KTPriceClass &priceClass);

    /** The code; empty for an unknown type. */
    QString toString() const { return myCode; }
    /** The code, or "UNKNOWN" for an unknown type, as order texts carry it. */
    [[nodiscard]] QString orderTxtName() const;
    bool isValid() const { return !isUnknown(); }
    /** True without a code; the code "UNKNOWN" is a code like any other. */
    bool isUnknown() const { return myCode.isEmpty(); }
    /** True when the code begins with "CAL". */
    bool isCalendar() const;
    /** True for the calendars "CAL29" and "CAL30". */
    bool isAgenda() const;
    /** Qt's hash of the code, seed 0, calculated once; 0 for an unknown type. */
    uint calcHashValue() const { return myHashValue; }

    /** True when the hashes are equal and so are the codes without letter case, which the hash respects. */
    bool operator==(const KTProductType &other) const;
    bool operator!=(const KTProductType &other) const { return !(*this == other); }
    /**
     * Orders by hash, and by code where the hashes are equal; so it is not alphabetical. Codes that differ in
     * case alone are ordered even if their hashes make them equal.
     */
    bool operator<(const KTProductType &other) const;

private:
    QString myCode;
    uint myHashValue = 0;
};

Q_DECLARE_TYPEINFO(KTProductType, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTProductType)

inline KTHashValue qHash(const KTProductType &type, KTHashValue seed = 0)
{
    return type.calcHashValue() ^ seed;
}
KT_DECLARE_STD_HASH(KTProductType)

/** Writes the code as a string. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTProductType &type);
