#include "KTBarcodeDefinition.h"

#include <KTArithmetic.h>
#include <KTDirectoryConfig.h>
#include <KTDistanceUnit.h>
#include <KTStringLiteral.h>
#include <KTXMLElement.h>
#include <KTXMLParser.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QDebug>
#include <QDomElement>
#include <QFile>
#include <QHash>
#include <QImageReader>
#include <QMutex>
#include <QMutexLocker>
#include <QtEndian>

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

double layoutUnits(const KTXMLElement &element, const QString &name, const KTDistanceUnit &unit)
{
    return KTXMLParser::readDistance(element, name, DEFAULT_LENGTH, unit).value(KTDistanceUnitLayout);
}

// Set when exit() destroys objects with static storage; Qt's image formats are among them.
bool isExiting = false;

/** Called before Qt makes its formats, and when there is an application object, so that they go later. */
void watchExit()
{
    static const struct Watch
    {
        ~Watch() { isExiting = true; }
    } myWatch;
}
Q_COREAPP_STARTUP_FUNCTION(watchExit)

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

constexpr bool isTooLarge(qint64 width, qint64 height)
{
    // The product of two header fields may not fit into 64 bits.
    return height > 0 && width > MOST_PIXELS / height;
}

/** True for an icon or cursor file whose picture, whatever the directory says of it, has too many pixels. */
bool isIconTooLarge(const QString &path)
{
    constexpr int MAGIC_SIZE = 4;
    constexpr int OFFSET_IN_DIRECTORY = 18;
    constexpr int HEADER_SIZE = 24;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray directory = file.read(HEADER_SIZE);
    const QByteArray magic = directory.left(MAGIC_SIZE).toHex();
    if (directory.size() < HEADER_SIZE || (magic != "00000100" && magic != "00000200"))
        return false;
    file.seek(qFromLittleEndian<quint32>(directory.constData() + OFFSET_IN_DIRECTORY));
    const QByteArray header = file.read(HEADER_SIZE);
    if (header.size() < HEADER_SIZE)
        return false;
    const char *const bytes = header.constData();
    if (header.startsWith("\x89PNG"))
        return isTooLarge(qFromBigEndian<quint32>(bytes + 16), qFromBigEndian<quint32>(bytes + 20));
    // Else a bitmap, which may lie upside down.
    return isTooLarge(qAbs(qint64(qFromLittleEndian<qint32>(bytes + 4))),
                      qAbs(qint64(qFromLittleEndian<qint32>(bytes + 8))));
}

QImage decoded(QImageReader *reader)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Qt 6 has a limit of its own, one for all images of the process and below MOST_PIXELS, in megabytes.
    constexpr qint64 BYTES_PER_PIXEL = 16;
    constexpr int MOST_MEGABYTES = static_cast<int>((MOST_PIXELS * BYTES_PER_PIXEL) >> 20) + 1;
    static QMutex mutex;
    const QMutexLocker locker(&mutex);
    const int limit = QImageReader::allocationLimit();
    if (limit > 0 && limit < MOST_MEGABYTES) {
        QImageReader::setAllocationLimit(MOST_MEGABYTES);
        const QImage image = reader->read();
        QImageReader::setAllocationLimit(limit);
        return image;
    }
#endif
    return reader->read();
}

QImage loadedImage(const QString &path)
{
    watchExit();
    if (path.isEmpty() || isExiting)
        return QImage();
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.isEmpty() || isTooLarge(size.width(), size.height()) || isIconTooLarge(path))
        return QImage();
    return decoded(&reader);
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
    return createFromProductsXML(KTXMLElement(element), unit);
}

KTBarcodeDefinition KTBarcodeDefinition::createFromProductsXML(const KTXMLElement &element,
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
    return KTBarcodeDefinition(rect, KTXMLParser::intAttribute(element, PAGE_NR_ATTRIBUTE, 0),
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

KTHashValue qHash(const KTBarcodeDefinition &definition, KTHashValue seed)
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
