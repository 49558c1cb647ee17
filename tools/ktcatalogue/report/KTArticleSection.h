#pragma once

#include "KTArticleFindings.h"
#include "KTReportArticle.h"

#include <KTArticleDescription.h>

#include <QStringList>

class KTHtmlWriter;

/** Writes what a report says about one article. */
class KTArticleSection
{
public:
    /** All of them must outlive the section; the footer is what each printed article has. */
    KTArticleSection(KTHtmlWriter *html, const KTReportArticle &article, const QString &footer);

    /** With the name of the older catalogue; an empty one means that there is none. */
    void write(const QString &olderName);

private:
    using Topic = KTArticleFindings::Topic;
    using Row = KTArticleDescription::Row;

    const QVector<Row> &rows(const char *section) const;
    /** Begins a part with a heading, and with the findings about it that stand beside nothing smaller. */
    void begin(const QString &title, const char *style = nullptr);
    void end();
    void writeFact(const QString &label, const QString &keyword, const QString &name,
                   const KTArticleFindings::List &findings, const QStringList &notes = {});
    void writeCode(const QString &label, const QString &text);

    void writeHead();
    void writeDifferences(const QString &olderName);
    void writeDrawings();
    void writeBarcodes();
    void writeFacts();
    void writeOptions();
    void writeOption(const KTConfiguredArticleVariant &option, const KTArticleFindings::List &findings);
    void writePageCounts();
    void writeChoice();

    KTHtmlWriter *myHtml;
    const KTReportArticle &myArticle;
    const QString myFooter;
    KTArticleFindings myFindings;
    KTArticleDescription myDescription;
};
