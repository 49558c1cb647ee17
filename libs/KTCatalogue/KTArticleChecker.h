#pragma once

#include "KTAttributeChecker.h"
#include "KTBarcodeChecker.h"
#include "KTElementCursor.h"
#include "KTOptionChecker.h"
#include "KTPageCountChecker.h"

#include <array>

/** Finds what is wrong inside of single articles. Not part of the library's interface. */
class KTArticleChecker
{
public:
    /** The findings, without file, in the order of their places. */
    QVector<KTFinding> check(const KTCatalogueArticle &article);
    /** The same for the bare start tag of the root element or of another of its children. */
    QVector<KTFinding> checkOther(const KTCatalogueArticle &tag, bool isRoot);
    /** The number of the article checked last, as the library reads it. */
    int articleId() const { return myArticleId; }

private:
    KTElementKind enter(int index);
    void checkElement(KTElementKind kind);
    void reportUnread(KTElementKind parent);
    void checkArticle();
    void checkPriceClass();

    KTElementCursor myCursor;
    int myArticleId = 0;
    /** The kinds of the elements up to the present one. */
    QVector<KTElementKind> myKinds;
    std::array<bool, static_cast<std::size_t>(KTElementKind::COUNT)> myHasElement {};

    KTAttributeChecker myAttributeChecker;
    KTPageCountChecker myPageCountChecker;
    KTOptionChecker myOptionChecker;
    KTBarcodeChecker myBarcodeChecker;
};
