#include "KTProductChecker.h"

KTProductChecker::~KTProductChecker() = default;
