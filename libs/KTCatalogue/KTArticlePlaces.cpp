#include "KTArticlePlaces.h"

#include <KTBarcodeDefinition.h>
#include <KTConfiguredArticleVariant.h>
#include <KTXMLParser.h>

KTArticlePlaces::KTArticlePlaces(const KTCatalogueArticle &article)
    : myArticle(article)
    , myPages(children(0, KTElementKind::Page))
{
    const KTXMLFragment &fragment = article.fragment();
    const QVector<int> barcodes = children(0, KTElementKind::Barcodes);
    if (!barcodes.isEmpty()) {
        const KTDistanceUnit unit = KTXMLParser::readUnit(fragment.element(barcodes.constFirst()));
        myBarcodes
            = children(barcodes.constFirst(), KTElementKind::Barcode, [&](const KTXMLElement &element) {
                  return KTBarcodeDefinition::createFromProductsXML(element, unit).isValid();
              });
    }
    const QVector<int> forms = children(0, KTElementKind::Forms);
    if (!forms.isEmpty()) {
        myOptions = children(forms.constFirst(), KTElementKind::Form, [](const KTXMLElement &element) {
            return KTConfiguredArticleVariant(element).isValid();
        });
    }
    const QVector<int> compositions = children(0, KTElementKind::Composition);
    if (!compositions.isEmpty())
        mySpines = children(compositions.constFirst(), KTElementKind::Spine);
}

KTFileRange KTArticlePlaces::range(const KTArticlePart &part) const
{
    int element = 0;
    switch (part.element) {
    case KTElementKind::Page:
        element = myPages.value(part.index);
        break;
    case KTElementKind::Barcode:
        element = myBarcodes.value(part.index);
        break;
    case KTElementKind::Form:
        element = myOptions.value(part.index);
        break;
    case KTElementKind::Spine:
        element = mySpines.value(part.index);
        break;
    default:
        break;
    }
    const int attribute = part.attribute ? attributeIndex(element, *part.attribute) : -1;
    return attribute < 0 ? myArticle.tagRange(element) : myArticle.attributeRange(element, attribute);
}

template <typename Predicate>
QVector<int> KTArticlePlaces::children(int parent, KTElementKind kind, Predicate isTaken) const
{
    const KTXMLFragment &fragment = myArticle.fragment();
    const QString name = KTCatalogueFormat::elementName(kind);
    QVector<int> children;
    const int end = fragment.elements.at(parent).end;
    for (int child = parent + 1; child < end; child = fragment.elements.at(child).end) {
        if (fragment.view(fragment.elements.at(child).name) == name && isTaken(fragment.element(child)))
            children.append(child);
    }
    return children;
}

QVector<int> KTArticlePlaces::children(int parent, KTElementKind kind) const
{
    return children(parent, kind, [](const KTXMLElement &) { return true; });
}

int KTArticlePlaces::attributeIndex(int element, KTAttributeId attribute) const
{
    const KTXMLFragment &fragment = myArticle.fragment();
    const KTXMLFragment::Element &entry = fragment.elements.at(element);
    const QString name = KTCatalogueFormat::attributeName(attribute);
    for (int i = entry.firstAttribute; i < entry.firstAttribute + entry.attributeCount; ++i) {
        if (fragment.view(fragment.attributes.at(i).name) == name)
            return i;
    }
    return -1;
}
