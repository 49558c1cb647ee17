#include "KTAngle.h"

#include <QDebug>

QDebug operator<<(QDebug stream, const KTAngle &angle)
{
    return stream << "KTAngle:" << angle.degrees();
}
