#pragma once

#include "KTDifference.h"
#include "ktcatalogue_export.h"

#include <QVector>

class KTArticle;

/**
 * What differs between two versions of an article.
 *
 * Compared is what the library makes of them, price flags, preselection, slipcases and letter case included,
 * not how they are written: neither other spellings of the same keyword, length or colour nor an attribute
 * that says what is the default anyway are differences. Safe from any thread.
 */
namespace KTArticleComparison {

/** In the order of the rules, without places in files. */
[[nodiscard]] KTCATALOGUE_EXPORT QVector<KTDifference> differences(const KTArticle &older,
                                                                   const KTArticle &newer);
/** The one difference there is for an article that only the older catalogue has. */
[[nodiscard]] KTCATALOGUE_EXPORT KTDifference removal(const KTArticle &older);
/** The one for an article that only the newer catalogue has. */
[[nodiscard]] KTCATALOGUE_EXPORT KTDifference addition(const KTArticle &newer);

} // namespace KTArticleComparison
