#pragma once

#include "KTArticleVariants.h"

#include <QList>
#include <QMetaType>

#include <utility>

/** Sets of options in the order they were added. */
class KTPRODUCTBASE_EXPORT KTArticleVariantsList : public QList<KTArticleVariants>
{
public:
    using QList<KTArticleVariants>::QList;
    KTArticleVariantsList() = default;
    KTArticleVariantsList(const QList<KTArticleVariants> &variants)
        : QList<KTArticleVariants>(variants)
    {
    }
    KTArticleVariantsList(QList<KTArticleVariants> &&variants) noexcept
        : QList<KTArticleVariants>(std::move(variants))
    {
    }
    KTArticleVariantsList(const KTArticleVariantsList &other) = default;
    KTArticleVariantsList(KTArticleVariantsList &&other) noexcept = default;
    KTArticleVariantsList &operator=(const KTArticleVariantsList &other) = default;
    KTArticleVariantsList &operator=(KTArticleVariantsList &&other) noexcept = default;
    virtual ~KTArticleVariantsList();

    /** True when some element contains the options, see KTArticleVariants::contains(). */
    bool containsBoxStyle(const KTArticleVariants &variants) const;
};

Q_DECLARE_METATYPE(KTArticleVariantsList)
