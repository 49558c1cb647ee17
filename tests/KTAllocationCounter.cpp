#include "KTAllocationCounter.h"

#include <QtGlobal>

#include <cstddef>
#include <cstdlib>

// Qt allocates with malloc(), so it is malloc() that is counted; the sanitizers' own is not replaced.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define KT_COUNTS_ALLOCATIONS 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define KT_COUNTS_ALLOCATIONS 0
#endif
#endif
#ifndef KT_COUNTS_ALLOCATIONS
#define KT_COUNTS_ALLOCATIONS 1
#endif

namespace {
thread_local long allocationCount = 0;
thread_local std::size_t byteCount = 0;
} // namespace

#if KT_COUNTS_ALLOCATIONS
static void count(std::size_t bytes)
{
    ++allocationCount;
    byteCount += bytes;
}

extern "C" {
void *__libc_malloc(std::size_t size);
void *__libc_calloc(std::size_t count, std::size_t size);
void *__libc_realloc(void *pointer, std::size_t size);

Q_DECL_EXPORT void *malloc(std::size_t size)
{
    count(size);
    return __libc_malloc(size);
}

Q_DECL_EXPORT void *calloc(std::size_t number, std::size_t size)
{
    count(number * size);
    return __libc_calloc(number, size);
}

Q_DECL_EXPORT void *realloc(void *pointer, std::size_t size)
{
    count(size);
    return __libc_realloc(pointer, size);
}
}
#endif

KTAllocationCounter::KTAllocationCounter()
    : myStart(allocationCount)
    , myStartBytes(byteCount)
{
}

bool KTAllocationCounter::isAvailable()
{
    return KT_COUNTS_ALLOCATIONS;
}

long KTAllocationCounter::allocations() const
{
    return allocationCount - myStart;
}

std::size_t KTAllocationCounter::bytes() const
{
    return byteCount - myStartBytes;
}
