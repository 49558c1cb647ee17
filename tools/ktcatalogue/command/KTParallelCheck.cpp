#include "KTParallelCheck.h"

#include "KTFileName.h"

#include <KTArithmetic.h>
#include <KTCatalogueChecker.h>

#include <QFile>

#include <algorithm>
#include <system_error>
#include <utility>

KTParallelCheck::KTParallelCheck(const QStringList &names, const KTRuleSeverities &severities, int threads)
    : myNames(names)
    , mySeverities(severities)
    , myResults(static_cast<std::size_t>(names.size()))
{
    try {
        for (int i = 0; i < std::min(threads, KTArithmetic::sizeOf(names)); ++i)
            myThreads.emplace_back([this] { work(); });
    } catch (const std::system_error &) {
        // The machine has no further thread to give; without any, take() does the work.
    }
}

KTParallelCheck::~KTParallelCheck()
{
    {
        const std::lock_guard<std::mutex> lock(myMutex);
        myNext = myResults.size();
    }
    for (std::thread &thread : myThreads)
        thread.join();
}

KTParallelCheck::Result KTParallelCheck::take(int index)
{
    if (myThreads.empty())
        work();
    std::optional<Result> &result = myResults.at(static_cast<std::size_t>(index));
    std::unique_lock<std::mutex> lock(myMutex);
    myIsDone.wait(lock, [&result] { return result.has_value(); });
    return *std::exchange(result, std::nullopt);
}

bool KTParallelCheck::checkFile(KTCatalogueChecker *checker, const QString &name)
{
    QFile file;
    const QString error = KTFileName::open(&file, name);
    if (error.isEmpty())
        return checker->check(name, &file);
    checker->reportUnreadable(name, error);
    return false;
}

void KTParallelCheck::work()
{
    QVector<KTFinding> findings;
    KTCatalogueChecker checker([&findings](const KTFinding &finding) { findings.append(finding); },
                               mySeverities);
    std::unique_lock<std::mutex> lock(myMutex);
    while (myNext < myResults.size()) {
        const std::size_t index = myNext++;
        lock.unlock();
        const bool isReadable = checkFile(&checker, myNames.at(static_cast<int>(index)));
        lock.lock();
        myResults[index] = Result {std::exchange(findings, {}), isReadable};
        myIsDone.notify_all();
    }
}
