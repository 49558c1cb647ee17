#pragma once

#include "ktproductbase_export.h"

#include <KTQtTypes.h>
#include <KTStdHash.h>

#include <QHash>
#include <QMetaType>
#include <QString>

class QDebug;

/** The code under which the price list bills one item or option, kept exactly as given; empty means none. */
class KTPRODUCTBASE_EXPORT KTPriceClass
{
public:
    /** No price class. */
    KTPriceClass() = default;
    KTPriceClass(const QString &code)
        : myCode(code)
    {
    }

    [[nodiscard]] static KTPriceClass create(const QString &code);

    /** The code as given. */
    QString toString() const { return myCode; }
    bool isEmpty() const { return myCode.isEmpty(); }
    bool isValid() const { return !isEmpty(); }
    /** True when nothing is billed: without a code, and for every code that begins with the digit 0. */
    bool isFree() const;

    bool operator==(const KTPriceClass &other) const { return myCode == other.myCode; }
    bool operator!=(const KTPriceClass &other) const { return !(*this == other); }
    /** Orders the codes by UTF-16 code units. */
    bool operator<(const KTPriceClass &other) const { return myCode < other.myCode; }

private:
    QString myCode;
};

Q_DECLARE_TYPEINFO(KTPriceClass, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTPriceClass)

/** The hash of the code text with the same seed. */
inline KTHashValue qHash(const KTPriceClass &priceClass, KTHashValue seed = 0)
{
    return qHash(priceClass.toString(), seed);
}
KT_DECLARE_STD_HASH(KTPriceClass)

/** Writes the code as a string. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTPriceClass &priceClass);
