#include "KTOrderIdList.h"

#include <QStringList>

namespace {
constexpr QChar SEPARATOR = u',';
}

QString KTOrderIdList::toString() const
{
    QStringList texts;
    for (const KTOrderId &orderId : *this) {
        if (orderId.isValid())
            texts.append(orderId.toString(false));
    }
    return texts.join(SEPARATOR);
}
