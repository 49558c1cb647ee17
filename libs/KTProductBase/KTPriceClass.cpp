#include "KTPriceClass.h"

#include <QDebug>

namespace {
constexpr QChar FREE_PREFIX = u'0';
}

KTPriceClass KTPriceClass::create(const QString &code)
{
    return KTPriceClass(code);
}

bool KTPriceClass::isFree() const
{
    return isEmpty() || myCode.startsWith(FREE_PREFIX);
}

QDebug operator<<(QDebug stream, const KTPriceClass &priceClass)
{
    return stream << priceClass.toString();
}
