#pragma once

#include "KTCatalogueArticle.h"
#include "KTDifference.h"
#include "ktcatalogue_export.h"

#include <QHash>
#include <QVector>

/**
 * Where the parts that the library makes an article of stand in its file. What the library skips, such as an
 * option without a value, is not counted.
 */
class KTArticlePlaces
{
public:
    /** The article must outlive the places. */
    explicit KTArticlePlaces(const KTCatalogueArticle &article)
        : myArticle(article)
    {
    }

    /** The attribute where it is written, else the start tag; the article's own where the part is not there.
     */
    [[nodiscard]] KTCATALOGUE_EXPORT KTFileRange range(const KTArticlePart &part);

private:
    template <typename Predicate>
    [[nodiscard]] QVector<int> children(int parent, KTElementKind kind, Predicate isTaken) const;
    /** The first child of the kind; -1 where there is none. */
    [[nodiscard]] int firstChild(int parent, KTElementKind kind) const;
    /** The elements that the library makes parts of the kind of. */
    [[nodiscard]] QVector<int> parts(KTElementKind kind) const;
    [[nodiscard]] int attributeIndex(int element, KTAttributeId attribute) const;

    const KTCatalogueArticle &myArticle;
    /** What was looked for already. */
    QHash<int, QVector<int>> myParts;
};
