#include "KTBenchmark.h"

#include <KTAllocationCounter.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <utility>

namespace {

struct Operation
{
    std::size_t batch;
    KTBenchmark::Loop loop;
};

std::map<std::string, Operation> &operations()
{
    static std::map<std::string, Operation> myOperations;
    return myOperations;
}

void measure(benchmark::State &state, const Operation &operation)
{
    const KTAllocationCounter counter;
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(operation.batch)))
        operation.loop(operation.batch);
    state.counters["allocations"]
        = benchmark::Counter(static_cast<double>(counter.allocations()), benchmark::Counter::kAvgIterations);
}

/** Does that many batches of one operation and nothing else; prints how many operations a batch is. */
int runBatches(const Operation &operation, const char *batches)
{
    operation.loop(operation.batch * std::strtoul(batches, nullptr, 10));
    std::printf("%zu\n", operation.batch);
    return EXIT_SUCCESS;
}

} // namespace

void KTBenchmark::add(const std::string &name, std::size_t batch, Loop loop, Clock clock)
{
    const Operation &operation = operations()[name] = {batch, std::move(loop)};
    auto *const registered = benchmark::RegisterBenchmark(
        name.c_str(), [&operation](benchmark::State &state) { measure(state, operation); });
    if (clock == RealTime)
        registered->UseRealTime();
}

void KTBenchmark::require(bool agreed, const QString &what)
{
    if (agreed)
        return;
    std::fprintf(stderr, "the contenders disagree about %s\n", qUtf8Printable(what));
    std::exit(EXIT_FAILURE);
}

int main(int argc, char **argv)
{
    const bool isCounted = argc == 4 && std::strcmp(argv[1], "--batches") == 0;
    for (const auto addGroup : {KTBenchmark::addKeywords, KTBenchmark::addOptions, KTBenchmark::addSingleton,
                                KTBenchmark::addCatalogue, KTBenchmark::addProductTypes,
                                KTBenchmark::addRegistry, KTBenchmark::addLayout}) {
        addGroup();
        // At once, because preparing the other groups would take a while under an instruction counter.
        if (isCounted && operations().count(argv[2]) > 0)
            return runBatches(operations().at(argv[2]), argv[3]);
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return EXIT_FAILURE;
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
