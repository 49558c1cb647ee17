#pragma once

#include <QAtomicPointer>
#include <QReadWriteLock>
#include <QWriteLocker>

/**
 * The one instance of T in the process, across all its libraries: created on first use, never destroyed.
 *
 * T derives from KTSingleton<T>, is default-constructible and may override setupInstance().
 */
template <typename T>
class Q_DECL_EXPORT KTSingleton
{
public:
    /**
     * Safe from any thread, and without a lock once the instance is there. A T whose constructor throws
     * leaves no instance, and the next call tries again. Constructor and setupInstance() run under the lock
     * and must not ask for the instance themselves.
     */
    static T *instance()
    {
        static InstancePointer myInstance = Q_BASIC_ATOMIC_INITIALIZER(nullptr);
        T *const instance = myInstance.loadAcquire();
        return instance ? instance : createInstance(&myInstance);
    }

    /** Called once, on the new instance, before anybody else can see it. */
    virtual void setupInstance() { }

protected:
    KTSingleton() = default;
    virtual ~KTSingleton() = default;

private:
    Q_DISABLE_COPY(KTSingleton)

    using InstancePointer = QBasicAtomicPointer<T>;

    static T *createInstance(InstancePointer *sharedInstance);
};

/** Apart from its caller, so that every later question is one load and one comparison. */
template <typename T>
T *KTSingleton<T>::createInstance(InstancePointer *sharedInstance)
{
    // Not destroyed, like the instance: destructors at the end of the process may still ask.
    static auto *const lock = new QReadWriteLock;
    static T *created = nullptr;
    const QWriteLocker locker(lock);
    if (!created) {
        created = new T;
        created->setupInstance();
    }
    // Published only when it is set up: whoever sees it uses it without the lock.
    sharedInstance->storeRelease(created);
    return created;
}
