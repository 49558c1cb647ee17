#pragma once

#include <cstddef>

/** Counts the heap allocations of this thread from its construction on. */
class KTAllocationCounter
{
public:
    KTAllocationCounter();

    /** False under a sanitizer, whose own allocator must stay in place: then nothing is counted. */
    static bool isAvailable();

    long allocations() const;
    /** What the allocations asked for together. */
    std::size_t bytes() const;

private:
    long myStart;
    std::size_t myStartBytes;
};
