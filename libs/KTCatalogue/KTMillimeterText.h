#pragma once

#include "ktcatalogue_export.h"

#include <QString>

class QSize;

/** Lengths in layout units of 0.1 mm, in millimetres for people and for other programs. */
namespace KTMillimeterText {

/** The number, with all its digits. */
KTCATALOGUE_EXPORT double millimeters(double layoutUnits);
/** With one decimal, in the C locale. */
KTCATALOGUE_EXPORT QString text(double layoutUnits);
/** "210.0 x 280.0 mm" */
KTCATALOGUE_EXPORT QString text(const QSize &size);

} // namespace KTMillimeterText
