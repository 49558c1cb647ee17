#include "KTArticleIdList.h"

KTArticleIdList::~KTArticleIdList() = default;
