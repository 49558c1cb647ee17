#pragma once

#include "KTDistanceUnit.h"
#include "ktcore_export.h"

#include <QMetaType>

class QDebug;

/** A length, held in layout units (0.1 mm). Any finite or infinite number is kept as it is. */
class KTCORE_EXPORT KTDistance
{
public:
    /** No length at all. */
    KTDistance() = default;
    /** So many of the unit. */
    KTDistance(double value, const KTDistanceUnit &unit);

    /** The length in the unit. */
    double value(const KTDistanceUnit &unit) const;
    /** The length in layout units, the number held. */
    double layoutUnits() const { return myLayoutUnits; }

    KTDistance &operator+=(const KTDistance &other);
    KTDistance &operator-=(const KTDistance &other);
    KTDistance &operator*=(double factor);

    /** Exact comparison of the numbers held. */
    bool operator==(const KTDistance &other) const { return myLayoutUnits == other.myLayoutUnits; }
    bool operator!=(const KTDistance &other) const { return !(*this == other); }
    bool operator<(const KTDistance &other) const { return myLayoutUnits < other.myLayoutUnits; }

private:
    double myLayoutUnits = 0.0;
};

inline KTDistance operator+(KTDistance first, const KTDistance &second)
{
    return first += second;
}
inline KTDistance operator-(KTDistance first, const KTDistance &second)
{
    return first -= second;
}
inline KTDistance operator*(KTDistance distance, double factor)
{
    return distance *= factor;
}

Q_DECLARE_TYPEINFO(KTDistance, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTDistance)
KTCORE_EXPORT QDebug operator<<(QDebug stream, const KTDistance &distance);
