#include "KTNamedColor.h"

#include <QColor>
#include <QString>

QString KTNamedColor::renderColorPreviewHTML(const QColor &color)
{
    if (!color.isValid())
        return QString();
    // Rich text knows no translucent backgrounds, so the swatch shows the colour without its alpha.
    return QStringLiteral("<span style=\"background-color:%1\">&nbsp;&nbsp;&nbsp;&nbsp;</span>")
        .arg(color.name(QColor::HexRgb));
}
