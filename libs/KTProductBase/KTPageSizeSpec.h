#pragma once

#include "KTMargins.h"

#include <QMetaType>
#include <QPoint>
#include <QPointF>
#include <QSize>

/**
 * The size of a page in layout units: what may be printed on, the bleed around it, and the slipcase.
 *
 * Moved-from ones may only be assigned to or destroyed.
 */
class KTPRODUCTBASE_EXPORT KTPageSizeSpec
{
public:
    /** No size: usable size and slipcase cover are (-1, -1), without bleed. */
    KTPageSizeSpec() = default;
    /** The slipcase cover has no size yet. */
    KTPageSizeSpec(const QSize &usableSize, const KTMargins &bleedMargins);

    /** The printable page without bleed. */
    QSize usableSize() const { return myUsableSize; }
    void setUsableSize(const QSize &size) { myUsableSize = size; }
    KTMargins bleedMargins() const { return myBleedMargins; }
    /** The printable part of the slipcase cover; (-1, -1) until it is set. */
    QSize usableSlipcaseCoverSize() const { return myUsableSlipcaseCoverSize; }
    void setUsableSlipcaseCoverSize(const QSize &size) { myUsableSlipcaseCoverSize = size; }
    /** The usable size with its bleed margins; sums saturate. */
    QSize totalSize() const;
    /** From the corner of the total area to that of the usable one. */
    QPoint topLeftOffsetOfUsablePrintArea() const;
    /** What centres the slipcase cover on the page, vertically only; (0, 0) without a slipcase cover. */
    QPointF slipcaseTranslationPoint() const;

    /** Compares usable size and bleed margins: the slipcase does not make it another page size. */
    bool operator==(const KTPageSizeSpec &other) const;
    bool operator!=(const KTPageSizeSpec &other) const { return !(*this == other); }

private:
    QSize myUsableSize;
    KTMargins myBleedMargins;
    QSize myUsableSlipcaseCoverSize;
};

Q_DECLARE_TYPEINFO(KTPageSizeSpec, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTPageSizeSpec)
/** Writes "{ usable=", the usable size, ", 4Scaling" and the slipcase cover size; no brace closes it. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTPageSizeSpec &spec);
