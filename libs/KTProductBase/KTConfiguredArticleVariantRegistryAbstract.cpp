#include "KTConfiguredArticleVariantRegistryAbstract.h"

KTConfiguredArticleVariantRegistryAbstract::~KTConfiguredArticleVariantRegistryAbstract() = default;
