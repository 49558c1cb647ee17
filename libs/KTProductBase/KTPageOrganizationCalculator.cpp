#include "KTPageOrganizationCalculator.h"

KTPageOrganizationCalculator::~KTPageOrganizationCalculator() = default;
