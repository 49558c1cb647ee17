#include "KTArticle.h"

#include "KTArticleImpl.h"
#include "KTCatalogueArticle.h"

#include <KTArithmetic.h>
#include <KTDistanceUnit.h>
#include <KTStringLiteral.h>
#include <KTXMLElement.h>
#include <KTXMLParser.h>

#include <QDomElement>

namespace {

constexpr KTStringLiteral NAME_ATTRIBUTE = "name";
constexpr KTStringLiteral ARTICLE_CLASS_ATTRIBUTE = "article_class";
constexpr KTStringLiteral PRICE_CLASS_ATTRIBUTE = "price_class";
constexpr KTStringLiteral SHIPPING_GROUP_ATTRIBUTE = "shipping_group";
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
constexpr double DEFAULT_LENGTH = 0.0;

KTArticle::Page readPage(const KTXMLElement &element)
{
    const KTDistanceUnit unit = KTXMLParser::readUnit(element);
    const auto read = [&](const QString &name) {
        return KTArithmetic::truncated(
            KTXMLParser::readDistance(element, name, DEFAULT_LENGTH, unit).layoutUnits());
    };
    const KTMargins bleed(read(BLEED_TOP_ATTRIBUTE), read(BLEED_BOTTOM_ATTRIBUTE), read(BLEED_LEFT_ATTRIBUTE),
                          read(BLEED_RIGHT_ATTRIBUTE));
    KTPageSizeSpec size(QSize(read(WIDTH_ATTRIBUTE), read(HEIGHT_ATTRIBUTE)), bleed);
    if (element.hasAttribute(SLIPCASE_WIDTH_ATTRIBUTE))
        size.setUsableSlipcaseCoverSize(
            QSize(read(SLIPCASE_WIDTH_ATTRIBUTE), read(SLIPCASE_HEIGHT_ATTRIBUTE)));
    return {KTPageContext(KTPageType(element.attribute(TYPE_ATTRIBUTE)),
                          KTPageAlignment(element.attribute(ALIGNMENT_ATTRIBUTE))),
            size};
}

QVector<KTArticle::Classified> readClassifications(const KTXMLElement &article)
{
    QVector<KTArticle::Classified> classifications;
    for (const KTAttributeRow &row : KTCatalogueFormat::attributes()) {
        if (row.element != KTElementKind::Article || row.type != KTAttributeType::Keywords)
            continue;
        // A missing attribute is null, one without text is only empty.
        const QString text = article.attribute(KTCatalogueFormat::attributeName(row.id));
        if (!text.isNull())
            classifications.append({row.id, text, KTClassification::of(row.classification).decode(text)});
    }
    return classifications;
}

KTBarcodeDefinitionList readBarcodes(const KTXMLElement &barcodes)
{
    return KTBarcodeDefinitionList::createFromProductsXML(barcodes, KTXMLParser::readUnit(barcodes));
}

} // namespace

KTArticleImpl::KTArticleImpl(const KTXMLElement &article)
    : articleId(KTArticleId::findId(article))
    , name(article.attribute(NAME_ATTRIBUTE))
    , articleClass(article.attribute(ARTICLE_CLASS_ATTRIBUTE))
    , classifications(readClassifications(article))
    , productType(KTProductType::fromMcf(article))
    , priceClass(article.attribute(PRICE_CLASS_ATTRIBUTE))
    , shippingGroup(article, SHIPPING_GROUP_ATTRIBUTE)
    , pageCounts(KTArticle::readPageCounts(article))
    , spine(KTSpineConfig::createFromProductsXML(article))
    , hasSpine(!article.firstChildElement(COMPOSITION_TAG).firstChildElement(SPINE_TAG).isNull())
    , barcodes(readBarcodes(article.firstChildElement(BARCODES_TAG)))
    , options(article)
{
    for (KTXMLElement page = article.firstChildElement(PAGE_TAG); !page.isNull();
         page = page.nextSiblingElement(PAGE_TAG)) {
        pages.append(readPage(page));
    }
}

KTArticle::KTArticle()
    : KTArticle(KTXMLElement())
{
}

KTArticle::KTArticle(const QDomElement &article)
    : KTArticle(KTXMLElement(article))
{
}

KTArticle::KTArticle(const KTXMLElement &article)
    : myImpl(new KTArticleImpl(article))
{
}

KTArticle::KTArticle(const KTCatalogueArticle &article)
    : KTArticle(article.root())
{
}

KTArticle::KTArticle(const KTArticle &other) = default;
KTArticle::KTArticle(KTArticle &&other) noexcept = default;
KTArticle &KTArticle::operator=(const KTArticle &other) = default;
KTArticle &KTArticle::operator=(KTArticle &&other) noexcept = default;
KTArticle::~KTArticle() = default;

KTArticleId KTArticle::articleId() const
{
    return myImpl->articleId;
}

QString KTArticle::name() const
{
    return myImpl->name;
}

KTArticleClass KTArticle::articleClass() const
{
    return myImpl->articleClass;
}

const QVector<KTArticle::Classified> &KTArticle::classifications() const
{
    return myImpl->classifications;
}

KTProductType KTArticle::productType() const
{
    return myImpl->productType;
}

KTPriceClass KTArticle::priceClass() const
{
    return myImpl->priceClass;
}

KTShippingGroupId KTArticle::shippingGroup() const
{
    return myImpl->shippingGroup;
}

const KTPageCountOrganization &KTArticle::pageCounts() const
{
    return myImpl->pageCounts;
}

const KTSpineConfig &KTArticle::spine() const
{
    return myImpl->spine;
}

bool KTArticle::hasSpine() const
{
    return myImpl->hasSpine;
}

const QVector<KTArticle::Page> &KTArticle::pages() const
{
    return myImpl->pages;
}

const KTBarcodeDefinitionList &KTArticle::barcodes() const
{
    return myImpl->barcodes;
}

const KTConfiguredArticleVariantList &KTArticle::options() const
{
    return myImpl->options;
}

KTPageCountOrganization KTArticle::readPageCounts(const KTXMLElement &article)
{
    if (KTArticleId::findId(article).isAdventCalendarWithDoorBackPrint())
        return KTPageCountOrganization::createForAdventCalendarWithDoorBackPrint();
    if (KTArticleClass(article.attribute(ARTICLE_CLASS_ATTRIBUTE)).matches(KTArticleClassPictureBox))
        return KTPageCountOrganization::createFromProductsXMLForPictureBox(article);
    return KTPageCountOrganization::createFromProductsXML(article);
}
