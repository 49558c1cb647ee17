#pragma once

#include <KTFinding.h>

#include <QStringList>
#include <QVector>

#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

class KTCatalogueChecker;

/** Checks several files at once and hands out what it finds in the order of the files. */
class KTParallelCheck
{
public:
    struct Result
    {
        QVector<KTFinding> findings;
        bool isReadable;
    };

    KTParallelCheck(const QStringList &names, const KTRuleSeverities &severities, int threads);
    /** Leaves out the files that nobody has begun with. */
    ~KTParallelCheck();

    /** Waits for the file at the index, each of which can be taken once. */
    Result take(int index);

    /** Checks one file with the checker; false when it is no catalogue, which is reported. */
    static bool checkFile(KTCatalogueChecker *checker, const QString &name);

private:
    Q_DISABLE_COPY(KTParallelCheck)

    void work();

    const QStringList myNames;
    const KTRuleSeverities mySeverities;
    std::mutex myMutex;
    std::condition_variable myIsDone;
    /** The next file to begin with. */
    std::size_t myNext = 0;
    std::vector<std::optional<Result>> myResults;
    std::vector<std::thread> myThreads;
};
