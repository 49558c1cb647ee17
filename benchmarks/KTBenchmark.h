#pragma once

#include <QString>

#include <benchmark/benchmark.h>

#include <cstddef>
#include <functional>
#include <string>

/**
 * The operations that are measured, each named "work/contender".
 *
 * One and the same loop is timed by Google Benchmark, with the heap allocations of one operation as a
 * counter, and run a given number of times to have its instructions counted.
 */
namespace KTBenchmark {

/** Does the operation as many times as it is told. */
using Loop = std::function<void(std::size_t count)>;

/** What is taken as the time of an operation: what the calling thread has worked, or what has passed. */
enum Clock { CpuTime, RealTime };

/** Adds an operation; its loop is asked for whole multiples of `batch` operations. */
void add(const std::string &name, std::size_t batch, Loop loop, Clock clock = CpuTime);

/** Adds an operation on one input; the inputs, which must stay, take turns. */
template <typename INPUTS, typename OPERATION>
void addOverInputs(const std::string &name, const INPUTS &inputs, OPERATION operation)
{
    const auto batch = static_cast<std::size_t>(inputs.size());
    add(name, batch, [&inputs, batch, operation](std::size_t count) {
        for (std::size_t round = count / batch; round > 0; --round) {
            for (const auto &input : inputs)
                benchmark::DoNotOptimize(operation(input));
        }
    });
}

/** Ends the program when the contenders give different answers: only equal work is compared. */
void require(bool agreed, const QString &what);

void addKeywords();
void addOptions();
void addSingleton();
void addCatalogue();
void addProductTypes();
void addRegistry();
void addLayout();

} // namespace KTBenchmark
