#include "KTBarcodeChecker.h"

#include "KTCatalogueText.h"
#include "KTCheckText.h"

#include <KTDirectoryConfig.h>
#include <KTSingleton.h>

#include <QImage>

using KTCheckText::quoted;

namespace {

using Id = KTAttributeId;

} // namespace

void KTBarcodeChecker::begin()
{
    myLines.clear();
}

void KTBarcodeChecker::check(KTElementCursor *cursor)
{
    const KTBarcodeDefinition barcode
        = KTBarcodeDefinition::createFromProductsXML(cursor->element(), cursor->unit());
    if (barcode.imageName().isEmpty()) {
        cursor->report(KTRule::BarcodeDropped,
                       KTCatalogueText::tr("the barcode has an empty image name; the application skips it"),
                       cursor->attribute(Id::BarcodeImage));
        return;
    }
    if (!barcode.isValid()) {
        cursor->report(KTRule::BarcodeDropped,
                       KTCatalogueText::tr(
                           "the barcode is smaller than one layout unit (0.1 mm); the application skips it"),
                       cursor->firstOf({barcode.rect().width() < 1 ? Id::BarcodeWidth : Id::BarcodeHeight,
                                        Id::BarcodeWidth, Id::BarcodeHeight}));
        return;
    }
    // Page and image do not count: the library finds a barcode by its rectangle.
    const KTBarcodeDefinition place(barcode.rect(), 0, QString());
    const auto earlier = myLines.constFind(place);
    if (earlier == myLines.constEnd()) {
        myLines.insert(place, cursor->line());
    } else {
        cursor->report(KTRule::BarcodeSamePlace,
                       KTCatalogueText::tr(
                           "the barcode in line %1 has the same rectangle; the application, which finds a "
                           "barcode by its rectangle, always takes that one")
                           .arg(*earlier));
    }
    if (!hasImage(barcode)) {
        cursor->report(KTRule::BarcodeImage,
                       KTCatalogueText::tr(
                           "%1 is no picture below 'icons/picshelf' of the resources; the application shows "
                           "no barcode")
                           .arg(quoted(barcode.imageName())),
                       cursor->attribute(Id::BarcodeImage));
    }
}

bool KTBarcodeChecker::hasImage(const KTBarcodeDefinition &barcode)
{
    // Without resources nothing can be told about any image.
    if (KTSingleton<KTDirectoryConfig>::instance()->resourceRoot().isEmpty())
        return true;
    const auto known = myImages.constFind(barcode.imageName());
    if (known != myImages.constEnd())
        return *known;
    const bool hasImage = !barcode.image().isNull();
    if (myImages.size() >= KTCheckText::MAX_KEPT_ANSWERS)
        myImages.clear();
    if (barcode.imageName().size() <= KTCheckText::MAX_WORD_LENGTH)
        myImages.insert(barcode.imageName(), hasImage);
    return hasImage;
}
