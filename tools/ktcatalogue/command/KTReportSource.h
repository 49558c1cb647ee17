#pragma once

#include "KTComparedCatalogue.h"
#include "KTExitCode.h"
#include "KTReportArticle.h"
#include "KTRereadableFile.h"

#include <KTCatalogueComparison.h>

#include <QDataStream>
#include <QTemporaryFile>

#include <functional>
#include <memory>
#include <optional>

/**
 * The articles of a catalogue with what is found in each and what has changed, one at a time and as often as
 * they are asked for. Findings wait in a temporary file, so memory stays flat.
 */
class KTReportSource
{
public:
    /** What is done with each article, and with each finding that belongs to none. */
    struct Receiver
    {
        /** Says by the article alone whether it is wanted; the rest is not looked at for others. */
        std::function<bool(const KTArticle &article)> isWanted;
        std::function<void(const KTReportArticle &article)> article;
        /** Empty where nobody asks for them. */
        std::function<void(const KTFinding &finding)> outside;
    };

    /** "-" names standard input; an empty name of the older one means that there is none. */
    KTReportSource(const QString &name, const QString &olderName);
    ~KTReportSource();

    /** Checks the catalogue and looks at the older one; an exit code means that one was refused, reported. */
    [[nodiscard]] std::optional<KTExitCode> prepare();
    /** In the order of the file; an exit code means that it is no longer what it was, which is reported. */
    [[nodiscard]] std::optional<KTExitCode> forEachArticle(const Receiver &receiver);
    /** Calls the function with what the older catalogue alone has. */
    [[nodiscard]] std::optional<KTExitCode>
    forEachRemoved(const std::function<void(const KTDifference &difference)> &function);

private:
    Q_DISABLE_COPY(KTReportSource)

    KTExitCode fail(const QString &reason) const;
    [[nodiscard]] std::optional<KTExitCode> check();
    void keep(const KTFinding &finding);
    /** The next one that was kept; nothing when there is none. */
    std::optional<KTFinding> nextFinding();
    [[nodiscard]] std::optional<KTExitCode> compare(KTReportArticle *article);

    QString myName;
    QString myOlderName;
    KTRereadableFile myFile;
    QTemporaryFile myFindings;
    QDataStream myFindingStream;
    int myFindingCount = 0;
    int myFindingsLeft = 0;
    int myArticleCount = 0;
    std::unique_ptr<KTComparedCatalogue> myOlder;
    /** Reads from the same file, with a place of its own. */
    std::unique_ptr<QIODevice> myNewerDevice;
    std::unique_ptr<KTCatalogueIndex> myNewer;
    std::unique_ptr<KTCatalogueComparison> myComparison;
};
