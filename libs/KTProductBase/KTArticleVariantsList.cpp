#include "KTArticleVariantsList.h"

#include <algorithm>

KTArticleVariantsList::~KTArticleVariantsList() = default;

bool KTArticleVariantsList::containsBoxStyle(const KTArticleVariants &variants) const
{
    return std::any_of(begin(), end(),
                       [&variants](const KTArticleVariants &element) { return element.contains(variants); });
}
