#pragma once

#include "ktproductbase_export.h"

#include <QMetaType>

class QDebug;

/** The bleed of a page, the same on opposite sides, in layout units. */
class KTPRODUCTBASE_EXPORT KTBleedMargin
{
public:
    /** No bleed. */
    KTBleedMargin() = default;
    KTBleedMargin(int horizontal, int vertical)
        : myHorizontal(horizontal)
        , myVertical(vertical)
    {
    }

    int horizontal() const { return myHorizontal; }
    int vertical() const { return myVertical; }
    /** True when both are 0. */
    bool isNull() const { return myHorizontal == 0 && myVertical == 0; }

    bool operator==(const KTBleedMargin &other) const
    {
        return myHorizontal == other.myHorizontal && myVertical == other.myVertical;
    }
    bool operator!=(const KTBleedMargin &other) const { return !(*this == other); }

private:
    int myHorizontal = 0;
    int myVertical = 0;
};

Q_DECLARE_TYPEINFO(KTBleedMargin, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTBleedMargin)
/** Writes "KTBleedMargin: horizontal: %1; vertical: %2" as one string. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTBleedMargin &margin);
