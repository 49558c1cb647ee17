#include "KTFontCreator.h"

#include <QFont>
#include <QGuiApplication>
#include <QImage>

namespace {

constexpr int SMALLEST_FONT_SIZE = 1;
// Beyond it font engines run out of their fixed-point numbers.
constexpr int LARGEST_FONT_SIZE = 10000;

/** What is printed must not depend on the monitor, so fonts are made for a device with 96 dots per inch. */
const QPaintDevice *layoutDevice()
{
    constexpr int DOTS_PER_METER = 3780;
    static const auto *const myDevice = [] {
        auto *const image = new QImage(1, 1, QImage::Format_Mono);
        image->setDotsPerMeterX(DOTS_PER_METER);
        image->setDotsPerMeterY(DOTS_PER_METER);
        return image;
    }();
    return myDevice;
}

} // namespace

QString KTFontCreator::defaultFontFamily() const
{
    return QFont().family();
}

QFont KTFontCreator::createFont(const QString &family, int size) const
{
    return QFont(QFont(family, qBound(SMALLEST_FONT_SIZE, size, LARGEST_FONT_SIZE)), layoutDevice());
}

bool KTFontCreator::canMeasure() const
{
    return qobject_cast<const QGuiApplication *>(QCoreApplication::instance()) != nullptr;
}
