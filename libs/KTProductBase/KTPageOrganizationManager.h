#pragma once

#include "KTPageCountOrganization.h"
#include "KTProductType.h"

#include <KTSingleton.h>

#include <QHash>
#include <QObject>
#include <QRecursiveMutex>

#include <memory>

class KTPageOrganizationCalculator;

/**
 * The page counts of every product type, asked of the application's calculator once and then remembered.
 *
 * Safe from any thread, except as noted. A calculator must be set before the first question. A manager lives
 * in the application's thread, whichever thread asks for it first; one that is made before there is an
 * application object stays in the thread that makes it.
 */
class KTPRODUCTBASE_EXPORT KTPageOrganizationManager : public QObject,
                                                       public KTSingleton<KTPageOrganizationManager>
{
    Q_OBJECT
public:
    KTPageOrganizationManager();
    ~KTPageOrganizationManager() override;

    /** Takes ownership, deletes the previous calculator if it is another one, and clears the cache. */
    void setCalculator(KTPageOrganizationCalculator *calculator);
    /** Stays valid for the life of the process, even when the cache is cleared. */
    KTPageCountOrganization *organization(const KTProductType &type);
    /** A copy of organization(). The misspelling is part of the API. */
    KTPageCountOrganization pageCountOrganzation(const KTProductType &type);
    /**
     * Always asks the calculator; the caller owns the result. Takes no lock, so no other thread may set a
     * calculator meanwhile.
     */
    [[nodiscard]] KTPageCountOrganization *createPageOrganization(const KTProductType &type) const;

public Q_SLOTS:
    /** Forgets the organisations, so that each is calculated again; their pointers stay valid. */
    void clearCache();

private:
    QRecursiveMutex myMutex;
    QHash<KTProductType, KTPageCountOrganization *> myCache;
    std::unique_ptr<KTPageOrganizationCalculator> myCalculator;
};
