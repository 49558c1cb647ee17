#include "KTArticleComparison.h"

#include "KTBarcodeComparison.h"
#include "KTCheckText.h"
#include "KTDifferenceList.h"
#include "KTOptionComparison.h"
#include "KTPageComparison.h"
#include "KTPageCountComparison.h"

#include <algorithm>

namespace {

using Rule = KTDifferenceRule;

struct ClassificationRow
{
    KTAttributeId attribute;
    Rule rule;
    const char *what;
};

constexpr ClassificationRow CLASSIFICATIONS[] = {
    {KTAttributeId::ArticleClass,          Rule::ArticleClassChanged,   "the class of the article"},
    {KTAttributeId::ArticleArrangement,    Rule::ArrangementChanged,    "the arrangement"         },
    {KTAttributeId::ArticleSpaceMagnitude, Rule::SpaceMagnitudeChanged, "the class of size"       },
    {KTAttributeId::ArticleOrientation,    Rule::OrientationChanged,    "the orientation"         },
    {KTAttributeId::ArticleCoverType,      Rule::CoverTypeChanged,      "the cover"               },
    {KTAttributeId::ArticleBinding,        Rule::BindingChanged,        "the binding"             },
    {KTAttributeId::ArticlePaper,          Rule::PaperChanged,          "the paper"               },
    {KTAttributeId::ArticlePhotoPaper,     Rule::PhotoPaperChanged,     "the photo paper"         },
    {KTAttributeId::ArticleMaterial,       Rule::MaterialChanged,       "the material"            },
    {KTAttributeId::ArticleContentType,    Rule::ContentTypeChanged,    "the content"             },
    {KTAttributeId::ArticleSpotColors,     Rule::SpotColorsChanged,     "the list of spot colours"},
};

/** What the article has for a classification. */
struct Classified
{
    Classified(const KTArticle &article, KTAttributeId attribute, const KTClassification &classification)
        // An attribute that is not there counts as one without text.
        : value(classification.decode(QString()))
    {
        text = classification.written(value);
        for (const KTArticle::Classified &entry : article.classifications()) {
            if (entry.attribute != attribute)
                continue;
            value = entry.value;
            text = entry.text.trimmed();
        }
    }

    qint64 value;
    /** For people, who know the keyword in the catalogue rather than the one that is written for it. */
    QString text;
};

QString orNone(const QString &text)
{
    return text.isEmpty() ? QStringLiteral("none") : KTCheckText::quoted(text);
}

QString changeText(const QString &what, const QString &before, const QString &after)
{
    return QStringLiteral("%1 is %2, was %3").arg(what, orNone(after), orNone(before));
}

void addAboutArticle(KTDifferenceList *list, Rule rule, const QString &subject, const QString &what,
                     const QString &before, const QString &after, KTAttributeId attribute)
{
    KTDifference &difference = list->add(
        rule, subject, QStringLiteral("%1 is %2, was %3").arg(what, orNone(after), orNone(before)), before,
        after);
    difference.olderPart = {KTElementKind::Article, 0, attribute};
    difference.newerPart = {KTElementKind::Article, 0, attribute};
}

void compareClassifications(KTDifferenceList *list)
{
    for (const ClassificationRow &row : CLASSIFICATIONS) {
        const KTClassification &classification
            = KTClassification::of(KTCatalogueFormat::attribute(row.attribute).classification);
        const Classified before(list->older(), row.attribute, classification);
        const Classified after(list->newer(), row.attribute, classification);
        if (before.value == after.value)
            continue;
        KTDifference &difference = list->add(
            row.rule,
            QStringLiteral("classifications.%1").arg(KTCatalogueFormat::attributeName(row.attribute)),
            changeText(QString::fromLatin1(row.what), before.text, after.text),
            classification.written(before.value), classification.written(after.value));
        difference.olderPart = {KTElementKind::Article, 0, row.attribute};
        difference.newerPart = {KTElementKind::Article, 0, row.attribute};
    }
}

QString priceText(const KTPriceClass &priceClass)
{
    if (priceClass.isEmpty())
        return QStringLiteral("none");
    const QString text = KTCheckText::quoted(priceClass.toString());
    return priceClass.isFree() ? QStringLiteral("%1 (free)").arg(text) : text;
}

QString groupText(KTShippingGroupId group)
{
    if (!group.isValid())
        return QStringLiteral("none");
    return group.isCombinedTransfer() ? QStringLiteral("%1 (combined transfer)").arg(group.toString())
                                      : group.toString();
}

void compareProduct(KTDifferenceList *list)
{
    const KTArticle &older = list->older();
    const KTArticle &newer = list->newer();
    if (older.priceClass() != newer.priceClass()) {
        KTDifference &difference
            = list->add(Rule::PriceClassChanged, QStringLiteral("priceClass"),
                        QStringLiteral("the price class is %1, was %2")
                            .arg(priceText(newer.priceClass()), priceText(older.priceClass())),
                        older.priceClass().toString(), newer.priceClass().toString());
        difference.olderPart = {KTElementKind::Article, 0, KTAttributeId::ArticlePriceClass};
        difference.newerPart = {KTElementKind::Article, 0, KTAttributeId::ArticlePriceClass};
    }
    if (older.shippingGroup() != newer.shippingGroup()) {
        KTDifference &difference
            = list->add(Rule::ShippingGroupChanged, QStringLiteral("shippingGroup"),
                        QStringLiteral("the shipping group is %1, was %2")
                            .arg(groupText(newer.shippingGroup()), groupText(older.shippingGroup())),
                        groupText(older.shippingGroup()), groupText(newer.shippingGroup()));
        difference.olderPart = {KTElementKind::Article, 0, KTAttributeId::ArticleShippingGroup};
        difference.newerPart = {KTElementKind::Article, 0, KTAttributeId::ArticleShippingGroup};
    }
    // Equality of product types ignores letter case where it can, order texts do not.
    if (older.productType().orderTxtName() != newer.productType().orderTxtName())
        addAboutArticle(list, Rule::ProductTypeChanged, QStringLiteral("productType"),
                        QStringLiteral("the product type"), older.productType().orderTxtName(),
                        newer.productType().orderTxtName(), KTAttributeId::ArticleProductName);
    if (older.name() != newer.name())
        addAboutArticle(list, Rule::ArticleNameChanged, QStringLiteral("article"), QStringLiteral("the name"),
                        older.name(), newer.name(), KTAttributeId::ArticleName);
}

QString nameOrNumber(const KTArticle &article)
{
    return article.name().isEmpty() ? article.articleId().toString() : article.name();
}

} // namespace

QVector<KTDifference> KTArticleComparison::differences(const KTArticle &older, const KTArticle &newer)
{
    KTDifferenceList list(older, newer);
    compareClassifications(&list);
    compareProduct(&list);
    KTPageCountComparison(&list).compare();
    KTPageComparison(&list).compare();
    KTBarcodeComparison(&list).compare();
    if (!KTOptionComparison::areSame(older.options(), newer.options()))
        KTOptionComparison(&list).compare();
    QVector<KTDifference> differences = list.differences();
    std::stable_sort(
        differences.begin(), differences.end(),
        [](const KTDifference &first, const KTDifference &second) { return first.rule < second.rule; });
    return differences;
}

KTDifference KTArticleComparison::removal(const KTArticle &older)
{
    KTDifferenceList list(older, older);
    return list.add(Rule::ArticleRemoved, QStringLiteral("article"), QStringLiteral("the article is gone"),
                    nameOrNumber(older), QString());
}

KTDifference KTArticleComparison::addition(const KTArticle &newer)
{
    KTDifferenceList list(newer, newer);
    return list.add(Rule::ArticleAdded, QStringLiteral("article"), QStringLiteral("the article is new"),
                    QString(), nameOrNumber(newer));
}
