#pragma once

#include "ktcore_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>

#include <QMetaType>

class QDebug;

/** Units of length; the layout unit, in which the application computes, is 0.1 mm. */
enum KTCORE_EXPORT KTDistanceUnitEnum : qint32 {
    KTDistanceUnitLayout = 1,
    KTDistanceUnitMillimeter = 2,
    KTDistanceUnitInch = 4,
    KTDistanceUnitCentimeter = 8,
    KTDistanceUnitPoint = 16,
};
KT_DECLARE_FLAG_OPERATORS(KTDistanceUnitEnum)

/** The unit of a length in the catalogue, written "mm", "inch", "cm", "pt" or "layoutunit". */
class KTCORE_EXPORT KTDistanceUnit : public KTEnumWrapper<KTDistanceUnitEnum>
{
public:
    /** No unit: value 0. */
    KTDistanceUnit();
    KTDistanceUnit(KTDistanceUnitEnum value);
    /** Reads a unit text; an empty or unknown one gives no unit. */
    KTDistanceUnit(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTDistanceUnit(T) = delete;

    /**
     * The length in layout units of so many of this unit. Without exactly one unit the number comes back
     * unchanged, with a warning.
     */
    double units2Pixels(double units) const;
    /** The reverse of units2Pixels(), with the same treatment of an unknown unit. */
    double pixels2Units(double pixels) const;

    void fillTable(KTEnumToStringTable<KTDistanceUnitEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTDistanceUnit)
KTCORE_EXPORT QDebug operator<<(QDebug stream, const KTDistanceUnit &unit);
