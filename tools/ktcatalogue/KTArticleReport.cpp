#include "KTArticleReport.h"

#include "KTTerminalText.h"

#include <KTArticle.h>
#include <KTDistanceUnit.h>
#include <KTMillimeterText.h>
#include <KTVariantsText.h>

#include <QJsonArray>
#include <QMap>

#include <algorithm>

using KTTerminalText::visible;

namespace {

const QString INDENT = QStringLiteral("  ");
constexpr int LABEL_WIDTH = 16;
constexpr qint64 MOST_BOX_STYLES = 1000;

QString line(const QString &label, const QString &text)
{
    QString line = INDENT + label.leftJustified(LABEL_WIDTH) + INDENT + text;
    while (line.endsWith(QLatin1Char(' ')))
        line.chop(1);
    return line;
}

double spineMillimeters(const KTArticle &article, int pages)
{
    return article.spine()
        .spineWidth(static_cast<unsigned int>(std::max(0, pages)))
        .value(KTDistanceUnitMillimeter);
}

/** Three page counts that show the range, fewer where it has fewer. */
QList<int> samplePageCounts(const KTPageCountOrganization &counts)
{
    const int last = std::max(0, counts.numberOfPackages() - 1);
    QList<int> samples {counts.minPages()};
    for (const int packages : {last / 2, last}) {
        const int pages = counts.pagesWithNExtraPackages(packages);
        if (!samples.contains(pages))
            samples.append(pages);
    }
    return samples;
}

QStringList classificationLines(const KTArticle &article)
{
    QStringList lines;
    for (const KTArticle::Classified &entry : article.classifications()) {
        const KTAttributeRow &row = KTCatalogueFormat::attribute(entry.attribute);
        const KTClassification &classification = KTClassification::of(row.classification);
        lines.append(line(row.name.toString(),
                          QStringLiteral("%1  %2").arg(classification.written(entry.value),
                                                       classification.displayName(entry.value))));
        for (const QString &keyword : classification.unknownEntries(entry.text)) {
            const QString word = classification.unknownReadAs();
            const QString readAs
                = word.isEmpty() ? QStringLiteral("nothing") : QStringLiteral("'%1'").arg(word);
            lines.append(line(
                QString(), QStringLiteral("unknown keyword '%1', read as %2").arg(visible(keyword), readAs)));
        }
    }
    return lines;
}

QStringList productLines(const KTArticle &article)
{
    QStringList marks;
    if (article.productType().isCalendar())
        marks.append(QStringLiteral("calendar"));
    if (article.productType().isAgenda())
        marks.append(QStringLiteral("agenda"));
    QStringList lines {
        line(QStringLiteral("product type"),
             visible(article.productType().orderTxtName()) + INDENT + marks.join(QStringLiteral(", ")))};
    lines.append(line(QStringLiteral("price class"),
                      article.priceClass().isFree()
                          ? QStringLiteral("%1  free").arg(visible(article.priceClass().toString())).trimmed()
                          : visible(article.priceClass().toString())));
    const KTShippingGroupId group = article.shippingGroup();
    lines.append(line(QStringLiteral("shipping group"),
                      !group.isValid()                 ? QStringLiteral("none")
                          : group.isCombinedTransfer() ? QStringLiteral("0  combined transfer")
                                                       : group.toString()));
    return lines;
}

QStringList pageLines(const KTArticle &article, const QList<int> &wishes)
{
    const KTPageCountOrganization &counts = article.pageCounts();
    QString text
        = QStringLiteral("%1 to %2, step %3: %4 %5")
              .arg(counts.minPages())
              .arg(counts.maxPages())
              .arg(counts.pageIncrement())
              .arg(counts.numberOfPackages())
              .arg(counts.numberOfPackages() == 1 ? QStringLiteral("choice") : QStringLiteral("choices"));
    if (!counts.isValid())
        text += QStringLiteral(" (not valid)");
    else if (!counts.isConsistent())
        text += QStringLiteral(" (the last step is not complete)");
    QStringList lines {line(QStringLiteral("page counts"), text)};
    QList<int> granted;
    for (const int wish : wishes) {
        granted.append(counts.constrain(wish));
        lines.append(
            line(QString(), QStringLiteral("%1 pages become %2").arg(wish).arg(granted.constLast())));
    }
    if (article.hasSpine()) {
        QStringList widths;
        for (const int pages : wishes.isEmpty() ? samplePageCounts(counts) : granted)
            widths.append(QStringLiteral("%1 mm at %2 pages")
                              .arg(spineMillimeters(article, pages), 0, 'f', 1)
                              .arg(pages));
        lines.append(line(QStringLiteral("spine"), widths.join(QStringLiteral(", "))));
    }
    for (const KTArticle::Page &page : article.pages()) {
        lines.append(
            line(QStringLiteral("page size"),
                 QStringLiteral("%1  %2, with bleed %3")
                     .arg(page.context.pageType().encode(), KTMillimeterText::text(page.size.usableSize()),
                          KTMillimeterText::text(page.size.totalSize()))));
        if (page.size.usableSlipcaseCoverSize().isValid())
            lines.append(line(QString(),
                              QStringLiteral("slipcase cover %1")
                                  .arg(KTMillimeterText::text(page.size.usableSlipcaseCoverSize()))));
    }
    for (const KTBarcodeDefinition &barcode : article.barcodes()) {
        lines.append(
            line(QStringLiteral("barcode"),
                 QStringLiteral("page %1: %2 at %3, %4 mm  %5")
                     .arg(barcode.pageNr())
                     .arg(KTMillimeterText::text(barcode.rect().size()),
                          KTMillimeterText::text(barcode.rect().x()),
                          KTMillimeterText::text(barcode.rect().y()), visible(barcode.imageName()))));
    }
    return lines;
}

QString colorName(const KTConfiguredArticleVariant &option)
{
    if (!option.color().isValid())
        return QString();
    return option.color().name(option.color().alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

template <typename Getter>
int widest(const KTConfiguredArticleVariantList &options, Getter getter)
{
    int width = 0;
    for (const KTConfiguredArticleVariant &option : options)
        width = std::max(width, visible(getter(option)).size());
    return width;
}

/** The options by key, one line each: value, name, colour and flags in columns. */
QStringList optionLines(const KTConfiguredArticleVariantList &options)
{
    if (options.isEmpty())
        return {line(QStringLiteral("options"), QStringLiteral("none"))};
    const int valueWidth
        = widest(options, [](const KTConfiguredArticleVariant &option) { return option.value(); });
    const int nameWidth
        = widest(options, [](const KTConfiguredArticleVariant &option) { return option.visibleName(); });
    QStringList lines {line(QStringLiteral("options"), QString())};
    QMap<QString, KTConfiguredArticleVariantList> byKey;
    for (const KTConfiguredArticleVariant &option : options)
        byKey[option.key()].append(option);
    for (auto entry = byKey.cbegin(); entry != byKey.cend(); ++entry) {
        const KTConfiguredArticleVariantList &ofKey = entry.value();
        lines.append(INDENT + line(visible(entry.key()), visible(ofKey.constFirst().keyName())));
        for (const KTConfiguredArticleVariant &option : ofKey) {
            QStringList flags;
            if (option.isDefault())
                flags.append(QStringLiteral("preselected"));
            if (option.isNotAccountable())
                flags.append(QStringLiteral("not charged"));
            const QString columns
                = QStringLiteral("%1  %2  %3  %4")
                      .arg(visible(option.value()).leftJustified(valueWidth),
                           visible(option.visibleName()).leftJustified(nameWidth),
                           colorName(option).leftJustified(7), flags.join(QStringLiteral(", ")));
            lines.append(INDENT + INDENT + line(QString(), columns).mid(LABEL_WIDTH + INDENT.size()));
        }
    }
    return lines;
}

QJsonObject optionJson(const KTConfiguredArticleVariant &option)
{
    QJsonObject object {
        {QStringLiteral("key"),         option.key()             },
        {QStringLiteral("keyName"),     option.keyName()         },
        {QStringLiteral("value"),       option.value()           },
        {QStringLiteral("valueName"),   option.visibleName()     },
        {QStringLiteral("description"), option.describe()        },
        {QStringLiteral("preselected"), option.isDefault()       },
        {QStringLiteral("notCharged"),  option.isNotAccountable()},
    };
    if (option.color().isValid())
        object.insert(QStringLiteral("color"), colorName(option));
    if (!option.editorName().isEmpty())
        object.insert(QStringLiteral("editor"), option.editorName());
    if (!option.preview().isEmpty())
        object.insert(QStringLiteral("preview"), option.preview());
    return object;
}

QJsonObject classificationsJson(const KTArticle &article)
{
    QJsonObject object;
    for (const KTArticle::Classified &entry : article.classifications()) {
        const KTAttributeRow &row = KTCatalogueFormat::attribute(entry.attribute);
        const KTClassification &classification = KTClassification::of(row.classification);
        QJsonObject json {
            {QStringLiteral("keyword"), classification.written(entry.value)    },
            {QStringLiteral("name"),    classification.displayName(entry.value)}
        };
        const QStringList unknown = classification.unknownEntries(entry.text);
        if (!unknown.isEmpty()) {
            json.insert(QStringLiteral("unknown"), QJsonArray::fromStringList(unknown));
            json.insert(QStringLiteral("readAs"), classification.unknownReadAs());
        }
        object.insert(row.name, json);
    }
    return object;
}

QJsonObject pageCountsJson(const KTArticle &article, const QList<int> &wishes)
{
    const KTPageCountOrganization &counts = article.pageCounts();
    QJsonObject object {
        {QStringLiteral("minimum"),    counts.minPages()        },
        {QStringLiteral("maximum"),    counts.maxPages()        },
        {QStringLiteral("step"),       counts.pageIncrement()   },
        {QStringLiteral("choices"),    counts.numberOfPackages()},
        {QStringLiteral("valid"),      counts.isValid()         },
        {QStringLiteral("consistent"), counts.isConsistent()    },
    };
    QJsonArray answers;
    for (const int pages : wishes.isEmpty() ? samplePageCounts(counts) : wishes) {
        const int becomes = counts.constrain(pages);
        QJsonObject answer {
            {QStringLiteral("pages"),   pages  },
            {QStringLiteral("becomes"), becomes}
        };
        if (article.hasSpine())
            answer.insert(QStringLiteral("spineMillimeters"), spineMillimeters(article, becomes));
        answers.append(answer);
    }
    object.insert(QStringLiteral("samples"), answers);
    return object;
}

QJsonArray sizeJson(const QSize &size)
{
    return {KTMillimeterText::millimeters(size.width()), KTMillimeterText::millimeters(size.height())};
}

QJsonArray pagesJson(const KTArticle &article)
{
    QJsonArray pages;
    for (const KTArticle::Page &page : article.pages()) {
        QJsonObject object {
            {QStringLiteral("type"),              page.context.pageType().encode()    },
            {QStringLiteral("alignment"),         page.context.alignment().encodeCSV()},
            {QStringLiteral("usableMillimeters"), sizeJson(page.size.usableSize())    },
            {QStringLiteral("totalMillimeters"),  sizeJson(page.size.totalSize())     }
        };
        if (page.size.usableSlipcaseCoverSize().isValid())
            object.insert(QStringLiteral("slipcaseMillimeters"),
                          sizeJson(page.size.usableSlipcaseCoverSize()));
        pages.append(object);
    }
    return pages;
}

QJsonArray barcodesJson(const KTArticle &article)
{
    QJsonArray barcodes;
    for (const KTBarcodeDefinition &barcode : article.barcodes()) {
        const QRect rect = barcode.rect();
        barcodes.append(QJsonObject {
            {QStringLiteral("page"),            barcode.pageNr()                       },
            {QStringLiteral("leftMillimeters"), KTMillimeterText::millimeters(rect.x())},
            {QStringLiteral("topMillimeters"),  KTMillimeterText::millimeters(rect.y())},
            {QStringLiteral("sizeMillimeters"), sizeJson(rect.size())                  },
            {QStringLiteral("image"),           barcode.imageName()                    }
        });
    }
    return barcodes;
}

/** The box styles, unless there are too many combinations to be read, or even to be listed. */
KTArticleVariantsList readableBoxStyles(const KTConfiguredArticleVariantList &options)
{
    const qint64 boxes = options.filter(KTArticleVariants::pictureBoxKeyName()).size();
    const qint64 photos = options.filter(KTArticleVariants::coverFotoKeyName()).size();
    return boxes * photos > MOST_BOX_STYLES ? KTArticleVariantsList() : options.possibleBoxStyles();
}

} // namespace

QString KTArticleReport::toText(const KTArticle &article, const QList<int> &pageCounts)
{
    QStringList lines {QStringLiteral("article %1  %2")
                           .arg(article.articleId().toString(), visible(article.name()))
                           .trimmed()};
    if (!article.articleId().isValid())
        lines.append(INDENT + QStringLiteral("has no valid number"));
    lines += classificationLines(article) + productLines(article) + pageLines(article, pageCounts)
        + optionLines(article.options());

    const KTArticleVariants defaults = article.options().defaultVariants();
    if (defaults.isValid())
        lines.append(line(QStringLiteral("default choice"), visible(KTVariantsText::mcf(defaults))));
    for (const KTArticleVariants &style : readableBoxStyles(article.options()))
        lines.append(line(QStringLiteral("box style"), visible(KTVariantsText::mcf(style))));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QJsonObject KTArticleReport::toJSON(const KTArticle &article, const QList<int> &pageCounts)
{
    QJsonArray options;
    for (const KTConfiguredArticleVariant &option : article.options())
        options.append(optionJson(option));
    QJsonArray boxStyles;
    for (const KTArticleVariants &style : readableBoxStyles(article.options()))
        boxStyles.append(KTArticleReport::toJSON(style));

    QJsonObject object {
        {QStringLiteral("name"),            article.name()                      },
        {QStringLiteral("classifications"), classificationsJson(article)        },
        {QStringLiteral("productType"),     article.productType().orderTxtName()},
        {QStringLiteral("calendar"),        article.productType().isCalendar()  },
        {QStringLiteral("agenda"),          article.productType().isAgenda()    },
        {QStringLiteral("priceClass"),      article.priceClass().toString()     },
        {QStringLiteral("shippingGroup"),   article.shippingGroup().id()        },
        {QStringLiteral("pageCounts"),      pageCountsJson(article,               pageCounts)},
        {QStringLiteral("pages"),                                 pagesJson(article)                                              },
        {QStringLiteral("barcodes"),                                 barcodesJson(article)},
        {QStringLiteral("options"),                                 options                                               },
        {QStringLiteral("defaultChoice"),                                 KTArticleReport::toJSON(article.options().defaultVariants())},
        {QStringLiteral("boxStyles"),                                 boxStyles                                                   },
    };
    article.articleId().toJSON(object);
    return object;
}

QJsonObject KTArticleReport::toJSON(const KTArticleVariants &variants)
{
    QJsonObject object;
    for (const QString &key : variants.keys())
        object.insert(key, variants.value(key, QString()));
    return object;
}
