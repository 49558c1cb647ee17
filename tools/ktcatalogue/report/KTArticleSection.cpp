#include "KTArticleSection.h"

#include "KTFigureSvg.h"
#include "KTHtmlWriter.h"
#include "KTReportText.h"
#include "KTSpineChart.h"
#include "KTToolText.h"

#include <KTArithmetic.h>
#include <KTArticlePlaces.h>
#include <KTOrderDraft.h>
#include <KTVariantsText.h>

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace {

constexpr int OPAQUE_ALPHA = 255;
constexpr int MAX_BOX_STYLES = 40;
constexpr int LONGEST_CODE = 4000;
/** Behind the separators of order texts. */
const QRegularExpression BREAK(QStringLiteral("(?<=[;,])"));

/** What a keyword of the article is about, for somebody who does not know the names of attributes. */
QString labelOf(KTAttributeId attribute)
{
    switch (attribute) {
    case KTAttributeId::ArticleClass:
        return KTToolText::tr("Class");
    case KTAttributeId::ArticleArrangement:
        return KTToolText::tr("Arrangement");
    case KTAttributeId::ArticleSpaceMagnitude:
        return KTToolText::tr("Size");
    case KTAttributeId::ArticleOrientation:
        return KTToolText::tr("Orientation");
    case KTAttributeId::ArticleCoverType:
        return KTToolText::tr("Cover");
    case KTAttributeId::ArticleBinding:
        return KTToolText::tr("Binding");
    case KTAttributeId::ArticlePaper:
        return KTToolText::tr("Paper");
    case KTAttributeId::ArticlePhotoPaper:
        return KTToolText::tr("Photo paper");
    case KTAttributeId::ArticleMaterial:
        return KTToolText::tr("Material");
    case KTAttributeId::ArticleContentType:
        return KTToolText::tr("Content");
    case KTAttributeId::ArticleSpotColors:
        return KTToolText::tr("Spot colours");
    default:
        return KTCatalogueFormat::attributeName(attribute);
    }
}

QStringList textsOf(const KTArticleDescription::Row &row, const char *name)
{
    for (const KTArticleDescription::Fact &fact : row.facts) {
        if (fact.name == QLatin1String(name))
            return std::get<QStringList>(fact.value);
    }
    return {};
}

/** The least page count at which all barcodes have their pages. */
int drawnPages(const KTArticle &article)
{
    const KTPageCountOrganization &counts = article.pageCounts();
    int pages = counts.minPages();
    for (const KTBarcodeDefinition &barcode : article.barcodes()) {
        const int needed = counts.constrain(barcode.pageNr());
        if (barcode.pageNr() <= needed && counts.isValidPageCount(needed))
            pages = std::max(pages, needed);
    }
    return pages;
}

/** What one has to know to read the drawings. */
QString noteOf(const KTPreviewModel &model, int scale, int pages)
{
    const auto has = [&model](auto predicate) {
        return std::any_of(model.figures.begin(), model.figures.end(), predicate);
    };
    const auto hasSpine = [](const KTPreviewModel::Figure &figure) { return !figure.spine.isEmpty(); };
    const auto hasBleed = [](const KTPreviewModel::Figure &figure) {
        return figure.panels.constFirst().usable.height() != figure.total.height();
    };
    const auto hasSlipcase
        = [](const KTPreviewModel::Figure &figure) { return !figure.panels.constLast().slipcase.isEmpty(); };
    QStringList sentences {
        has(hasSpine)
            ? KTToolText::tr("Scale 1 : %1, lengths in millimetres, at %2 pages.").arg(scale).arg(pages)
            : KTToolText::tr("Scale 1 : %1, lengths in millimetres.").arg(scale)};
    if (has(hasBleed))
        sentences.append(KTToolText::tr("The red frame is the bleed."));
    if (has(hasSlipcase))
        sentences.append(KTToolText::tr("The dashed frame is the slipcase cover."));
    return sentences.join(QLatin1Char(' '));
}

} // namespace

KTArticleSection::KTArticleSection(KTHtmlWriter *html, const KTReportArticle &article, const QString &footer)
    : myHtml(html)
    , myArticle(article)
    , myFooter(footer)
    , myFindings(article)
    , myDescription(article.article)
{
}

void KTArticleSection::write(const QString &olderName)
{
    const QString anchor = myArticle.anchor();
    myHtml->start("article");
    myHtml->attribute("id", anchor);
    myHtml->attribute("aria-labelledby", QStringLiteral("t-") + anchor);
    myHtml->line();
    writeHead();
    KTReportText::writeFindings(myHtml, myFindings.takeRest(Topic::Article));
    writeDifferences(olderName);
    myHtml->start("div", "parts");
    writeDrawings();
    writeFacts();
    writeOptions();
    writePageCounts();
    writeBarcodes();
    writeChoice();
    myHtml->end();
    myHtml->end();
    myHtml->line();
}

const QVector<KTArticleSection::Row> &KTArticleSection::rows(const char *section) const
{
    const auto found
        = std::find_if(myDescription.sections.begin(), myDescription.sections.end(),
                       [section](const auto &entry) { return entry.id == QLatin1String(section); });
    return found->rows;
}

void KTArticleSection::begin(const QString &title, const char *style)
{
    myHtml->start("section", style);
    myHtml->element("h3", title);
}

void KTArticleSection::end()
{
    myHtml->end();
    myHtml->line();
}

void KTArticleSection::writeFact(const QString &label, const QString &keyword, const QString &name,
                                 const KTArticleFindings::List &findings, const QStringList &notes)
{
    myHtml->start("div");
    myHtml->element("dt", label);
    myHtml->start("dd");
    if (!name.isEmpty()) {
        myHtml->foreign("span", name);
        myHtml->text(QStringLiteral(" "));
    }
    if (!keyword.isEmpty())
        myHtml->foreign("code", keyword);
    for (const QString &note : notes) {
        myHtml->text(QStringLiteral(" "));
        KTReportText::writeTag(myHtml, KTHtmlWriter::shortened(note), "tag warning");
    }
    KTReportText::writeFindings(myHtml, findings);
    myHtml->end();
    myHtml->end();
}

void KTArticleSection::writeCode(const QString &label, const QString &text)
{
    myHtml->start("div");
    myHtml->element("dt", label);
    myHtml->start("dd");
    myHtml->start("code");
    myHtml->attribute("dir", QStringLiteral("auto"));
    // Where it may go on in the next line.
    for (const QString &pair : KTHtmlWriter::shortened(text, LONGEST_CODE).split(BREAK)) {
        if (!pair.isEmpty()) {
            myHtml->text(pair);
            myHtml->empty("wbr");
        }
    }
    myHtml->end();
    myHtml->end();
    myHtml->end();
}

void KTArticleSection::writeHead()
{
    const KTArticle &article = myArticle.article;
    const QString number = myArticle.number().isEmpty() ? KTToolText::tr("no number") : myArticle.number();
    myHtml->start("header");
    myHtml->start("h2");
    myHtml->attribute("id", QStringLiteral("t-") + myArticle.anchor());
    myHtml->element("span", number, "nr");
    myHtml->text(QStringLiteral(" "));
    myHtml->foreign("span", article.name().isEmpty() ? KTToolText::tr("without a name") : article.name());
    myHtml->end();
    myHtml->start("p", "about");
    KTReportText::writeTag(myHtml, KTReportText::className(article));
    const KTFileRange range = myArticle.source->elementRange(0);
    myHtml->text(QStringLiteral(" "));
    myHtml->element("span",
                    range.begin.line == range.end.line
                        ? KTToolText::tr("line %1").arg(range.begin.line)
                        : KTToolText::tr("lines %1 to %2").arg(range.begin.line).arg(range.end.line),
                    "place");
    for (const KTSeverity severity : {KTSeverity::Error, KTSeverity::Warning, KTSeverity::Hint}) {
        const auto count
            = std::count_if(myArticle.findings.begin(), myArticle.findings.end(),
                            [=](const KTFinding &finding) { return finding.severity == severity; });
        if (count == 0)
            continue;
        myHtml->text(QStringLiteral(" "));
        KTReportText::writeTag(myHtml, KTReportText::counted(severity, KTArithmetic::saturated(count)),
                               KTReportText::style(severity));
    }
    myHtml->text(QStringLiteral(" "));
    myHtml->start("a", "up");
    myHtml->attribute("href", QStringLiteral("#articles"));
    myHtml->text(KTToolText::tr("To the table"));
    myHtml->end();
    myHtml->end();
    // Printed only, on each sheet of the article.
    myHtml->element("p", QStringLiteral("%1 · %2").arg(number, myFooter), "printed");
    myHtml->end();
    myHtml->line();
}

void KTArticleSection::writeDifferences(const QString &olderName)
{
    if (myArticle.differences.isEmpty())
        return;
    begin(KTToolText::tr("Changes since %1").arg(KTHtmlWriter::shortened(olderName)), "changes");
    myHtml->start("ul", "findings");
    for (const KTDifference &difference : myArticle.differences) {
        const KTDifferenceKind kind = KTDifferenceRules::row(difference.rule).kind;
        myHtml->start("li");
        KTReportText::writeTag(myHtml, KTReportText::kind(kind), KTReportText::style(kind));
        myHtml->text(QStringLiteral(" "));
        QStringList places;
        if (difference.olderRange.begin.line > 0)
            places.append(KTToolText::tr("old line %1").arg(difference.olderRange.begin.line));
        if (difference.newerRange.begin.line > 0)
            places.append(KTToolText::tr("new line %1").arg(difference.newerRange.begin.line));
        myHtml->element("span", places.join(QStringLiteral(", ")), "place");
        myHtml->text(QStringLiteral(" "));
        myHtml->start("span");
        myHtml->attribute("dir", QStringLiteral("auto"));
        myHtml->text(KTHtmlWriter::shortened(difference.message, 2 * KTHtmlWriter::LONGEST_TEXT));
        myHtml->end();
        myHtml->text(QStringLiteral(" "));
        myHtml->element("code", KTDifferenceRules::name(difference.rule));
        myHtml->end();
    }
    myHtml->end();
    end();
}

void KTArticleSection::writeDrawings()
{
    const KTArticle &article = myArticle.article;
    const int pages = drawnPages(article);
    QString objection;
    const std::optional<KTPreviewModel> model = KTPreviewModel::create(article, pages, &objection);
    begin(KTToolText::tr("Drawings"), "drawings");
    KTReportText::writeFindings(myHtml, myFindings.takeRest(Topic::Pages));
    if (!model) {
        myHtml->foreign("p", KTToolText::tr("Not drawn: the article %1.").arg(objection), "note");
        for (const Row &row : rows("pages"))
            myHtml->foreign("p", row.value);
        end();
        return;
    }
    const int scale = KTFigureSvg::scale(model->figures);
    myHtml->element("p", noteOf(*model, scale, pages), "note");
    myHtml->start("div", "figures");
    for (const KTPreviewModel::Figure &figure : model->figures)
        KTFigureSvg::write(myHtml, figure, scale);
    myHtml->end();
    for (const QString &note : model->notes)
        myHtml->foreign("p", KTToolText::tr("Not drawn: %1").arg(note), "note");
    end();
}

void KTArticleSection::writeBarcodes()
{
    const QVector<Row> &barcodes = rows("barcodes");
    KTArticlePlaces places(*myArticle.source);
    QVector<KTArticleFindings::List> findings;
    for (int i = 0; i < barcodes.size(); ++i)
        findings.append(
            myFindings.take(Topic::Barcodes, places.range({KTElementKind::Barcode, i, std::nullopt})));
    const KTArticleFindings::List rest = myFindings.takeRest(Topic::Barcodes);
    if (barcodes.isEmpty() && rest.isEmpty())
        return;
    begin(KTToolText::tr("Barcodes"));
    KTReportText::writeFindings(myHtml, rest);
    myHtml->start("ul", "plain");
    for (int i = 0; i < barcodes.size(); ++i) {
        myHtml->start("li");
        myHtml->text(barcodes.at(i).value + QLatin1Char(' '));
        myHtml->foreign("code", barcodes.at(i).remark);
        KTReportText::writeFindings(myHtml, findings.at(i));
        myHtml->end();
    }
    myHtml->end();
    end();
}

void KTArticleSection::writeFacts()
{
    struct Line
    {
        QString label;
        QString keyword;
        QString name;
        KTArticleFindings::List findings;
        QStringList notes;
    };
    QVector<Line> lines;
    const QVector<KTArticle::Classified> &classified = myArticle.article.classifications();
    int index = 0;
    for (const Row &row : rows("classifications")) {
        // The other rows tell of unknown keywords, which the first one knows.
        if (row.id.isEmpty())
            continue;
        const KTAttributeId attribute = classified.at(index++).attribute;
        Line line {labelOf(attribute),
                   row.value,
                   row.remark,
                   myFindings.take(Topic::Facts, KTCatalogueFormat::attributeName(attribute)),
                   {}};
        for (const QString &word : textsOf(row, "unknown"))
            line.notes.append(KTToolText::tr("not understood: '%1'").arg(word));
        lines.append(line);
    }
    const std::array<KTAttributeId, 3> attributes {KTAttributeId::ArticleProductName,
                                                   KTAttributeId::ArticlePriceClass,
                                                   KTAttributeId::ArticleShippingGroup};
    const QVector<Row> &product = rows("product");
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const Row &row = product.at(static_cast<int>(i));
        QString label = row.label;
        label[0] = label.at(0).toUpper();
        lines.append({label,
                      row.value,
                      row.remark,
                      myFindings.take(Topic::Facts, KTCatalogueFormat::attributeName(attributes[i])),
                      {}});
    }
    begin(KTToolText::tr("Article"));
    KTReportText::writeFindings(myHtml, myFindings.takeRest(Topic::Facts));
    myHtml->start("dl");
    for (const Line &line : qAsConst(lines))
        writeFact(line.label, line.keyword, line.name, line.findings, line.notes);
    myHtml->end();
    end();
}

void KTArticleSection::writeOptions()
{
    const KTConfiguredArticleVariantList &options = myArticle.article.options();
    KTArticlePlaces places(*myArticle.source);
    QStringList keys;
    QHash<QString, QVector<int>> groups;
    QVector<KTArticleFindings::List> findings;
    for (int i = 0; i < options.size(); ++i) {
        const QString key = options.at(i).key();
        if (!groups.contains(key))
            keys.append(key);
        groups[key].append(i);
        findings.append(
            myFindings.take(Topic::Options, places.range({KTElementKind::Form, i, std::nullopt})));
    }
    begin(KTToolText::tr("Options"));
    KTReportText::writeFindings(myHtml, myFindings.takeRest(Topic::Options));
    if (keys.isEmpty())
        myHtml->element("p", KTToolText::tr("The article offers no options."), "note");
    for (const QString &key : qAsConst(keys)) {
        const QVector<int> indexes = groups.value(key);
        const KTConfiguredArticleVariant &first = options.at(indexes.constFirst());
        myHtml->start("div", "group");
        myHtml->start("h4");
        if (!first.keyName().isEmpty()) {
            myHtml->foreign("span", first.keyName());
            myHtml->text(QStringLiteral(" "));
        }
        myHtml->foreign("code", key);
        myHtml->end();
        myHtml->start("ul", "options");
        for (const int index : indexes)
            writeOption(options.at(index), findings.at(index));
        myHtml->end();
        myHtml->end();
        myHtml->line();
    }
    end();
}

void KTArticleSection::writeOption(const KTConfiguredArticleVariant &option,
                                   const KTArticleFindings::List &findings)
{
    const QColor color = option.color();
    myHtml->start("li");
    myHtml->start("svg", "swatch");
    myHtml->attribute("viewBox", QStringLiteral("0 0 16 16"));
    myHtml->attribute("aria-hidden", QStringLiteral("true"));
    if (color.isValid()) {
        if (color.alpha() < OPAQUE_ALPHA) {
            myHtml->empty("rect", "through");
            myHtml->attribute("width", 16);
            myHtml->attribute("height", 16);
        }
        myHtml->empty("rect");
        myHtml->attribute("width", 16);
        myHtml->attribute("height", 16);
        myHtml->attribute("fill", color.name());
        if (color.alpha() < OPAQUE_ALPHA)
            myHtml->attribute("fill-opacity", color.alphaF());
    }
    myHtml->end();
    myHtml->foreign("b", option.visibleName().isEmpty() ? option.value() : option.visibleName());
    myHtml->text(QStringLiteral(" "));
    myHtml->foreign("code", option.value());
    if (option.isDefault()) {
        myHtml->text(QStringLiteral(" "));
        KTReportText::writeTag(myHtml, KTToolText::tr("preselected"), "tag chosen");
    }
    if (option.isNotAccountable()) {
        myHtml->text(QStringLiteral(" "));
        KTReportText::writeTag(myHtml, KTToolText::tr("not charged"), "tag free");
    }
    if (color.isValid() && color.alpha() < OPAQUE_ALPHA) {
        myHtml->text(QStringLiteral(" "));
        KTReportText::writeTag(myHtml, KTToolText::tr("transparent"));
    }
    if (!option.preview().isEmpty()) {
        myHtml->text(QStringLiteral(" "));
        myHtml->foreign("span", KTToolText::tr("preview %1").arg(option.preview()), "place");
    }
    KTReportText::writeFindings(myHtml, findings);
    myHtml->end();
}

void KTArticleSection::writePageCounts()
{
    begin(myArticle.article.hasSpine() ? KTToolText::tr("Page counts and spine")
                                       : KTToolText::tr("Page counts"));
    KTReportText::writeFindings(myHtml, myFindings.takeRest(Topic::PageCounts));
    const KTPageCountOrganization &counts = myArticle.article.pageCounts();
    const bool isFixed = counts.isValid() && counts.minPages() == counts.maxPages();
    myHtml->element("p",
                    isFixed ? counts.minPages() == 1 ? KTToolText::tr("1 page")
                                                     : KTToolText::tr("%1 pages").arg(counts.minPages())
                            : rows("pageCounts").constFirst().value);
    if (myArticle.article.hasSpine())
        KTSpineChart::write(myHtml, myArticle.article);
    end();
}

void KTArticleSection::writeChoice()
{
    const KTOrderDraft draft(myArticle.article);
    begin(KTToolText::tr("Default choice"));
    if (draft.choice().isValid()) {
        myHtml->start("dl", "codes");
        writeCode(KTToolText::tr("Order text"), draft.orderText());
        writeCode(QStringLiteral("MCF"), draft.mcf());
        writeCode(KTToolText::tr("Production"), KTVariantsText::mcf(draft.production()));
        const QStringList open = draft.openKeys();
        if (!open.isEmpty())
            writeCode(KTToolText::tr("Left open"), open.join(QStringLiteral(", ")));
        myHtml->end();
    } else {
        myHtml->element("p", KTToolText::tr("Nothing is preselected."), "note");
    }
    const QVector<Row> &styles = rows("boxStyles");
    if (!styles.isEmpty()) {
        myHtml->element("h4", KTToolText::tr("Box styles"));
        myHtml->start("ul", "plain");
        for (int i = 0; i < styles.size() && i < MAX_BOX_STYLES; ++i) {
            myHtml->start("li");
            myHtml->foreign("code", styles.at(i).value);
            myHtml->end();
        }
        if (styles.size() > MAX_BOX_STYLES)
            myHtml->element("li",
                            KTToolText::tr("%1 more").arg(KTArithmetic::sizeOf(styles) - MAX_BOX_STYLES));
        myHtml->end();
    }
    end();
}
