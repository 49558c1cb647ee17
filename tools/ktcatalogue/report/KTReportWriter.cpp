#include "KTReportWriter.h"

#include "KTArticleSection.h"
#include "KTFigureSvg.h"
#include "KTFileName.h"
#include "KTReportText.h"
#include "KTToolText.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

/** A macro, so it needs a function outside of every namespace; resources of a static library load so. */
static void loadResources()
{
    Q_INIT_RESOURCE(report);
}

namespace {

QString resource(const char *name)
{
    loadResources();
    QFile file(QStringLiteral(":/report/%1").arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

constexpr KTDifferenceKind KINDS_BY_GRAVITY[]
    = {KTDifferenceKind::Breaking, KTDifferenceKind::Charge, KTDifferenceKind::Production,
       KTDifferenceKind::Offer, KTDifferenceKind::Text};

/** What the file is called, wherever it lies. */
QString nameOf(const QString &file)
{
    return KTFileName::isStandardInput(file) ? KTToolText::tr("standard input")
                                             : KTHtmlWriter::shortened(QFileInfo(file).fileName());
}

void beginSection(KTHtmlWriter *html, const char *id, const QString &title)
{
    const QString titleId = QStringLiteral("%1-title").arg(QLatin1String(id));
    html->start("section");
    html->attribute("id", QString::fromLatin1(id));
    html->attribute("aria-labelledby", titleId);
    html->start("h2");
    html->attribute("id", titleId);
    html->text(title);
    html->end();
    html->line();
}

void endSection(KTHtmlWriter *html)
{
    html->end();
    html->line();
}

} // namespace

KTReportWriter::KTReportWriter(QIODevice *device, const KTReportHead &head, KTReportContents *contents)
    : myDevice(device)
    , myHtml(device)
    , myHead(head)
    , myContents(contents)
    , myScript(resource("report.js"))
{
}

QString KTReportWriter::title() const
{
    return nameOf(myHead.catalogueName);
}

QString KTReportWriter::olderTitle() const
{
    return nameOf(myHead.olderName);
}

QString KTReportWriter::footer() const
{
    return KTToolText::tr("%1, made on %2").arg(title(), myHead.made.date().toString(Qt::ISODate));
}

void KTReportWriter::begin()
{
    myHtml.writeDocumentType();
    myHtml.start("html");
    //: The language of the texts, as HTML names it.
    myHtml.attribute("lang", KTToolText::tr("en"));
    myHtml.line();
    writeDocumentHead();
    myHtml.start("body");
    myHtml.line();
    KTFigureSvg::writeDefinitions(&myHtml);
    writeTop();
    myHtml.start("main");
    myHtml.line();
    writeSummary();
    writeOutside();
    beginSection(&myHtml, "articles", KTToolText::tr("Articles"));
    writeFilter();
    writeTable();
    endSection(&myHtml);
    // Before the articles, so that the table works while they still load.
    myHtml.code("script", myScript);
    myHtml.line();
}

void KTReportWriter::writeDocumentHead()
{
    const QString style = resource("report.css");
    myHtml.start("head");
    myHtml.empty("meta");
    myHtml.attribute("charset", QStringLiteral("utf-8"));
    myHtml.empty("meta");
    myHtml.attribute("http-equiv", QStringLiteral("Content-Security-Policy"));
    myHtml.attribute("content",
                     QStringLiteral("default-src 'none'; style-src %1; script-src %2; img-src data:; "
                                    "base-uri 'none'; form-action 'none'")
                         .arg(KTHtmlWriter::codeHash(style), KTHtmlWriter::codeHash(myScript)));
    myHtml.empty("meta");
    myHtml.attribute("name", QStringLiteral("viewport"));
    myHtml.attribute("content", QStringLiteral("width=device-width, initial-scale=1"));
    myHtml.empty("meta");
    myHtml.attribute("name", QStringLiteral("generator"));
    myHtml.attribute("content",
                     QStringLiteral("%1 %2").arg(QCoreApplication::applicationName(),
                                                 QCoreApplication::applicationVersion()));
    myHtml.line();
    myHtml.element("title", KTToolText::tr("%1: catalogue report").arg(title()));
    myHtml.line();
    myHtml.code("style", style);
    myHtml.line();
    myHtml.end();
    myHtml.line();
}

void KTReportWriter::writeTop()
{
    myHtml.start("a", "skip");
    myHtml.attribute("href", QStringLiteral("#articles"));
    myHtml.text(KTToolText::tr("Skip to the articles"));
    myHtml.end();
    myHtml.line();
    myHtml.start("header", "top");
    myHtml.foreign("h1", title());
    myHtml.start("p");
    myHtml.text(KTToolText::tr("Catalogue report, made on "));
    myHtml.start("time");
    myHtml.attribute("datetime", myHead.made.toString(Qt::ISODate));
    myHtml.text(myHead.made.toString(QStringLiteral("yyyy-MM-dd HH:mm 'UTC'")));
    myHtml.end();
    if (isCompared())
        myHtml.text(KTToolText::tr(", compared with %1").arg(olderTitle()));
    myHtml.end();
    if (!myHead.selection.isEmpty())
        myHtml.foreign("p",
                       KTToolText::tr("Only a part of the catalogue: %1")
                           .arg(myHead.selection.join(QStringLiteral("; "))),
                       "selection");
    writeNavigation();
    myHtml.end();
    myHtml.line();
}

void KTReportWriter::writeNavigation()
{
    const auto link = [this](const char *place, const QString &text) {
        myHtml.start("li");
        myHtml.start("a");
        myHtml.attribute("href", QLatin1Char('#') + QLatin1String(place));
        myHtml.text(text);
        myHtml.end();
        myHtml.end();
    };
    myHtml.start("nav");
    myHtml.attribute("aria-label", KTToolText::tr("Contents"));
    myHtml.start("ul");
    link("summary", KTToolText::tr("Summary"));
    if (myContents->removed() > 0)
        link("removed", KTToolText::tr("Removed articles"));
    if (myContents->findingsOutside() > 0)
        link("outside", KTToolText::tr("Findings outside of articles"));
    link("articles", KTToolText::tr("Articles"));
    myHtml.end();
    myHtml.end();
    myHtml.line();
}

void KTReportWriter::writeCount(int count, const QString &label, const char *style)
{
    myHtml.start("li", style);
    myHtml.element("b", QString::number(count));
    myHtml.text(QStringLiteral(" "));
    myHtml.element("span", label);
    myHtml.end();
}

void KTReportWriter::writeSummary()
{
    beginSection(&myHtml, "summary", KTToolText::tr("Summary"));
    writeCounts();
    writeClasses();
    if (isCompared())
        writeDifferences();
    endSection(&myHtml);
}

void KTReportWriter::writeCounts()
{
    const KTFindingCounts &findings = myContents->findings();
    myHtml.start("ul", "counts");
    writeCount(myContents->articles(),
               myContents->articles() == 1 ? KTToolText::tr("article") : KTToolText::tr("articles"));
    writeCount(findings.errors, findings.errors == 1 ? KTToolText::tr("error") : KTToolText::tr("errors"),
               findings.errors > 0 ? "error" : nullptr);
    writeCount(findings.warnings,
               findings.warnings == 1 ? KTToolText::tr("warning") : KTToolText::tr("warnings"),
               findings.warnings > 0 ? "warning" : nullptr);
    writeCount(findings.hints, findings.hints == 1 ? KTToolText::tr("hint") : KTToolText::tr("hints"),
               findings.hints > 0 ? "hint" : nullptr);
    if (isCompared()) {
        writeCount(myContents->added(), KTToolText::tr("new"));
        writeCount(myContents->changed(), KTToolText::tr("changed"));
        // In a part of the catalogue nobody looked for them.
        if (myHead.selection.isEmpty())
            writeCount(myContents->removed(), KTToolText::tr("removed"));
    }
    myHtml.end();
    myHtml.line();
}

void KTReportWriter::writeClasses()
{
    if (myContents->classes().isEmpty())
        return;
    myHtml.element("h3", KTToolText::tr("By product class"));
    myHtml.start("ul", "classes");
    for (auto entry = myContents->classes().cbegin(); entry != myContents->classes().cend(); ++entry) {
        myHtml.start("li");
        myHtml.start("a");
        myHtml.attribute("href", QStringLiteral("#class=%1").arg(entry.key()));
        myHtml.text(entry->name);
        myHtml.end();
        myHtml.text(QStringLiteral(" "));
        myHtml.element("code", entry.key());
        myHtml.text(QStringLiteral(" "));
        myHtml.element("b", QString::number(entry->articles));
        myHtml.end();
    }
    myHtml.end();
    myHtml.line();
}

void KTReportWriter::writeDifferences()
{
    const KTDifferenceCounts &counts = myContents->differences();
    myHtml.element("h3", KTToolText::tr("Changes since %1").arg(olderTitle()));
    if (counts.total() == 0)
        myHtml.element("p", KTToolText::tr("Nothing has changed."));
    myHtml.start("ul", "findings");
    for (const KTDifferenceKind kind : KINDS_BY_GRAVITY) {
        if (counts.of(kind) == 0)
            continue;
        myHtml.start("li");
        myHtml.element("b", QString::number(counts.of(kind)));
        myHtml.text(QStringLiteral(" "));
        KTReportText::writeTag(&myHtml, KTReportText::kind(kind), KTReportText::style(kind));
        myHtml.text(QLatin1Char(' ') + KTDifferenceRules::summary(kind));
        myHtml.end();
    }
    myHtml.end();
    myHtml.line();
}

void KTReportWriter::writeOutside()
{
    if (myContents->removed() > 0) {
        beginSection(&myHtml, "removed", KTToolText::tr("Removed articles"));
        myHtml.start("ul", "plain");
        myHtml.line();
        myIsComplete = myContents->deliverRemoved(myDevice) && myIsComplete;
        myHtml.end();
        endSection(&myHtml);
    }
    if (myContents->findingsOutside() > 0) {
        beginSection(&myHtml, "outside", KTToolText::tr("Findings outside of articles"));
        myHtml.start("ul", "findings");
        myHtml.line();
        myIsComplete = myContents->deliverFindings(myDevice) && myIsComplete;
        myHtml.end();
        endSection(&myHtml);
    }
}

void KTReportWriter::writeFilter()
{
    const auto box = [this](const char *id, const QString &label) {
        myHtml.start("label");
        myHtml.empty("input");
        myHtml.attribute("type", QStringLiteral("checkbox"));
        myHtml.attribute("id", QString::fromLatin1(id));
        myHtml.text(QLatin1Char(' ') + label);
        myHtml.end();
    };
    // Without a script there is nothing to filter with.
    myHtml.start("form");
    myHtml.attribute("id", QStringLiteral("filter"));
    myHtml.attribute("role", QStringLiteral("search"));
    myHtml.attribute("hidden", QStringLiteral("hidden"));
    const auto label = [this](const char *id, const QString &text) {
        myHtml.start("span", "field");
        myHtml.start("label");
        myHtml.attribute("for", QString::fromLatin1(id));
        myHtml.text(text);
        myHtml.end();
        myHtml.text(QStringLiteral(" "));
    };
    label("query", KTToolText::tr("Search"));
    myHtml.empty("input");
    myHtml.attribute("type", QStringLiteral("search"));
    myHtml.attribute("id", QStringLiteral("query"));
    myHtml.attribute("autocomplete", QStringLiteral("off"));
    myHtml.attribute("placeholder", KTToolText::tr("Number, name, class …"));
    myHtml.end();
    label("class", KTToolText::tr("Class"));
    myHtml.start("select");
    myHtml.attribute("id", QStringLiteral("class"));
    myHtml.start("option");
    myHtml.attribute("value", QString());
    myHtml.text(KTToolText::tr("All classes"));
    myHtml.end();
    for (auto entry = myContents->classes().cbegin(); entry != myContents->classes().cend(); ++entry) {
        myHtml.start("option");
        myHtml.attribute("value", entry.key());
        myHtml.text(
            QStringLiteral("%1, %2 (%3)").arg(entry->name, entry.key(), QString::number(entry->articles)));
        myHtml.end();
    }
    myHtml.end();
    myHtml.end();
    box("found", KTToolText::tr("Only with findings"));
    if (isCompared())
        box("changed", KTToolText::tr("Only changed"));
    myHtml.start("button");
    myHtml.attribute("type", QStringLiteral("reset"));
    myHtml.text(KTToolText::tr("Show all"));
    myHtml.end();
    myHtml.end();
    myHtml.line();
    myHtml.start("p", "status");
    myHtml.attribute("id", QStringLiteral("status"));
    myHtml.attribute("role", QStringLiteral("status"));
    myHtml.attribute("data-text", KTToolText::tr("%1 of %2 articles"));
    myHtml.text(KTToolText::tr("%1 of %2 articles").arg(myContents->articles()).arg(myContents->articles()));
    myHtml.end();
    myHtml.line();
}

void KTReportWriter::writeColumn(const QString &label, const char *key)
{
    myHtml.start("th");
    myHtml.attribute("scope", QStringLiteral("col"));
    myHtml.attribute("aria-sort", QStringLiteral("none"));
    myHtml.start("button");
    myHtml.attribute("type", QStringLiteral("button"));
    myHtml.attribute("data-sort", QString::fromLatin1(key));
    myHtml.text(label);
    myHtml.end();
    myHtml.end();
}

void KTReportWriter::writeTable()
{
    myHtml.start("table");
    myHtml.attribute("id", QStringLiteral("table"));
    myHtml.element("caption",
                   KTToolText::tr("All articles; the buttons in the heads of the columns sort them."));
    myHtml.start("thead");
    myHtml.start("tr");
    writeColumn(KTToolText::tr("Number"), "number");
    writeColumn(KTToolText::tr("Name"), "name");
    writeColumn(KTToolText::tr("Class"), "class");
    writeColumn(KTToolText::tr("Format"), "format");
    writeColumn(KTToolText::tr("Pages"), "pages");
    writeColumn(KTToolText::tr("Price class"), "price");
    writeColumn(KTToolText::tr("Shipping group"), "shipping");
    writeColumn(KTToolText::tr("Findings"), "findings");
    if (isCompared())
        writeColumn(KTToolText::tr("Changes"), "changes");
    myHtml.end();
    myHtml.end();
    myHtml.line();
    myHtml.start("tbody");
    myHtml.line();
    myIsComplete = myContents->deliverRows(myDevice) && myIsComplete;
    myHtml.end();
    myHtml.end();
    myHtml.line();
}

void KTReportWriter::write(const KTReportArticle &article)
{
    KTArticleSection(&myHtml, article, footer()).write(olderTitle());
}

bool KTReportWriter::end()
{
    myHtml.end();
    myHtml.line();
    myHtml.end();
    myHtml.line();
    myHtml.end();
    myHtml.line();
    return myIsComplete && !myHtml.hasError();
}
