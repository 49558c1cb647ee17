#pragma once

#include "KTElementCursor.h"

#include <KTPageCountOrganization.h>

/** Finds page counts that cannot be met, and spines that do not fit them. Not part of the library's
 * interface. */
class KTPageCountChecker
{
public:
    /** Reads the page counts of the article at the cursor. */
    void begin(const KTElementCursor &article);
    void checkArticle(KTElementCursor *cursor) const;
    void checkSpine(KTElementCursor *cursor) const;

    /** As the article's kind is read. */
    const KTPageCountOrganization &pageCounts() const { return myPageCounts; }

private:
    void checkRange(KTElementCursor *cursor) const;

    KTPageCountOrganization myPageCounts;
    /** What the spine counts packages with. */
    KTPageCountOrganization mySpinePageCounts;
};
