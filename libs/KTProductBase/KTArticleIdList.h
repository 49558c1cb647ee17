#pragma once

#include "KTArticleId.h"

#include <QList>
#include <QMetaType>

#include <utility>

/** Article ids in the order they were added; one may stand in it twice. */
class KTPRODUCTBASE_EXPORT KTArticleIdList : public QList<KTArticleId>
{
public:
    using QList<KTArticleId>::QList;
    KTArticleIdList() = default;
    KTArticleIdList(const QList<KTArticleId> &articleIds)
        : QList<KTArticleId>(articleIds)
    {
    }
    KTArticleIdList(QList<KTArticleId> &&articleIds) noexcept
        : QList<KTArticleId>(std::move(articleIds))
    {
    }
    KTArticleIdList(const KTArticleIdList &other) = default;
    KTArticleIdList(KTArticleIdList &&other) noexcept = default;
    KTArticleIdList &operator=(const KTArticleIdList &other) = default;
    KTArticleIdList &operator=(KTArticleIdList &&other) noexcept = default;
    virtual ~KTArticleIdList();
};

Q_DECLARE_METATYPE(KTArticleIdList)
