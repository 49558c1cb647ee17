#pragma once

#include "ktcatalogue_export.h"

#include <KTArticleVariants.h>

/**
 * The library's texts for options, their pairs in the order of their keys: the library itself writes them in
 * the order of its map, which differs between runs.
 */
namespace KTVariantsText {

/** KTArticleVariants::toMCF() in that order. */
KTCATALOGUE_EXPORT QString mcf(const KTArticleVariants &variants);
/** KTArticleVariants::toOrderTxt() in that order. */
KTCATALOGUE_EXPORT QString orderText(const KTArticleVariants &variants);
/**
 * Reads pairs separated by ";", each as the keyword string's; others are skipped. Gives back the production
 * form of what was written, except pairs with a ";" or a key/value separator inside a key or value.
 */
KTCATALOGUE_EXPORT KTArticleVariants fromOrderText(const QString &text);
/** The production form; where two entries expand to the same key, the one with the later key wins. */
KTCATALOGUE_EXPORT KTArticleVariants production(const KTArticleVariants &variants);

} // namespace KTVariantsText
