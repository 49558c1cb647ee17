#include "KTNamedColor.h"

#include <QColor>
#include <QString>

#include <cmath>

namespace {

/** The colour in a style sheet, where "#aarrggbb" is unknown. */
QString cssName(const QColor &color)
{
    constexpr int OPAQUE = 255;
    if (color.alpha() == OPAQUE)
        return color.name(QColor::HexRgb);
    // Rounded up, because rich text truncates what it multiplies the share with; 1 would be opaque.
    const double alpha = std::ceil(color.alpha() * 10000.0 / OPAQUE) / 10000.0;
    return QStringLiteral("rgba(%1,%2,%3,%4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(alpha, 0, 'f', 4);
}

} // namespace

QString KTNamedColor::renderColorPreviewHTML(const QColor &color)
{
    if (!color.isValid())
        return QString();
    return QStringLiteral("<span style=\"background-color:%1\">&nbsp;&nbsp;&nbsp;&nbsp;</span>")
        .arg(cssName(color));
}
