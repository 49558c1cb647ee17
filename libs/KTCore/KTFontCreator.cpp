#include "KTFontCreator.h"

#include <QFont>

namespace {
constexpr int SMALLEST_FONT_SIZE = 1;
// Beyond it font engines run out of their fixed-point numbers.
constexpr int LARGEST_FONT_SIZE = 10000;
} // namespace

QString KTFontCreator::defaultFontFamily() const
{
    return QFont().family();
}

QFont KTFontCreator::createFont(const QString &family, int size) const
{
    return QFont(family, qBound(SMALLEST_FONT_SIZE, size, LARGEST_FONT_SIZE));
}
