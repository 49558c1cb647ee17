#pragma once

#include <KTArticleVariants.h>

#include <QJsonObject>

/**
 * The library's texts for options, their pairs in the order of their keys: the library writes them in the
 * order of its map, which differs between runs.
 */
namespace KTVariantsText {

QString mcf(const KTArticleVariants &variants);
QString orderTxt(const KTArticleVariants &variants);
/** The production form; where two entries expand to the same key, the one with the later key wins. */
KTArticleVariants xtci(const KTArticleVariants &variants);
QJsonObject json(const KTArticleVariants &variants);

} // namespace KTVariantsText
