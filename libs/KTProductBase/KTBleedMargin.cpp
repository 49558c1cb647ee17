#include "KTBleedMargin.h"

#include <QDebug>

QDebug operator<<(QDebug stream, const KTBleedMargin &margin)
{
    return stream << QStringLiteral("KTBleedMargin: horizontal: %1; vertical: %2")
                         .arg(margin.horizontal())
                         .arg(margin.vertical());
}
