#pragma once

#include "KTCatalogueArticle.h"
#include "KTDifference.h"

#include <QVector>

/**
 * Where the parts that the library makes an article of stand in its file. What the library skips, such as an
 * option without a value, is not counted. Not part of the library's interface.
 */
class KTArticlePlaces
{
public:
    /** The article must outlive the places. */
    explicit KTArticlePlaces(const KTCatalogueArticle &article);

    /** The attribute where it is written, else the start tag; the article's own where the part is not there.
     */
    [[nodiscard]] KTFileRange range(const KTArticlePart &part) const;

private:
    template <typename Predicate>
    [[nodiscard]] QVector<int> children(int parent, KTElementKind kind, Predicate isTaken) const;
    [[nodiscard]] QVector<int> children(int parent, KTElementKind kind) const;
    [[nodiscard]] int attributeIndex(int element, KTAttributeId attribute) const;

    const KTCatalogueArticle &myArticle;
    QVector<int> myPages;
    QVector<int> myBarcodes;
    QVector<int> myOptions;
    QVector<int> mySpines;
};
