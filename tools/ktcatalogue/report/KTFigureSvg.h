#pragma once

#include "KTPreviewModel.h"

class KTHtmlWriter;

/** Draws the figures of a preview into a page, to scale; what they share stands once in the page. */
namespace KTFigureSvg {

/** How many times smaller than they are the figures are drawn: the same for all, as large as a page permits.
 */
int scale(const QVector<KTPreviewModel::Figure> &figures);

/** Writes what the drawings of all articles refer to, and the ground of transparent swatches. */
void writeDefinitions(KTHtmlWriter *html);
/** A figure with its caption. One unit of the drawing is a millimetre of the product. */
void write(KTHtmlWriter *html, const KTPreviewModel::Figure &figure, int scale);

} // namespace KTFigureSvg
