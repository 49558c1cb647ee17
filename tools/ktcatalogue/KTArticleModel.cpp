#include "KTArticleModel.h"

#include <KTArithmetic.h>
#include <KTArticleClass.h>
#include <KTXMLParser.h>

#include <QDomElement>

#include <algorithm>

namespace {

const QString ARTICLE_CLASS_ATTRIBUTE = QStringLiteral("article_class");
const QString UNITS_ATTRIBUTE = QStringLiteral("units");
const QString DEFAULT_UNIT = QStringLiteral("mm");

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
    const auto read = [&](const char *name) { return length(element, QString::fromLatin1(name), 0.0, unit); };
    const KTMargins bleed(read("bleed_top"), read("bleed_bottom"), read("bleed_left"), read("bleed_right"));
    KTPageSizeSpec size(QSize(read("width"), read("height")), bleed);
    if (element.hasAttribute(QStringLiteral("slipcase_width")))
        size.setUsableSlipcaseCoverSize(QSize(read("slipcase_width"), read("slipcase_height")));
    return {KTPageContext(KTPageType(text(element, QStringLiteral("type"))),
                          KTPageAlignment(text(element, QStringLiteral("alignment")))),
            size};
}

} // namespace

KTArticleModel::KTArticleModel(const QDomElement &article)
    : articleId(KTArticleId::findId(article))
    , name(text(article, QStringLiteral("name")))
    , productType(KTProductType::fromMcf(article))
    , priceClass(text(article, QStringLiteral("price_class")))
    , shippingGroup(article, QStringLiteral("shipping_group"))
    , options(article)
    , pageCounts(readPageCounts(article))
    , spine(KTSpineConfig::createFromProductsXML(article))
    , hasSpine(!article.firstChildElement(QStringLiteral("composition"))
                    .firstChildElement(QStringLiteral("spine"))
                    .isNull())
{
    for (const KTClassification &classification : KTClassification::all()) {
        if (classification.element() == article.tagName() && article.hasAttribute(classification.attribute()))
            classifications.append(
                {&classification, classification.read(text(article, classification.attribute()))});
    }
    for (QDomElement page = article.firstChildElement(QStringLiteral("page")); !page.isNull();
         page = page.nextSiblingElement(QStringLiteral("page"))) {
        pages.append(readPage(page));
    }
    const QDomElement barcodeParent = article.firstChildElement(QStringLiteral("barcodes"));
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
    return KTDistanceUnit(unit.isEmpty() ? DEFAULT_UNIT : unit);
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
