#pragma once

#include "ktproductbase_export.h"

#include <QExplicitlySharedDataPointer>
#include <QMetaType>
#include <QPoint>
#include <QSize>

class KTMarginsImpl;
class QDebug;

/**
 * The margins around a page, in layout units.
 *
 * Margins never change, and copies share them. Moved-from ones may only be assigned to or destroyed.
 */
class KTPRODUCTBASE_EXPORT KTMargins
{
public:
    /** All 0. */
    KTMargins();
    /** Top and bottom the one, left and right the other. */
    KTMargins(int vertical, int horizontal);
    KTMargins(int top, int bottom, int left, int right);
    KTMargins(const KTMargins &other);
    KTMargins(KTMargins &&other) noexcept;
    KTMargins &operator=(const KTMargins &other);
    KTMargins &operator=(KTMargins &&other) noexcept;
    ~KTMargins();

    int top() const;
    int bottom() const;
    int left() const;
    int right() const;
    /** Left and right together, top and bottom together; sums saturate. */
    QSize totalMarginWH() const;
    QPoint topLeft() const;
    QPoint bottomRight() const;
    /** True when all four are 0. */
    bool allNull() const;

    bool operator==(const KTMargins &other) const;
    bool operator!=(const KTMargins &other) const { return !(*this == other); }

private:
    QExplicitlySharedDataPointer<KTMarginsImpl> myImpl;
};

Q_DECLARE_TYPEINFO(KTMargins, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTMargins)
/** Writes "KTMargins: top: %1; bottom: %2; left: %3; right: %4" as one string. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTMargins &margins);
