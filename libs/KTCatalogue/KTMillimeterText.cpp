#include "KTMillimeterText.h"

#include <QSize>

double KTMillimeterText::millimeters(double layoutUnits)
{
    constexpr double LAYOUT_UNITS_PER_MILLIMETER = 10.0;
    return layoutUnits / LAYOUT_UNITS_PER_MILLIMETER;
}

QString KTMillimeterText::text(double layoutUnits)
{
    return QString::number(millimeters(layoutUnits), 'f', 1);
}

QString KTMillimeterText::text(const QSize &size)
{
    return QStringLiteral("%1 x %2 mm").arg(text(size.width()), text(size.height()));
}
