#pragma once

#include <QReadLocker>
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
     * Safe from any thread. A T whose constructor throws leaves no instance, and the next call tries again.
     * Constructor and setupInstance() run under the lock and must not ask for the instance themselves.
     */
    static T *instance()
    {
        // Not destroyed, like the instance: destructors at the end of the process may still ask.
        static auto *const lock = new QReadWriteLock;
        static T *myInstance = nullptr;
        {
            const QReadLocker locker(lock);
            if (myInstance)
                return myInstance;
        }
        const QWriteLocker locker(lock);
        if (!myInstance) {
            myInstance = new T;
            myInstance->setupInstance();
        }
        return myInstance;
    }

    /** Called once, on the new instance, before anybody else can see it. */
    virtual void setupInstance() { }

protected:
    KTSingleton() = default;
    virtual ~KTSingleton() = default;

private:
    Q_DISABLE_COPY(KTSingleton)
};
