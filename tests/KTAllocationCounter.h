#pragma once

/** Counts the heap allocations of this thread from its construction on. */
class KTAllocationCounter
{
public:
    KTAllocationCounter();

    /** False under a sanitizer, whose own allocator must stay in place: then nothing is counted. */
    static bool isAvailable();

    long allocations() const;

private:
    long myStart;
};
