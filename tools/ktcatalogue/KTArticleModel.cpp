#include "KTArticleModel.h"

#include <KTArithmetic.h>
#include <KTArticleClass.h>
#include <KTStringLiteral.h>
#include <KTXMLParser.h>

#include <QDomElement>

#include <algorithm>

namespace {

constexpr KTStringLiteral NAME_ATTRIBUTE = "name";
constexpr KTStringLiteral ARTICLE_CLASS_ATTRIBUTE = "article_class";
constexpr KTStringLiteral PRICE_CLASS_ATTRIBUTE = "price_class";
constexpr KTStringLiteral SHIPPING_GROUP_ATTRIBUTE = "shipping_group";
constexpr KTStringLiteral UNITS_ATTRIBUTE = "units";
constexpr KTStringLiteral TYPE_ATTRIBUTE = "type";
constexpr KTStringLiteral ALIGNMENT_ATTRIBUTE = "alignment";
constexpr KTStringLiteral WIDTH_ATTRIBUTE = "width";
constexpr KTStringLiteral HEIGHT_ATTRIBUTE = "height";
constexpr KTStringLiteral BLEED_TOP_ATTRIBUTE = "bleed_top";
constexpr KTStringLiteral BLEED_BOTTOM_ATTRIBUTE = "bleed_bottom";
constexpr KTStringLiteral BLEED_LEFT_ATTRIBUTE = "bleed_left";
constexpr KTStringLiteral BLEED_RIGHT_ATTRIBUTE = "bleed_right";
constexpr KTStringLiteral SLIPCASE_WIDTH_ATTRIBUTE = "slipcase_width";
constexpr KTStringLiteral SLIPCASE_HEIGHT_ATTRIBUTE = "slipcase_height";
constexpr KTStringLiteral COMPOSITION_TAG = "composition";
constexpr KTStringLiteral SPINE_TAG = "spine";
constexpr KTStringLiteral PAGE_TAG = "page";
constexpr KTStringLiteral BARCODES_TAG = "barcodes";
constexpr KTStringLiteral DEFAULT_UNIT = "mm";

QString text(const QDomElement &element, const QString &name)
{
    return KTXMLParser::attribute(element, name, QString(), true);
}

/** A length in whole layout units. */
int length(const QDomElement &element, const QString &name, double defaultValue, const KTDistanceUnit &unit)
{
    return KTArithmetic::truncated(
        KTXMLParser::readDistance(element, name, defaultValue, unit).layoutUnits());
}

KTArticleModel::Page readPage(const QDomElement &element)
{
    const KTDistanceUnit unit = KTArticleModel::readUnit(element);
    const auto read = [&](const QString &name) { return length(element, name, 0.0, unit); };
    const KTMargins bleed(read(BLEED_TOP_ATTRIBUTE), read(BLEED_BOTTOM_ATTRIBUTE), read(BLEED_LEFT_ATTRIBUTE),
                          read(BLEED_RIGHT_ATTRIBUTE));
    KTPageSizeSpec size(QSize(read(WIDTH_ATTRIBUTE), read(HEIGHT_ATTRIBUTE)), bleed);
    if (element.hasAttribute(SLIPCASE_WIDTH_ATTRIBUTE))
        size.setUsableSlipcaseCoverSize(
            QSize(read(SLIPCASE_WIDTH_ATTRIBUTE), read(SLIPCASE_HEIGHT_ATTRIBUTE)));
    return {KTPageContext(KTPageType(text(element, TYPE_ATTRIBUTE)),
                          KTPageAlignment(text(element, ALIGNMENT_ATTRIBUTE))),
            size};
}

} // namespace

KTArticleModel::KTArticleModel(const QDomElement &article)
    : articleId(KTArticleId::findId(article))
    , name(text(article, NAME_ATTRIBUTE))
    , productType(KTProductType::fromMcf(article))
    , priceClass(text(article, PRICE_CLASS_ATTRIBUTE))
    , shippingGroup(article, SHIPPING_GROUP_ATTRIBUTE)
    , options(article)
    , pageCounts(readPageCounts(article))
    , spine(KTSpineConfig::createFromProductsXML(article))
    , hasSpine(!article.firstChildElement(COMPOSITION_TAG).firstChildElement(SPINE_TAG).isNull())
{
    for (const KTAttributeRow &row : KTCatalogueFormat::attributes()) {
        if (row.element != KTElementKind::Article || row.type != KTAttributeType::Keywords)
            continue;
        // A missing attribute is null, one without text is only empty.
        const QString value = text(article, row.name.toString());
        if (!value.isNull())
            classifications.append({row.id, value, KTClassification::of(row.classification).decode(value)});
    }
    for (QDomElement page = article.firstChildElement(PAGE_TAG); !page.isNull();
         page = page.nextSiblingElement(PAGE_TAG)) {
        pages.append(readPage(page));
    }
    const QDomElement barcodeParent = article.firstChildElement(BARCODES_TAG);
    barcodes = KTBarcodeDefinitionList::createFromProductsXML(barcodeParent, readUnit(barcodeParent));
}

KTPageCountOrganization KTArticleModel::readPageCounts(const QDomElement &article)
{
    if (KTArticleId::findId(article).isAdventCalendarWithDoorBackPrint())
        return KTPageCountOrganization::createForAdventCalendarWithDoorBackPrint();
    if (KTArticleClass(text(article, ARTICLE_CLASS_ATTRIBUTE)).matches(KTArticleClassPictureBox))
        return KTPageCountOrganization::createFromProductsXMLForPictureBox(article);
    return KTPageCountOrganization::createFromProductsXML(article);
}

KTDistanceUnit KTArticleModel::readUnit(const QDomElement &element)
{
    const QString unit = text(element, UNITS_ATTRIBUTE);
    return KTDistanceUnit(unit.isEmpty() ? QString(DEFAULT_UNIT) : unit);
}

QPair<int, int> KTArticleModel::validPagesAround(int wish) const
{
    if (pageCounts.isValidPageCount(wish))
        return {wish, wish};
    if (pageCounts.pageIncrement() == 0)
        return {pageCounts.constrain(wish), pageCounts.constrain(wish)};
    const int last = pageCounts.pagesWithNExtraPackages(std::max(0, pageCounts.numberOfPackages() - 1));
    const int below = pageCounts.pagesWithNExtraPackages(pageCounts.countPackages(wish));
    const int above = pageCounts.constrain(wish);
    return {std::min(below, last), std::min(above, last)};
}

QString KTArticleModel::objectionToPages(int wish) const
{
    if (pageCounts.isValidPageCount(wish))
        return QString();
    const QPair<int, int> nearest = validPagesAround(wish);
    const QString valid = nearest.first == nearest.second
        ? QString::number(nearest.first)
        : QStringLiteral("%1 and %2").arg(nearest.first).arg(nearest.second);
    return QStringLiteral("cannot have %1 pages; the nearest valid page counts: %2").arg(wish).arg(valid);
}
