#include "KTArticleClassList.h"

#include <QStringList>

#include <algorithm>
#include <iterator>

KTArticleClassList KTArticleClassList::parseArticleClasses(const QString &text)
{
    KTArticleClassList articleClasses;
    for (const QString &part : text.split(u',', Qt::SkipEmptyParts))
        articleClasses.append(KTArticleClass(part));
    return articleClasses;
}

KTArticleClassList KTArticleClassList::filter(const KTArticleClass &articleClass) const
{
    KTArticleClassList articleClasses;
    std::copy_if(begin(), end(), std::back_inserter(articleClasses),
                 [&](const KTArticleClass &element) { return element.matches(articleClass); });
    return articleClasses;
}
