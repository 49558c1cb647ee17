#pragma once

#include "KTPageCountOrganization.h"
#include "KTProductType.h"

/** How the application finds the page counts of a product type. */
class KTPRODUCTBASE_EXPORT KTPageOrganizationCalculator
{
public:
    virtual ~KTPageOrganizationCalculator();

    /**
     * Called by KTPageOrganizationManager under its lock: it may ask the manager again, but only from the
     * same thread and for other product types.
     */
    virtual KTPageCountOrganization calculate(const KTProductType &type) const = 0;

protected:
    KTPageOrganizationCalculator() = default;

private:
    Q_DISABLE_COPY(KTPageOrganizationCalculator)
};
