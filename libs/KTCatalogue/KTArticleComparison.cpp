#include "KTArticleComparison.h"

#include "KTBarcodeComparison.h"
#include "KTCatalogueText.h"
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
    {KTAttributeId::ArticleClass,          Rule::ArticleClassChanged,
     QT_TRANSLATE_NOOP("KTCatalogueText",                                                                    "the class of the article")},
    {KTAttributeId::ArticleArrangement,    Rule::ArrangementChanged,
     QT_TRANSLATE_NOOP("KTCatalogueText",                                                                    "the arrangement")         },
    {KTAttributeId::ArticleSpaceMagnitude, Rule::SpaceMagnitudeChanged,
     QT_TRANSLATE_NOOP("KTCatalogueText",                                                                    "the class of size")       },
    {KTAttributeId::ArticleOrientation,    Rule::OrientationChanged,
     QT_TRANSLATE_NOOP("KTCatalogueText",                                                                    "the orientation")         },
    {KTAttributeId::ArticleCoverType,      Rule::CoverTypeChanged,
     QT_TRANSLATE_NOOP("KTCatalogueText",                                                                    "the cover")               },
    {KTAttributeId::ArticleBinding,        Rule::BindingChanged,
     QT_TRANSLATE_NOOP("KTCatalogueText",                                                                    "the binding")             },
    {KTAttributeId::ArticlePaper,          Rule::PaperChanged,          QT_TRANSLATE_NOOP("KTCatalogueText", "the paper")               },
    {KTAttributeId::ArticlePhotoPaper,     Rule::PhotoPaperChanged,
     QT_TRANSLATE_NOOP("KTCatalogueText",                                                                    "the photo paper")         },
    {KTAttributeId::ArticleMaterial,       Rule::MaterialChanged,
     QT_TRANSLATE_NOOP("KTCatalogueText",                                                                    "the material")            },
    {KTAttributeId::ArticleContentType,    Rule::ContentTypeChanged,
     QT_TRANSLATE_NOOP("KTCatalogueText",                                                                    "the content")             },
    {KTAttributeId::ArticleSpotColors,     Rule::SpotColorsChanged,
     QT_TRANSLATE_NOOP("KTCatalogueText",                                                                    "the list of spot colours")},
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
    return text.isEmpty() ? KTCatalogueText::tr("none") : KTCheckText::quoted(text);
}

QString changeText(const QString &what, const QString &before, const QString &after)
{
    return KTCatalogueText::tr("%1 is %2, was %3").arg(what, orNone(after), orNone(before));
}

void addAboutArticle(KTDifferenceList *list, Rule rule, const QString &subject, const QString &what,
                     const QString &before, const QString &after, KTAttributeId attribute)
{
    KTDifference &difference = list->add(
        rule, subject, KTCatalogueText::tr("%1 is %2, was %3").arg(what, orNone(after), orNone(before)),
        before, after);
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
            changeText(KTCatalogueText::tr(row.what), before.text, after.text),
            classification.written(before.value), classification.written(after.value));
        difference.olderPart = {KTElementKind::Article, 0, row.attribute};
        difference.newerPart = {KTElementKind::Article, 0, row.attribute};
    }
}

QString priceText(const KTPriceClass &priceClass)
{
    if (priceClass.isEmpty())
        return KTCatalogueText::tr("none");
    const QString text = KTCheckText::quoted(priceClass.toString());
    return priceClass.isFree() ? KTCatalogueText::tr("%1 (free)").arg(text) : text;
}

QString groupText(KTShippingGroupId group)
{
    if (!group.isValid())
        return KTCatalogueText::tr("none");
    return group.isCombinedTransfer() ? KTCatalogueText::tr("%1 (combined transfer)").arg(group.toString())
                                      : group.toString();
}

void compareProduct(KTDifferenceList *list)
{
    const KTArticle &older = list->older();
    const KTArticle &newer = list->newer();
    if (older.priceClass() != newer.priceClass()) {
        KTDifference &difference
            = list->add(Rule::PriceClassChanged, QStringLiteral("priceClass"),
                        KTCatalogueText::tr("the price class is %1, was %2")
                            .arg(priceText(newer.priceClass()), priceText(older.priceClass())),
                        older.priceClass().toString(), newer.priceClass().toString());
        difference.olderPart = {KTElementKind::Article, 0, KTAttributeId::ArticlePriceClass};
        difference.newerPart = {KTElementKind::Article, 0, KTAttributeId::ArticlePriceClass};
    }
    if (older.shippingGroup() != newer.shippingGroup()) {
        KTDifference &difference
            = list->add(Rule::ShippingGroupChanged, QStringLiteral("shippingGroup"),
                        KTCatalogueText::tr("the shipping group is %1, was %2")
                            .arg(groupText(newer.shippingGroup()), groupText(older.shippingGroup())),
                        groupText(older.shippingGroup()), groupText(newer.shippingGroup()));
        difference.olderPart = {KTElementKind::Article, 0, KTAttributeId::ArticleShippingGroup};
        difference.newerPart = {KTElementKind::Article, 0, KTAttributeId::ArticleShippingGroup};
    }
    // Equality of product types ignores letter case where it can, order texts do not.
    if (older.productType().orderTxtName() != newer.productType().orderTxtName())
        addAboutArticle(list, Rule::ProductTypeChanged, QStringLiteral("productType"),
                        KTCatalogueText::tr("the product type"), older.productType().orderTxtName(),
                        newer.productType().orderTxtName(), KTAttributeId::ArticleProductName);
    if (older.name() != newer.name())
        addAboutArticle(list, Rule::ArticleNameChanged, QStringLiteral("article"),
                        KTCatalogueText::tr("the name"), older.name(), newer.name(),
                        KTAttributeId::ArticleName);
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
    return list.add(Rule::ArticleRemoved, QStringLiteral("article"),
                    KTCatalogueText::tr("the article is gone"), nameOrNumber(older), QString());
}

KTDifference KTArticleComparison::addition(const KTArticle &newer)
{
    KTDifferenceList list(newer, newer);
    return list.add(Rule::ArticleAdded, QStringLiteral("article"), KTCatalogueText::tr("the article is new"),
                    QString(), nameOrNumber(newer));
}
