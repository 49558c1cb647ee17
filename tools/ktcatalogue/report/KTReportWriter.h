#pragma once

#include "KTHtmlWriter.h"
#include "KTReportArticle.h"
#include "KTReportContents.h"

#include <QDateTime>
#include <QStringList>

class QIODevice;

/** What a report says of itself. */
struct KTReportHead
{
    QString catalogueName;
    /** Empty without one. */
    QString olderName;
    /** In UTC. */
    QDateTime made;
    /** Which articles of the catalogue are in it, where that is not all; one condition an entry. */
    QStringList selection;
};

/**
 * Writes a report as one page of HTML that needs nothing else: head, table and articles, one after the other,
 * so memory does not grow with them.
 *
 * The page's policy lets a browser run its own script and style alone, so not even a fault of the writer
 * could make a catalogue's texts act.
 */
class KTReportWriter
{
public:
    /** Writes to the open device; it and the contents, which are complete, must outlive the writer. */
    KTReportWriter(QIODevice *device, const KTReportHead &head, KTReportContents *contents);

    /** Writes what stands before the articles. */
    void begin();
    void write(const KTReportArticle &article);
    /** False when anything could not be written. */
    [[nodiscard]] bool end();

private:
    bool isCompared() const { return !myHead.olderName.isEmpty(); }
    QString title() const;
    QString olderTitle() const;
    /** What stands on each printed article. */
    QString footer() const;

    void writeDocumentHead();
    void writeTop();
    void writeNavigation();
    void writeSummary();
    void writeCount(int count, const QString &label, const char *style = nullptr);
    void writeCounts();
    void writeClasses();
    void writeDifferences();
    void writeOutside();
    void writeFilter();
    void writeTable();
    void writeColumn(const QString &label, const char *key);

    QIODevice *myDevice;
    KTHtmlWriter myHtml;
    KTReportHead myHead;
    KTReportContents *myContents;
    QString myScript;
    bool myIsComplete = true;
};
