#pragma once

#include "KTHtmlWriter.h"
#include "KTReportArticle.h"

#include <KTCheckRules.h>
#include <KTDifferenceRules.h>

#include <QString>

/** Words that several parts of a report say, and their names in its style sheet. */
namespace KTReportText {

/** "Error", "Warning" or "Hint". */
QString severity(KTSeverity severity);
/** "1 error", "2 errors". */
QString counted(KTSeverity severity, int count);
const char *style(KTSeverity severity);
/** "Breaking", "Charge" and so on. */
QString kind(KTDifferenceKind kind);
const char *style(KTDifferenceKind kind);

/** The classes of the article as the catalogue's keyword and as a name for people. */
QString classKeyword(const KTArticle &article);
QString className(const KTArticle &article);
/** "26 to 154, step 2", or a single page count. */
QString pageCounts(const KTArticle &article);
/** A length in layout units of 0.1 mm: "210 mm". */
QString millimeters(double layoutUnits);

/** Writes a label, as of something preselected. */
void writeTag(KTHtmlWriter *html, const QString &text, const char *style = nullptr);
/** Writes a finding as an entry of a list. */
void writeFinding(KTHtmlWriter *html, const KTFinding &finding);
/** Writes a list of findings; nothing without any. */
void writeFindings(KTHtmlWriter *html, const QVector<const KTFinding *> &findings);

} // namespace KTReportText
