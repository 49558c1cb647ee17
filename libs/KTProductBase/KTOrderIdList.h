#pragma once

#include "KTOrderId.h"

#include <QList>

#include <utility>

/** Order ids in the order they were added; one may stand in it twice. */
class KTPRODUCTBASE_EXPORT KTOrderIdList : public QList<KTOrderId>
{
public:
    using QList<KTOrderId>::QList;
    KTOrderIdList() = default;
    KTOrderIdList(const QList<KTOrderId> &orderIds)
        : QList<KTOrderId>(orderIds)
    {
    }
    KTOrderIdList(QList<KTOrderId> &&orderIds) noexcept
        : QList<KTOrderId>(std::move(orderIds))
    {
    }

    /** The texts of the valid ids joined by ",". */
    [[nodiscard]] QString toString() const;
};

Q_DECLARE_TYPEINFO(KTOrderIdList, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTOrderIdList)
