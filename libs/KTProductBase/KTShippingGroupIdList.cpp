#include "KTShippingGroupIdList.h"

#include <algorithm>
#include <iterator>

KTShippingGroupIdList::KTShippingGroupIdList(const QList<KTShippingGroupId> &groupIds)
    : QList(groupIds)
{
}

KTShippingGroupIdList::KTShippingGroupIdList(const QList<int> &ids)
    : QList(ids.begin(), ids.end())
{
}

KTShippingGroupIdList::~KTShippingGroupIdList() = default;

KTShippingGroupIdList KTShippingGroupIdList::filter(const KTShippingGroupId &groupId, bool equal) const
{
    KTShippingGroupIdList groupIds;
    std::copy_if(begin(), end(), std::back_inserter(groupIds),
                 [&](const KTShippingGroupId &element) { return (element == groupId) == equal; });
    return groupIds;
}
