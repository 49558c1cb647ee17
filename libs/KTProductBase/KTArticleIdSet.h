#pragma once

#include "KTArticleId.h"

#include <QMetaType>
#include <QSet>

#include <utility>

/** Article ids without order and without duplicates. */
class KTPRODUCTBASE_EXPORT KTArticleIdSet : public QSet<KTArticleId>
{
public:
    using QSet<KTArticleId>::QSet;
    KTArticleIdSet() = default;
    /** Shares the data of the set. */
    KTArticleIdSet(const QSet<KTArticleId> &other);
    KTArticleIdSet(QSet<KTArticleId> &&other) noexcept
        : QSet<KTArticleId>(std::move(other))
    {
    }
    KTArticleIdSet(const KTArticleIdSet &other) = default;
    KTArticleIdSet(KTArticleIdSet &&other) noexcept = default;
    KTArticleIdSet &operator=(const KTArticleIdSet &other) = default;
    KTArticleIdSet &operator=(KTArticleIdSet &&other) noexcept = default;
    virtual ~KTArticleIdSet();

    /** True when no id of the other set is missing; so for an equal and for an empty one. */
    bool extends(const KTArticleIdSet &other) const;
};

Q_DECLARE_METATYPE(KTArticleIdSet)
