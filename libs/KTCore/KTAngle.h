#pragma once

#include "ktcore_export.h"

#include <QMetaType>

class QDebug;

/** An angle in degrees. Any number is kept as it is: 360 is not 0. */
class KTAngle
{
public:
    constexpr KTAngle(double degrees = 0.0)
        : myDegrees(degrees)
    {
    }

    constexpr double degrees() const { return myDegrees; }
    /** True for exactly 0. */
    constexpr bool isNull() const { return myDegrees == 0.0; }

    /** Exact comparison of the numbers held. */
    constexpr bool operator==(const KTAngle &other) const { return myDegrees == other.myDegrees; }
    constexpr bool operator!=(const KTAngle &other) const { return !(*this == other); }
    constexpr bool operator<(const KTAngle &other) const { return myDegrees < other.myDegrees; }

private:
    double myDegrees;
};

Q_DECLARE_TYPEINFO(KTAngle, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTAngle)
KTCORE_EXPORT QDebug operator<<(QDebug stream, const KTAngle &angle);
