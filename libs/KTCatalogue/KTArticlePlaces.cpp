#include "KTArticlePlaces.h"

#include <KTBarcodeDefinition.h>
#include <KTConfiguredArticleVariant.h>
#include <KTXMLParser.h>

KTFileRange KTArticlePlaces::range(const KTArticlePart &part)
{
    int element = 0;
    if (part.element != KTElementKind::Article) {
        const int kind = static_cast<int>(part.element);
        if (!myParts.contains(kind))
            myParts.insert(kind, parts(part.element));
        element = myParts.value(kind).value(part.index);
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

int KTArticlePlaces::firstChild(int parent, KTElementKind kind) const
{
    const QVector<int> all = children(parent, kind, [](const KTXMLElement &) { return true; });
    return all.isEmpty() ? -1 : all.constFirst();
}

QVector<int> KTArticlePlaces::parts(KTElementKind kind) const
{
    // Each of them stands in the first element of its parent's kind.
    const KTElementRow &row = KTCatalogueFormat::elements().at(static_cast<std::size_t>(kind) - 1);
    const int parent = row.parent == KTElementKind::Article ? 0 : firstChild(0, row.parent);
    if (parent < 0)
        return {};
    KTDistanceUnit unit;
    if (kind == KTElementKind::Barcode)
        unit = KTXMLParser::readUnit(myArticle.fragment().element(parent));
    return children(parent, kind, [&](const KTXMLElement &element) {
        switch (kind) {
        case KTElementKind::Form:
            return KTConfiguredArticleVariant(element).isValid();
        case KTElementKind::Barcode:
            return KTBarcodeDefinition::createFromProductsXML(element, unit).isValid();
        default:
            return true;
        }
    });
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
