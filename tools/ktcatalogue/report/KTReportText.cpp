#include "KTReportText.h"

#include "KTToolText.h"

#include <KTClassification.h>
#include <KTMillimeterText.h>

QString KTReportText::severity(KTSeverity severity)
{
    switch (severity) {
    case KTSeverity::Error:
        return KTToolText::tr("Error");
    case KTSeverity::Warning:
        return KTToolText::tr("Warning");
    case KTSeverity::Hint:
        break;
    }
    return KTToolText::tr("Hint");
}

QString KTReportText::counted(KTSeverity severity, int count)
{
    switch (severity) {
    case KTSeverity::Error:
        return (count == 1 ? KTToolText::tr("%1 error") : KTToolText::tr("%1 errors")).arg(count);
    case KTSeverity::Warning:
        return (count == 1 ? KTToolText::tr("%1 warning") : KTToolText::tr("%1 warnings")).arg(count);
    case KTSeverity::Hint:
        break;
    }
    return (count == 1 ? KTToolText::tr("%1 hint") : KTToolText::tr("%1 hints")).arg(count);
}

const char *KTReportText::style(KTSeverity severity)
{
    switch (severity) {
    case KTSeverity::Error:
        return "tag error";
    case KTSeverity::Warning:
        return "tag warning";
    case KTSeverity::Hint:
        break;
    }
    return "tag hint";
}

QString KTReportText::kind(KTDifferenceKind kind)
{
    switch (kind) {
    case KTDifferenceKind::Breaking:
        return KTToolText::tr("Breaking");
    case KTDifferenceKind::Charge:
        return KTToolText::tr("Charge");
    case KTDifferenceKind::Production:
        return KTToolText::tr("Production");
    case KTDifferenceKind::Offer:
        return KTToolText::tr("Offer");
    case KTDifferenceKind::Text:
        break;
    }
    return KTToolText::tr("Text");
}

const char *KTReportText::style(KTDifferenceKind kind)
{
    switch (kind) {
    case KTDifferenceKind::Breaking:
        return "tag error";
    case KTDifferenceKind::Charge:
    case KTDifferenceKind::Production:
        return "tag warning";
    case KTDifferenceKind::Offer:
    case KTDifferenceKind::Text:
        break;
    }
    return "tag hint";
}

QString KTReportText::classKeyword(const KTArticle &article)
{
    return KTClassification::of(KTClassificationId::ArticleClass)
        .written(static_cast<qint64>(article.articleClass().value()));
}

QString KTReportText::className(const KTArticle &article)
{
    // The product model counts these among the gifts, which would hide that something is missing.
    if (article.articleClass().value() == KTArticleClassNone)
        return KTToolText::tr("no class");
    const QString name = KTClassification::of(KTClassificationId::ArticleClass)
                             .displayName(static_cast<qint64>(article.articleClass().value()));
    return name.isEmpty() ? classKeyword(article) : name;
}

QString KTReportText::pageCounts(const KTArticle &article)
{
    const KTPageCountOrganization &counts = article.pageCounts();
    if (counts.minPages() == counts.maxPages())
        return QString::number(counts.minPages());
    return KTToolText::tr("%1 to %2, step %3")
        .arg(counts.minPages())
        .arg(counts.maxPages())
        .arg(counts.pageIncrement());
}

QString KTReportText::millimeters(double layoutUnits)
{
    return KTHtmlWriter::number(KTMillimeterText::millimeters(layoutUnits)) + QStringLiteral("\u00a0mm");
}

void KTReportText::writeTag(KTHtmlWriter *html, const QString &text, const char *style)
{
    html->element("span", text, style ? style : "tag");
}

void KTReportText::writeFinding(KTHtmlWriter *html, const KTFinding &finding)
{
    html->start("li");
    writeTag(html, severity(finding.severity), style(finding.severity));
    html->text(QStringLiteral(" "));
    if (finding.range.begin.line > 0) {
        html->element("span", KTToolText::tr("line %1").arg(finding.range.begin.line), "place");
        html->text(QStringLiteral(" "));
    }
    html->start("span");
    html->attribute("dir", QStringLiteral("auto"));
    html->text(KTHtmlWriter::shortened(finding.message, 2 * KTHtmlWriter::LONGEST_TEXT));
    html->end();
    html->text(QStringLiteral(" "));
    html->element("code", KTCheckRules::name(finding.rule));
    html->end();
}

void KTReportText::writeFindings(KTHtmlWriter *html, const QVector<const KTFinding *> &findings)
{
    if (findings.isEmpty())
        return;
    html->start("ul", "findings");
    for (const KTFinding *const finding : findings)
        writeFinding(html, *finding);
    html->end();
}
