#include "KTRecipe.h"

#include <KTProductBase>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);
    const QDomElement article = sampleArticle(7301);
    //! [barcodes]
    const QDomElement element = article.firstChildElement(QStringLiteral("barcodes"));
    const KTDistanceUnit unit = KTXMLParser::readUnit(KTXMLElement(element)); // mm where none is given
    const auto barcodes = KTBarcodeDefinitionList::createFromProductsXML(element, unit);
    for (const KTBarcodeDefinition &barcode : barcodes) {
        const QRect area = barcode.rect(); // in layout units of 0.1 mm, the origin at the top left
        out << "page " << barcode.pageNr() << ": " << area.left() << ',' << area.top() << ' ' << area.width()
            << 'x' << area.height() << ", an image of " << barcode.image().width() << " dots\n";
    }
    const QRect photo(0, 0, 500, 2640);
    out << (barcodes.occupiedRegion().intersects(photo) ? "hides a barcode" : "is free of barcodes") << '\n';
    //! [barcodes]
}
