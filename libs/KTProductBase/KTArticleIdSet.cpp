#include "KTArticleIdSet.h"

#include <algorithm>

KTArticleIdSet::KTArticleIdSet(const QSet<KTArticleId> &other)
    : QSet<KTArticleId>(other)
{
}

KTArticleIdSet::~KTArticleIdSet() = default;

bool KTArticleIdSet::extends(const KTArticleIdSet &other) const
{
    if (other.size() > size())
        return false;
    return std::all_of(other.begin(), other.end(), [this](const KTArticleId &id) { return contains(id); });
}
