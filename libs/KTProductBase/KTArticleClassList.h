#pragma once

#include "KTArticleClass.h"

#include <QList>
#include <QMetaType>

#include <utility>

/** Article classes in the order they were added. */
class KTPRODUCTBASE_EXPORT KTArticleClassList : public QList<KTArticleClass>
{
public:
    using QList<KTArticleClass>::QList;
    KTArticleClassList() = default;
    KTArticleClassList(const QList<KTArticleClass> &articleClasses)
        : QList<KTArticleClass>(articleClasses)
    {
    }
    KTArticleClassList(QList<KTArticleClass> &&articleClasses) noexcept
        : QList<KTArticleClass>(std::move(articleClasses))
    {
    }

    /** One element for each part between commas, empty parts skipped; an unknown part gives no class. */
    [[nodiscard]] static KTArticleClassList parseArticleClasses(const QString &text);

    /** The elements that share a kind with the given class, in their order. */
    [[nodiscard]] KTArticleClassList filter(const KTArticleClass &articleClass) const;
};

Q_DECLARE_METATYPE(KTArticleClassList)
