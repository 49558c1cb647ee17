#include "KTArticleDescription.h"

#include "KTArticle.h"
#include "KTCatalogueText.h"
#include "KTMillimeterText.h"
#include "KTVariantsText.h"

#include <KTArithmetic.h>
#include <KTDistanceUnit.h>

#include <QHash>

#include <algorithm>

namespace {

using Fact = KTArticleDescription::Fact;
using Row = KTArticleDescription::Row;
using Section = KTArticleDescription::Section;
using Shape = KTArticleDescription::Shape;

constexpr qint64 MAX_BOX_STYLES = 1000;
constexpr int OPAQUE_ALPHA = 255;

const QString COMMA = QStringLiteral(", ");

/** Rows whose things may be there several times get a number behind their ids. */
class Numbering
{
public:
    QString unique(const QString &id)
    {
        const int count = ++myCounts[id];
        return count == 1 ? id : QStringLiteral("%1#%2").arg(id).arg(count);
    }

private:
    QHash<QString, int> myCounts;
};

double spineMillimeters(const KTArticle &article, int pages)
{
    return article.spine()
        .spineWidth(static_cast<unsigned int>(std::max(0, pages)))
        .value(KTDistanceUnitMillimeter);
}

QList<int> samplePageCounts(const KTPageCountOrganization &counts)
{
    const int last = std::max(1, counts.numberOfPackages()) - 1;
    QList<int> samples {counts.minPages()};
    for (const int packages : {last / 2, last}) {
        const int pages = counts.pagesWithNExtraPackages(packages);
        if (!samples.contains(pages))
            samples.append(pages);
    }
    return samples;
}

QVector<double> sizeFact(const QSize &size)
{
    return {KTMillimeterText::millimeters(size.width()), KTMillimeterText::millimeters(size.height())};
}

QVector<Fact> variantsFacts(const KTArticleVariants &variants)
{
    QVector<Fact> facts;
    for (const QString &key : variants.keys())
        facts.append({key, variants.value(key, QString())});
    return facts;
}

Section articleSection(const KTArticle &article)
{
    const Row row {
        QStringLiteral("article"),
        KTCatalogueText::tr("article"),
        article.articleId().toString(),
        article.name(),
        {{QStringLiteral("id"), article.articleId().id()}, {QStringLiteral("name"), article.name()}}
    };
    Section section {QStringLiteral("article"), QString(), Shape::Members, {row}};
    if (!article.articleId().isValid())
        section.rows.append(
            {QString(), KTCatalogueText::tr("has no valid number"), QString(), QString(), {}});
    return section;
}

Section classificationSection(const KTArticle &article)
{
    Section section {QStringLiteral("classifications"), QString(), Shape::Map, {}};
    for (const KTArticle::Classified &entry : article.classifications()) {
        const KTClassification &classification
            = KTClassification::of(KTCatalogueFormat::attribute(entry.attribute).classification);
        const QString name = KTCatalogueFormat::attributeName(entry.attribute);
        const QString written = classification.written(entry.value);
        const QString displayName = classification.displayName(entry.value);
        const QStringList unknown = classification.unknownEntries(entry.text);
        const int index = KTArithmetic::sizeOf(section.rows);
        section.rows.append({
            section.id + QLatin1Char('.') + name,
            name,
            written,
            displayName,
            {{QStringLiteral("keyword"), written}, {QStringLiteral("name"), displayName}}
        });
        if (unknown.isEmpty())
            continue;
        const QString readAs = classification.unknownReadAs();
        section.rows[index].facts.append({QStringLiteral("unknown"), unknown});
        section.rows[index].facts.append({QStringLiteral("readAs"), readAs});
        for (const QString &keyword : unknown) {
            const QString word
                = readAs.isEmpty() ? KTCatalogueText::tr("nothing") : QStringLiteral("'%1'").arg(readAs);
            section.rows.append({QString(),
                                 QString(),
                                 KTCatalogueText::tr("unknown keyword '%1', read as %2").arg(keyword, word),
                                 QString(),
                                 {}});
        }
    }
    return section;
}

Section productSection(const KTArticle &article)
{
    const KTProductType productType = article.productType();
    QStringList kinds;
    if (productType.isCalendar())
        kinds.append(KTCatalogueText::tr("calendar"));
    if (productType.isAgenda())
        kinds.append(KTCatalogueText::tr("agenda"));
    const KTPriceClass priceClass = article.priceClass();
    const KTShippingGroupId group = article.shippingGroup();
    return {
        QStringLiteral("product"),
        QString(),
        Shape::Members,
        {
                   {QStringLiteral("productType"),
             KTCatalogueText::tr("product type"),
             productType.orderTxtName(),
             kinds.join(COMMA),
             {{QStringLiteral("productType"), productType.orderTxtName()},
              {QStringLiteral("calendar"), productType.isCalendar()},
              {QStringLiteral("agenda"), productType.isAgenda()}}},
                   {QStringLiteral("priceClass"),
             KTCatalogueText::tr("price class"),
             priceClass.toString(),
             priceClass.isFree() ? KTCatalogueText::tr("free") : QString(),
             {{QStringLiteral("priceClass"), priceClass.toString()}}},
                   {QStringLiteral("shippingGroup"),
             KTCatalogueText::tr("shipping group"),
             group.isValid() ? group.toString() : KTCatalogueText::tr("none"),
             group.isCombinedTransfer() ? KTCatalogueText::tr("combined transfer") : QString(),
             {{QStringLiteral("shippingGroup"), group.id()}}},
                   }
    };
}

QString pageCountText(const KTPageCountOrganization &counts)
{
    QString text = KTCatalogueText::tr("%1 to %2, step %3: %4 %5")
                       .arg(counts.minPages())
                       .arg(counts.maxPages())
                       .arg(counts.pageIncrement())
                       .arg(counts.numberOfPackages())
                       .arg(counts.numberOfPackages() == 1 ? KTCatalogueText::tr("choice")
                                                           : KTCatalogueText::tr("choices"));
    if (!counts.isValid())
        text += KTCatalogueText::tr(" (not valid)");
    else if (!counts.isConsistent())
        text += KTCatalogueText::tr(" (the last step is not complete)");
    return text;
}

Section pageCountSection(const KTArticle &article, const QList<int> &wishes)
{
    const KTPageCountOrganization &counts = article.pageCounts();
    const QString id = QStringLiteral("pageCounts");
    Section section {id,
                     QString(),
                     Shape::Object,
                     {{id,
                       KTCatalogueText::tr("page counts"),
                       pageCountText(counts),
                       QString(),
                       {{QStringLiteral("minimum"), counts.minPages()},
                        {QStringLiteral("maximum"), counts.maxPages()},
                        {QStringLiteral("step"), counts.pageIncrement()},
                        {QStringLiteral("choices"), counts.numberOfPackages()},
                        {QStringLiteral("valid"), counts.isValid()},
                        {QStringLiteral("consistent"), counts.isConsistent()}}}}};
    for (const int wish : wishes) {
        section.rows.append({QString(),
                             QString(),
                             KTCatalogueText::tr("%1 pages become %2").arg(wish).arg(counts.constrain(wish)),
                             QString(),
                             {}});
    }
    return section;
}

/** What becomes of each wish, or of three page counts that show the range, fewer where it has fewer. */
Section sampleSection(const KTArticle &article, const QList<int> &wishes)
{
    const KTPageCountOrganization &counts = article.pageCounts();
    Section section {QStringLiteral("pageCounts.samples"), QString(), Shape::List, {}};
    QStringList widths;
    for (const int wish : wishes.isEmpty() ? samplePageCounts(counts) : wishes) {
        const int becomes = counts.constrain(wish);
        Row row {
            QStringLiteral("%1.%2").arg(section.id).arg(wish),
            QString(),
            QString(),
            QString(),
            {{QStringLiteral("pages"), wish}, {QStringLiteral("becomes"), becomes}}
        };
        if (article.hasSpine()) {
            row.facts.append({QStringLiteral("spineMillimeters"), spineMillimeters(article, becomes)});
            widths.append(KTCatalogueText::tr("%1 mm at %2 pages")
                              .arg(spineMillimeters(article, wishes.isEmpty() ? wish : becomes), 0, 'f', 1)
                              .arg(wishes.isEmpty() ? wish : becomes));
        }
        section.rows.append(row);
    }
    if (article.hasSpine()) {
        section.rows.first().label = KTCatalogueText::tr("spine");
        section.rows.first().value = widths.join(COMMA);
    }
    return section;
}

Section pageSection(const KTArticle &article)
{
    Section section {QStringLiteral("pages"), QString(), Shape::List, {}};
    Numbering numbering;
    for (const KTArticle::Page &page : article.pages()) {
        const QString type = page.context.pageType().encode();
        const QString alignment = page.context.alignment().encodeCSV();
        const QSize slipcase = page.size.usableSlipcaseCoverSize();
        Row row {
            numbering.unique(QStringLiteral("pages.%1.%2").arg(type, alignment)),
            KTCatalogueText::tr("page size"),
            KTCatalogueText::tr("%1  %2, with bleed %3")
                .arg(type, KTMillimeterText::text(page.size.usableSize()),
                     KTMillimeterText::text(page.size.totalSize())),
            QString(),
            {{QStringLiteral("type"), type},
                {QStringLiteral("alignment"), alignment},
                {QStringLiteral("usableMillimeters"), sizeFact(page.size.usableSize())},
                {QStringLiteral("totalMillimeters"), sizeFact(page.size.totalSize())}}
        };
        if (slipcase.isValid())
            row.facts.append({QStringLiteral("slipcaseMillimeters"), sizeFact(slipcase)});
        section.rows.append(row);
        if (slipcase.isValid()) {
            section.rows.append(
                {QString(),
                 QString(),
                 KTCatalogueText::tr("slipcase cover %1").arg(KTMillimeterText::text(slipcase)),
                 QString(),
                 {}});
        }
    }
    return section;
}

Section barcodeSection(const KTArticle &article)
{
    Section section {QStringLiteral("barcodes"), QString(), Shape::List, {}};
    Numbering numbering;
    for (const KTBarcodeDefinition &barcode : article.barcodes()) {
        const QRect rect = barcode.rect();
        section.rows.append({
            numbering.unique(QStringLiteral("barcodes.%1").arg(barcode.pageNr())),
            KTCatalogueText::tr("barcode"),
            KTCatalogueText::tr("page %1: %2 at %3, %4 mm")
                .arg(QString::number(barcode.pageNr()), KTMillimeterText::text(rect.size()),
                     KTMillimeterText::text(rect.x()), KTMillimeterText::text(rect.y())),
            barcode.imageName(),
            {{QStringLiteral("page"), barcode.pageNr()},
                          {QStringLiteral("leftMillimeters"), KTMillimeterText::millimeters(rect.x())},
                          {QStringLiteral("topMillimeters"), KTMillimeterText::millimeters(rect.y())},
                          {QStringLiteral("sizeMillimeters"), sizeFact(rect.size())},
                          {QStringLiteral("image"), barcode.imageName()}}
        });
    }
    return section;
}

/** "#rrggbb", or "#aarrggbb" for a translucent one. */
QString colorName(const QColor &color)
{
    return color.name(color.alpha() == OPAQUE_ALPHA ? QColor::HexRgb : QColor::HexArgb);
}

Section optionSection(const KTArticle &article)
{
    Section section {QStringLiteral("options"), KTCatalogueText::tr("options"), Shape::List, {}};
    Numbering numbering;
    for (const KTConfiguredArticleVariant &option : article.options()) {
        QStringList flags;
        if (option.isDefault())
            flags.append(KTCatalogueText::tr("preselected"));
        if (option.isNotAccountable())
            flags.append(KTCatalogueText::tr("not charged"));
        Row row {
            numbering.unique(QStringLiteral("options.%1.%2").arg(option.key(), option.value())),
            option.value(),
            option.visibleName(),
            flags.join(COMMA),
            {{QStringLiteral("key"), option.key()},
                          {QStringLiteral("keyName"), option.keyName()},
                          {QStringLiteral("value"), option.value()},
                          {QStringLiteral("valueName"), option.visibleName()},
                          {QStringLiteral("description"), option.describe()},
                          {QStringLiteral("preselected"), option.isDefault()},
                          {QStringLiteral("notCharged"), option.isNotAccountable()}}
        };
        if (option.color().isValid())
            row.facts.append({QStringLiteral("color"), colorName(option.color())});
        if (!option.editorName().isEmpty())
            row.facts.append({QStringLiteral("editor"), option.editorName()});
        if (!option.preview().isEmpty())
            row.facts.append({QStringLiteral("preview"), option.preview()});
        section.rows.append(row);
    }
    return section;
}

Section choiceSection(const KTArticle &article)
{
    const QString id = QStringLiteral("defaultChoice");
    Section section {id, QString(), Shape::Object, {}};
    const KTArticleVariants choice = article.options().defaultVariants();
    if (choice.isValid())
        section.rows.append({id, KTCatalogueText::tr("default choice"), KTVariantsText::mcf(choice),
                             QString(), variantsFacts(choice)});
    return section;
}

/** No box styles where there are too many combinations to be read, or even to be listed. */
Section boxStyleSection(const KTArticle &article)
{
    Section section {QStringLiteral("boxStyles"), QString(), Shape::List, {}};
    const KTConfiguredArticleVariantList &options = article.options();
    const qint64 boxes = options.filter(KTArticleVariants::pictureBoxKeyName()).size();
    const qint64 photos = options.filter(KTArticleVariants::coverFotoKeyName()).size();
    if (boxes * photos > MAX_BOX_STYLES)
        return section;
    Numbering numbering;
    for (const KTArticleVariants &style : options.possibleBoxStyles()) {
        const QString text = KTVariantsText::mcf(style);
        section.rows.append({numbering.unique(QStringLiteral("boxStyles.%1").arg(text)),
                             KTCatalogueText::tr("box style"), text, QString(), variantsFacts(style)});
    }
    return section;
}

} // namespace

KTArticleDescription::KTArticleDescription(const KTArticle &article, const QList<int> &pageCounts)
    : sections {articleSection(article),
                classificationSection(article),
                productSection(article),
                pageCountSection(article, pageCounts),
                sampleSection(article, pageCounts),
                pageSection(article),
                barcodeSection(article),
                optionSection(article),
                choiceSection(article),
                boxStyleSection(article)}
{
}
