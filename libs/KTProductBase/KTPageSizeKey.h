#pragma once

#include "KTPageContext.h"

#include <KTQtTypes.h>

/** What a page size is looked up by: a kind of page, on whichever side it lies, and the page count. */
class KTPRODUCTBASE_EXPORT KTPageSizeKey
{
public:
    /** No page type, page count 0: not valid. */
    KTPageSizeKey();
    /** The context gets every alignment, so that it matches any. */
    KTPageSizeKey(const KTPageType &pageType, int pageCount);
    KTPageSizeKey(const KTPageSizeKey &other) = default;
    KTPageSizeKey(KTPageSizeKey &&other) noexcept = default;
    KTPageSizeKey &operator=(const KTPageSizeKey &other) = default;
    KTPageSizeKey &operator=(KTPageSizeKey &&other) noexcept = default;
    virtual ~KTPageSizeKey();

    KTPageContext pageContext() const { return myPageContext; }
    KTPageType pageType() const { return myPageContext.pageType(); }
    KTPageAlignment alignment() const { return myPageContext.alignment(); }
    int pageCount() const { return myPageCount; }
    /** True when the context is and the page count is not negative. */
    bool isValid() const;

    /** "%1 %2", the context's dump() and the page count. */
    [[nodiscard]] QString dump() const;

    bool operator==(const KTPageSizeKey &other) const;
    bool operator!=(const KTPageSizeKey &other) const { return !(*this == other); }
    /**
     * By context, but false for equal page counts; so it is neither an order of all keys nor does it agree
     * with equality. Kept because existing tables of page sizes depend on it.
     */
    bool operator<(const KTPageSizeKey &other) const;

private:
    KTPageContext myPageContext;
    int myPageCount;
};

Q_DECLARE_TYPEINFO(KTPageSizeKey, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTPageSizeKey)

/** Hashes what equality compares. */
inline KTHashValue qHash(const KTPageSizeKey &key, KTHashValue seed = 0)
{
    return qHash(key.pageCount(), qHash(key.pageContext(), seed));
}

/** Writes dump() without quotes, and a space. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTPageSizeKey &key);
