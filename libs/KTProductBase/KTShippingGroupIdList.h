#pragma once

#include "KTShippingGroupId.h"

#include <QList>
#include <QMetaType>

#include <utility>

/** Shipping groups in the order they were added; one may stand in it twice. */
class KTPRODUCTBASE_EXPORT KTShippingGroupIdList : public QList<KTShippingGroupId>
{
public:
    using QList<KTShippingGroupId>::QList;
    KTShippingGroupIdList() = default;
    KTShippingGroupIdList(const QList<KTShippingGroupId> &groupIds);
    KTShippingGroupIdList(QList<KTShippingGroupId> &&groupIds) noexcept
        : QList<KTShippingGroupId>(std::move(groupIds))
    {
    }
    /** One group for each number, in order; a -1 becomes an invalid element. */
    KTShippingGroupIdList(const QList<int> &ids);
    KTShippingGroupIdList(const KTShippingGroupIdList &other) = default;
    KTShippingGroupIdList(KTShippingGroupIdList &&other) noexcept = default;
    KTShippingGroupIdList &operator=(const KTShippingGroupIdList &other) = default;
    KTShippingGroupIdList &operator=(KTShippingGroupIdList &&other) noexcept = default;
    virtual ~KTShippingGroupIdList();

    /** With `equal` the elements that are the given group, without it all others; in their order. */
    [[nodiscard]] KTShippingGroupIdList filter(const KTShippingGroupId &groupId, bool equal) const;
};

Q_DECLARE_METATYPE(KTShippingGroupIdList)
