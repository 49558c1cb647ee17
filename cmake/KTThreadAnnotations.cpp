// The system's Qt is built without the thread sanitizer, so its locks order nothing in the sanitizer's eyes.
// The linker leads our calls of them through these wrappers, which tell it what each lock and unlock means.
#include <QMutex>
#include <QReadWriteLock>

#include <sanitizer/tsan_interface.h>

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C" {
void __real__ZN6QMutex4lockEv(QMutex *mutex);
void __real__ZN6QMutex6unlockEv(QMutex *mutex);
bool __real__ZN6QMutex7tryLockEi(QMutex *mutex, int timeout);
void __real__ZN14QReadWriteLock11lockForReadEv(QReadWriteLock *lock);
void __real__ZN14QReadWriteLock12lockForWriteEv(QReadWriteLock *lock);
void __real__ZN14QReadWriteLock6unlockEv(QReadWriteLock *lock);

void __wrap__ZN6QMutex4lockEv(QMutex *mutex)
{
    __real__ZN6QMutex4lockEv(mutex);
    __tsan_acquire(mutex);
}

void __wrap__ZN6QMutex6unlockEv(QMutex *mutex)
{
    __tsan_release(mutex);
    __real__ZN6QMutex6unlockEv(mutex);
}

bool __wrap__ZN6QMutex7tryLockEi(QMutex *mutex, int timeout)
{
    const bool isLocked = __real__ZN6QMutex7tryLockEi(mutex, timeout);
    if (isLocked)
        __tsan_acquire(mutex);
    return isLocked;
}

void __wrap__ZN14QReadWriteLock11lockForReadEv(QReadWriteLock *lock)
{
    __real__ZN14QReadWriteLock11lockForReadEv(lock);
    __tsan_acquire(lock);
}

void __wrap__ZN14QReadWriteLock12lockForWriteEv(QReadWriteLock *lock)
{
    __real__ZN14QReadWriteLock12lockForWriteEv(lock);
    __tsan_acquire(lock);
}

void __wrap__ZN14QReadWriteLock6unlockEv(QReadWriteLock *lock)
{
    __tsan_release(lock);
    __real__ZN14QReadWriteLock6unlockEv(lock);
}
}
// NOLINTEND(bugprone-reserved-identifier)
