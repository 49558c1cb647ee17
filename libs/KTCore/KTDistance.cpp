#include "KTDistance.h"

#include "KTDistanceUnit.h"

#include <QDebug>

KTDistance::KTDistance(double value, const KTDistanceUnit &unit)
    : myLayoutUnits(unit.units2Pixels(value))
{
}

double KTDistance::value(const KTDistanceUnit &unit) const
{
    return unit.pixels2Units(myLayoutUnits);
}

KTDistance &KTDistance::operator+=(const KTDistance &other)
{
    myLayoutUnits += other.myLayoutUnits;
    return *this;
}

KTDistance &KTDistance::operator-=(const KTDistance &other)
{
    myLayoutUnits -= other.myLayoutUnits;
    return *this;
}

KTDistance &KTDistance::operator*=(double factor)
{
    myLayoutUnits *= factor;
    return *this;
}

QDebug operator<<(QDebug stream, const KTDistance &distance)
{
    return stream << "KTDistance:" << distance.layoutUnits();
}
