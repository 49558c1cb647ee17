#pragma once

#include "KTArticleId.h"

#include <QList>
#include <QMetaType>

/** Article ids in the order they were added; one may stand in it twice. */
class KTPRODUCTBASE_EXPORT KTArticleIdList : public QList<KTArticleId>
{
public:
    KTArticleIdList() = default;
    KTArticleIdList(const KTArticleIdList &other) = default;
    KTArticleIdList(KTArticleIdList &&other) noexcept = default;
    KTArticleIdList &operator=(const KTArticleIdList &other) = default;
    KTArticleIdList &operator=(KTArticleIdList &&other) noexcept = default;
    virtual ~KTArticleIdList();
};

Q_DECLARE_METATYPE(KTArticleIdList)
