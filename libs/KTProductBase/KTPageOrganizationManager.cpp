#include "KTPageOrganizationManager.h"

#include "KTPageOrganizationCalculator.h"

#include <QCoreApplication>
#include <QMutexLocker>

#include <deque>

namespace {

/** A copy that is never deleted: callers keep pointers to it when the cache has forgotten it. */
KTPageCountOrganization *keepForever(const KTPageCountOrganization &organization)
{
    static QBasicMutex theMutex;
    // Referenced from here, the organisations are no leaks.
    static auto *const myOrganizations = new std::deque<KTPageCountOrganization>;
    const QMutexLocker locker(&theMutex);
    return &myOrganizations->emplace_back(organization);
}

} // namespace

KTPageOrganizationManager::KTPageOrganizationManager()
{
    // In a thread that ends, queued calls of the slot would be lost.
    if (const QCoreApplication *const application = QCoreApplication::instance())
        moveToThread(application->thread());
}

KTPageOrganizationManager::~KTPageOrganizationManager() = default;

void KTPageOrganizationManager::setCalculator(KTPageOrganizationCalculator *calculator)
{
    const QMutexLocker locker(&myMutex);
    if (calculator != myCalculator.get())
        myCalculator.reset(calculator);
    clearCache();
}

KTPageCountOrganization *KTPageOrganizationManager::organization(const KTProductType &type)
{
    const QMutexLocker locker(&myMutex);
    if (KTPageCountOrganization *const known = myCache.value(type))
        return known;
    const KTPageCountOrganization calculated = myCalculator->calculate(type);
    // The calculator may have asked for this type itself; its answer is in use already.
    KTPageCountOrganization *&cached = myCache[type];
    if (!cached)
        cached = keepForever(calculated);
    return cached;
}

KTPageCountOrganization KTPageOrganizationManager::pageCountOrganzation(const KTProductType &type)
{
    const QMutexLocker locker(&myMutex);
    return *organization(type);
}

KTPageCountOrganization *KTPageOrganizationManager::createPageOrganization(const KTProductType &type) const
{
    return new KTPageCountOrganization(myCalculator->calculate(type));
}

void KTPageOrganizationManager::clearCache()
{
    const QMutexLocker locker(&myMutex);
    myCache.clear();
}
