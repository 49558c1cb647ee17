#pragma once

#include "KTPageAlignment.h"
#include "KTPageType.h"

#include <KTQtTypes.h>

/** Which kind of page is meant, and where it lies on the spread; both may be unions of flags. */
class KTPRODUCTBASE_EXPORT KTPageContext
{
public:
    /** Neither page type nor alignment: not valid. */
    KTPageContext() = default;
    KTPageContext(const KTPageType &pageType, const KTPageAlignment &alignment);
    KTPageContext(const KTPageContext &other) = default;
    KTPageContext(KTPageContext &&other) noexcept = default;
    KTPageContext &operator=(const KTPageContext &other) = default;
    KTPageContext &operator=(KTPageContext &&other) noexcept = default;
    virtual ~KTPageContext();

    KTPageType pageType() const { return myPageType; }
    KTPageAlignment alignment() const { return myAlignment; }
    /** True when neither value is 0. */
    bool isValid() const;
    /** True when there is a common page type and a common alignment. */
    bool matchesWith(const KTPageContext &other) const;
    /** True when there is a common page type. */
    bool hasPageType(const KTPageType &pageType) const;
    /** True when there is a common alignment. */
    bool hasAlignment(const KTPageAlignment &alignment) const;

    /** "%1 %2", the keywords of page type and alignment. */
    [[nodiscard]] QString dump() const;

    bool operator==(const KTPageContext &other) const;
    bool operator!=(const KTPageContext &other) const { return !(*this == other); }
    /** By the value of the page type, then by that of the alignment. */
    bool operator<(const KTPageContext &other) const;

private:
    KTPageType myPageType;
    KTPageAlignment myAlignment;
};

Q_DECLARE_TYPEINFO(KTPageContext, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTPageContext)

/** Hashes what equality compares. */
inline KTHashValue qHash(const KTPageContext &context, KTHashValue seed = 0)
{
    return qHash(context.pageType(), qHash(context.alignment(), seed));
}

/** Writes dump() without quotes. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTPageContext &context);
