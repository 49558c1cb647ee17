#pragma once

#include "KTArticleId.h"
#include "KTConfiguredArticleVariantList.h"

/** Where the application keeps the options of its articles; this library only names the interface. */
class KTPRODUCTBASE_EXPORT KTConfiguredArticleVariantRegistryAbstract
{
public:
    virtual ~KTConfiguredArticleVariantRegistryAbstract();

    /** Keeps the options of the article, replacing earlier ones. */
    virtual void registerVariants(const KTArticleId &articleId,
                                  const KTConfiguredArticleVariantList &variants)
        = 0;
    /** The options of the article; an empty list for an article that is not registered. */
    virtual KTConfiguredArticleVariantList variants(const KTArticleId &articleId) const = 0;
};
