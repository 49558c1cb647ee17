#include "KTReportContents.h"

#include "KTReportText.h"
#include "KTToolText.h"

#include <KTArithmetic.h>
#include <KTClassification.h>
#include <KTMillimeterText.h>

#include <algorithm>

namespace {

const QString NOTHING = QStringLiteral("–");

/** How people name the format, with the size of a page: "A4, 210 × 280 mm". */
QString formatOf(const KTArticle &article)
{
    QString size;
    QString orientation;
    for (const KTArticle::Classified &entry : article.classifications()) {
        const QString name
            = KTClassification::of(KTCatalogueFormat::attribute(entry.attribute).classification)
                  .displayName(entry.value);
        if (entry.attribute == KTAttributeId::ArticleSpaceMagnitude)
            size = name;
        else if (entry.attribute == KTAttributeId::ArticleOrientation)
            orientation = name;
    }
    QStringList words {size};
    if (article.pages().isEmpty()) {
        // Names of orientations stand before a noun, some with a hyphen.
        words.append(orientation.endsWith(QLatin1Char('-')) ? orientation.chopped(1) : orientation);
    } else {
        const QSize usable = article.pages().constFirst().size.usableSize();
        words.append(QStringLiteral("%1\u00a0×\u00a0%2\u00a0mm")
                         .arg(KTHtmlWriter::number(KTMillimeterText::millimeters(usable.width())),
                              KTHtmlWriter::number(KTMillimeterText::millimeters(usable.height()))));
    }
    words.removeAll(QString());
    return words.isEmpty() ? NOTHING : words.join(QStringLiteral(", "));
}

/** A cell with its column's name, for screens on which cells stand one below the other. */
void beginCell(KTHtmlWriter *html, const QString &label, std::optional<int> value = std::nullopt)
{
    html->start("td");
    html->attribute("data-label", label);
    if (value)
        html->attribute("data-value", *value);
}

void writeCell(KTHtmlWriter *html, const QString &label, const QString &text,
               std::optional<int> value = std::nullopt)
{
    beginCell(html, label, value);
    html->text(text);
    html->end();
}

/** Sorts articles with errors before those with any number of warnings, and these before hints. */
int weightOf(const KTFindingCounts &counts)
{
    constexpr int MOST = 999;
    return (std::min(counts.errors, MOST) * (MOST + 1) + std::min(counts.warnings, MOST)) * (MOST + 1)
        + std::min(counts.hints, MOST);
}

KTFindingCounts countsOf(const QVector<KTFinding> &findings)
{
    KTFindingCounts counts;
    for (const KTFinding &finding : findings)
        counts.add(finding.severity);
    return counts;
}

} // namespace

KTReportContents::KTReportContents() = default;

void KTReportContents::add(const KTReportArticle &article, bool isCompared)
{
    ++myArticles;
    myArticlesWithFindings += article.findings.isEmpty() ? 0 : 1;
    myFindings.add(countsOf(article.findings));
    Class &entry = myClasses[KTReportText::classKeyword(article.article)];
    entry.name = KTReportText::className(article.article);
    ++entry.articles;
    for (const KTDifference &difference : article.differences)
        myDifferences.add(difference.rule);
    if (article.isNew())
        ++myAdded;
    else if (!article.differences.isEmpty())
        ++myChanged;
    writeRow(&myRows.html, article, isCompared);
}

void KTReportContents::addFinding(const KTFinding &finding)
{
    ++myFindingsOutside;
    myFindings.add(finding.severity);
    KTReportText::writeFinding(&myOutside.html, finding);
    myOutside.html.line();
}

void KTReportContents::addRemoved(const KTDifference &difference)
{
    ++myRemoved;
    myDifferences.add(difference.rule);
    KTHtmlWriter &html = myRemovedRows.html;
    html.start("li");
    html.element("b", QString::number(difference.articleId));
    html.text(QStringLiteral(" "));
    html.foreign("span", difference.articleName);
    html.text(QStringLiteral(" "));
    html.element("span", KTToolText::tr("old line %1").arg(difference.olderRange.begin.line), "place");
    html.end();
    html.line();
}

void KTReportContents::writeRow(KTHtmlWriter *html, const KTReportArticle &article, bool isCompared)
{
    const KTFindingCounts counts = countsOf(article.findings);
    const KTArticle &content = article.article;
    html->start("tr");
    html->attribute("data-class", KTReportText::classKeyword(content));
    if (!article.findings.isEmpty())
        html->attribute("data-found", QString());
    if (!article.differences.isEmpty())
        html->attribute("data-changed", QString());
    html->start("th");
    html->attribute("scope", QStringLiteral("row"));
    html->attribute("data-value", content.articleId().id());
    html->start("a");
    html->attribute("href", QLatin1Char('#') + article.anchor());
    html->text(article.number().isEmpty() ? KTToolText::tr("no number") : article.number());
    html->end();
    html->end();
    beginCell(html, KTToolText::tr("Name"));
    html->foreign("span", content.name().isEmpty() ? NOTHING : content.name());
    html->end();
    beginCell(html, KTToolText::tr("Class"));
    html->text(KTReportText::className(content) + QLatin1Char(' '));
    html->element("code", KTReportText::classKeyword(content));
    html->end();
    writeCell(html, KTToolText::tr("Format"), formatOf(content));
    writeCell(html, KTToolText::tr("Pages"), KTReportText::pageCounts(content),
              content.pageCounts().minPages());
    beginCell(html, KTToolText::tr("Price class"));
    html->foreign("span",
                  content.priceClass().toString().isEmpty() ? NOTHING : content.priceClass().toString());
    html->end();
    const KTShippingGroupId group = content.shippingGroup();
    writeCell(html, KTToolText::tr("Shipping group"), group.isValid() ? group.toString() : NOTHING,
              group.isValid() ? group.id() : -1);
    beginCell(html, KTToolText::tr("Findings"), weightOf(counts));
    if (article.findings.isEmpty())
        html->text(NOTHING);
    for (const auto &[severity, count] :
         {std::pair(KTSeverity::Error, counts.errors), std::pair(KTSeverity::Warning, counts.warnings),
          std::pair(KTSeverity::Hint, counts.hints)}) {
        if (count == 0)
            continue;
        KTReportText::writeTag(html, KTReportText::counted(severity, count), KTReportText::style(severity));
        html->text(QStringLiteral(" "));
    }
    html->end();
    if (isCompared) {
        const int changes = KTArithmetic::sizeOf(article.differences);
        beginCell(html, KTToolText::tr("Changes"), changes);
        if (article.isNew())
            KTReportText::writeTag(html, KTToolText::tr("new"), "tag hint");
        else if (changes > 0)
            html->text(QString::number(changes));
        else
            html->text(NOTHING);
        html->end();
    }
    html->end();
    html->line();
}

bool KTReportContents::deliver(Part *part, QIODevice *device)
{
    return part->spool.deliver(device);
}
