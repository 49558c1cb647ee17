#pragma once

#include "KTDifferenceWriter.h"
#include "KTFindingWriter.h"
#include "KTHtmlWriter.h"
#include "KTReportArticle.h"
#include "KTSpool.h"

#include <QMap>

/**
 * What stands before the articles of a report, but is known only when all of them were seen: how many there
 * are of what, and a row of the table for each. The rows wait in spools, so memory stays flat.
 */
class KTReportContents
{
public:
    struct Class
    {
        QString name;
        int articles = 0;
    };

    KTReportContents();

    void add(const KTReportArticle &article, bool isCompared);
    /** Adds a finding that belongs to no article. */
    void addFinding(const KTFinding &finding);
    /** Adds an article that only the older catalogue has. */
    void addRemoved(const KTDifference &difference);

    int articles() const { return myArticles; }
    int articlesWithFindings() const { return myArticlesWithFindings; }
    /** In all, also outside of articles. */
    const KTFindingCounts &findings() const { return myFindings; }
    int findingsOutside() const { return myFindingsOutside; }
    /** By their keywords. */
    const QMap<QString, Class> &classes() const { return myClasses; }
    const KTDifferenceCounts &differences() const { return myDifferences; }
    int changed() const { return myChanged; }
    int added() const { return myAdded; }
    int removed() const { return myRemoved; }

    /** Hands the rows of the table on; false when they could not be kept or written. */
    bool deliverRows(QIODevice *device) { return deliver(&myRows, device); }
    /** The same with the entries of the two lists. */
    bool deliverFindings(QIODevice *device) { return deliver(&myOutside, device); }
    bool deliverRemoved(QIODevice *device) { return deliver(&myRemovedRows, device); }

private:
    /** A spool with somebody who writes into it. */
    struct Part
    {
        Part()
            : device(&spool)
            , html(&device)
        {
        }
        KTSpool spool;
        KTSpoolDevice device;
        KTHtmlWriter html;
    };

    static bool deliver(Part *part, QIODevice *device);
    static void writeRow(KTHtmlWriter *html, const KTReportArticle &article, bool isCompared);

    int myArticles = 0;
    int myArticlesWithFindings = 0;
    int myFindingsOutside = 0;
    int myChanged = 0;
    int myAdded = 0;
    int myRemoved = 0;
    KTFindingCounts myFindings;
    KTDifferenceCounts myDifferences;
    QMap<QString, Class> myClasses;
    Part myRows;
    Part myOutside;
    Part myRemovedRows;
};
