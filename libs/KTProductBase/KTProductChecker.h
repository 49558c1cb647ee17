#pragma once

#include "KTArticleVariants.h"
#include "KTProductCheckerType.h"
#include "KTProductType.h"

/**
 * Says whether a product may be offered or ordered; the application implements it.
 *
 * The registry may ask from any thread, and KTProductCheckerRegistry::isValid() asks under the registry's
 * lock. A checker may ask the registry other questions in turn; the same one again recurses without end, and
 * waiting for another thread that asks the registry never ends.
 */
class KTPRODUCTBASE_EXPORT KTProductChecker
{
public:
    virtual ~KTProductChecker();

    /** False to object to the product type. */
    virtual bool checkProductType(const KTProductType &type) = 0;
    /** The union of the checker types that it serves. */
    virtual KTProductCheckerType checkerType() = 0;
    /** False to object to the product type with these options of its box. */
    virtual bool checkBoxStyle(const KTProductType &type, const KTArticleVariants &variants) = 0;
};
