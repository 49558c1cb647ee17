#include "KTBarcodeDefinition.h"

#include <KTArithmetic.h>
#include <KTDirectoryConfig.h>
#include <KTDistanceUnit.h>
#include <KTStringLiteral.h>
#include <KTXMLParser.h>

#include <QDebug>
#include <QDomElement>
#include <QHash>
#include <QImageReader>

#include <limits>

using KTArithmetic::truncated;

namespace {

constexpr KTStringLiteral POSITION_X_ATTRIBUTE = "position_x";
constexpr KTStringLiteral POSITION_Y_ATTRIBUTE = "position_y";
constexpr KTStringLiteral WIDTH_ATTRIBUTE = "width";
constexpr KTStringLiteral HEIGHT_ATTRIBUTE = "height";
constexpr KTStringLiteral PAGE_NR_ATTRIBUTE = "pageNr";
constexpr KTStringLiteral IMAGE_ATTRIBUTE = "image";
constexpr KTStringLiteral DEFAULT_IMAGE_NAME = "dummy-barcode.png";
constexpr KTStringLiteral IMAGE_FOLDER = "icons/picshelf/";

constexpr double DEFAULT_LENGTH = 1.0;
// A small file can claim any size, and the memory is taken before the first pixel is read.
constexpr qint64 MOST_PIXELS = 64000000;

double layoutUnits(const QDomElement &element, const QString &name, const KTDistanceUnit &unit)
{
    return KTXMLParser::readDistance(element, name, DEFAULT_LENGTH, unit).value(KTDistanceUnitLayout);
}

/** A side as QRect holds it, by its first and last unit. */
struct Side
{
    int first;
    int last;
};

/** QRect computes one past the last unit and the difference, which have to be ints. */
Side side(int position, int size)
{
    constexpr int LOWEST = std::numeric_limits<int>::min();
    constexpr int HIGHEST = std::numeric_limits<int>::max();
    const qint64 end = qint64(position) + qMax(size, -HIGHEST);
    // A size below 1 stays below.
    if (end <= LOWEST)
        return {LOWEST + 1, LOWEST};
    if (end > HIGHEST && position == HIGHEST)
        return {HIGHEST - 1, HIGHEST - 1};
    return {position, static_cast<int>(qMin<qint64>(end, HIGHEST) - 1)};
}

/** QRect::width() and height() overflow for the largest rectangles. */
qint64 widthOf(const QRect &rect)
{
    return qint64(rect.right()) - rect.left();
}

qint64 heightOf(const QRect &rect)
{
    return qint64(rect.bottom()) - rect.top();
}

QImage loadedImage(const QString &path)
{
    if (path.isEmpty())
        return QImage();
    const QSize size = QImageReader(path).size();
    if (size.isEmpty() || qint64(size.width()) * size.height() > MOST_PIXELS)
        return QImage();
    return QImage(path);
}

} // namespace

KTBarcodeDefinition::KTBarcodeDefinition(const QRect &rect, int pageNr, const QString &imageName)
    : myRect(rect)
    , myPageNr(pageNr)
    , myImageName(imageName)
{
}

KTBarcodeDefinition::~KTBarcodeDefinition() = default;

KTBarcodeDefinition KTBarcodeDefinition::createFromProductsXML(const QDomElement &element,
                                                               const KTDistanceUnit &unit)
{
    const double x = layoutUnits(element, POSITION_X_ATTRIBUTE, unit);
    const double y = layoutUnits(element, POSITION_Y_ATTRIBUTE, unit);
    const double width = layoutUnits(element, WIDTH_ATTRIBUTE, unit);
    const double height = layoutUnits(element, HEIGHT_ATTRIBUTE, unit);
    const Side horizontal = side(truncated(x), truncated(width));
    // The position is the lower edge; only the difference is truncated.
    const Side vertical = side(truncated(y - height), truncated(height));
    const QRect rect(QPoint(horizontal.first, vertical.first), QPoint(horizontal.last, vertical.last));
    return KTBarcodeDefinition(rect, KTXMLParser::intAttribute(element.attributes(), PAGE_NR_ATTRIBUTE, 0),
                               KTXMLParser::attribute(element, IMAGE_ATTRIBUTE, DEFAULT_IMAGE_NAME, true));
}

QImage KTBarcodeDefinition::image() const
{
    if (myImage.isNull()) {
        myImage = loadedImage(
            KTSingleton<KTDirectoryConfig>::instance()->resource(IMAGE_FOLDER + myImageName, false));
    }
    return myImage;
}

bool KTBarcodeDefinition::isValid() const
{
    return myRect.isValid() && !myImageName.isEmpty();
}

bool KTBarcodeDefinition::operator==(const KTBarcodeDefinition &other) const
{
    return myRect == other.myRect && myPageNr == other.myPageNr && myImageName == other.myImageName;
}

bool KTBarcodeDefinition::operator<(const KTBarcodeDefinition &other) const
{
    return myRect.left() < other.myRect.left() || myRect.top() < other.myRect.top()
        || widthOf(myRect) < widthOf(other.myRect) || heightOf(myRect) < heightOf(other.myRect)
        || myPageNr < other.myPageNr || myImageName < other.myImageName;
}

uint qHash(const KTBarcodeDefinition &definition, uint seed)
{
    const QRect rect = definition.rect();
    const int edges[] = {rect.left(), rect.top(), rect.right(), rect.bottom(), definition.pageNr()};
    return qHash(definition.imageName(), qHashBits(edges, sizeof(edges), seed));
}

QDebug operator<<(QDebug stream, const KTBarcodeDefinition &definition)
{
    return stream << "KTBarcodeDefinition:" << definition.rect() << definition.pageNr()
                  << definition.imageName();
}
