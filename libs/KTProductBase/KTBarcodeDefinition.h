#pragma once

#include "ktproductbase_export.h"

#include <KTDistanceUnit.h>
#include <KTQtTypes.h>

#include <QImage>
#include <QMetaType>
#include <QRect>
#include <QString>

class KTXMLElement;
class QDebug;
class QDomElement;

/** Where a production barcode stands on a product, in layout units, and the image that stands for it. */
class KTPRODUCTBASE_EXPORT KTBarcodeDefinition
{
public:
    /** A null rectangle on page 0 without image name: not valid. */
    KTBarcodeDefinition() = default;
    KTBarcodeDefinition(const QRect &rect, int pageNr, const QString &imageName);
    KTBarcodeDefinition(const KTBarcodeDefinition &other) = default;
    KTBarcodeDefinition(KTBarcodeDefinition &&other) noexcept = default;
    KTBarcodeDefinition &operator=(const KTBarcodeDefinition &other) = default;
    KTBarcodeDefinition &operator=(KTBarcodeDefinition &&other) noexcept = default;
    virtual ~KTBarcodeDefinition();

    /**
     * Reads "position_x", "position_y", "width" and "height" in the unit (default 1.0 each), "pageNr"
     * (default 0) and "image" (default "dummy-barcode.png"). "position_y" is the lower edge. The numbers are
     * truncated to whole layout units; a rectangle whose far edge leaves the range of int ends there, and
     * one with a width or height below 1 is invalid. An unknown unit counts as the layout unit, with a
     * warning for each number.
     */
    [[nodiscard]] static KTBarcodeDefinition createFromProductsXML(const QDomElement &element,
                                                                   const KTDistanceUnit &unit);
    [[nodiscard]] static KTBarcodeDefinition createFromProductsXML(const KTXMLElement &element,
                                                                   const KTDistanceUnit &unit);

    QRect rect() const { return myRect; }
    int pageNr() const { return myPageNr; }
    QString imageName() const { return myImageName; }
    /**
     * The placeholder image: the file "icons/picshelf/<image name>" of the resources, see KTDirectoryConfig.
     *
     * It is loaded at the first request, so even const definitions are of one thread. It is null when it
     * cannot be loaded, tells no size in advance or has more than 64 million pixels, also inside an icon
     * file; the next request tries again. While static objects are destroyed at the end of the process it is
     * null as well; a program without an application object must have loaded an image before, because Qt
     * crashes otherwise.
     */
    QImage image() const;
    /** True when the rectangle is not empty and there is an image name. */
    bool isValid() const;

    /** Compares everything but the image. */
    bool operator==(const KTBarcodeDefinition &other) const;
    bool operator!=(const KTBarcodeDefinition &other) const { return !(*this == other); }
    /**
     * True as soon as left, top, width, height or page is less than the other's, or at last the image name;
     * a greater one does not end the test. This is no order, as it can be true both ways: do not sort by it.
     */
    bool operator<(const KTBarcodeDefinition &other) const;

private:
    QRect myRect;
    int myPageNr = 0;
    QString myImageName;
    mutable QImage myImage;
};

Q_DECLARE_METATYPE(KTBarcodeDefinition)
/** Hashes what equality compares. */
KTPRODUCTBASE_EXPORT KTHashValue qHash(const KTBarcodeDefinition &definition, KTHashValue seed = 0);
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTBarcodeDefinition &definition);
