#pragma once

#include "ktcore_export.h"

#include <QColor>
#include <QString>

/** Colours as the dialogs show them. */
class KTCORE_EXPORT KTNamedColor
{
public:
    /**
     * A small swatch of the colour, translucent ones included, as an HTML fragment for rich text; an invalid
     * colour gives an empty text.
     */
    [[nodiscard]] static QString renderColorPreviewHTML(const QColor &color);
};
