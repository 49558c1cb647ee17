#include "KTDistanceUnit.h"

#include <KTKeywordRow.h>

#include <QDebug>
#include <QMessageLogger>

namespace {

constexpr KTKeywordRow<KTDistanceUnitEnum> KEYWORDS[] = {
    {"layoutunit", KTDistanceUnitLayout    },
    {"mm",         KTDistanceUnitMillimeter},
    {"inch",       KTDistanceUnitInch      },
    {"cm",         KTDistanceUnitCentimeter},
    {"pt",         KTDistanceUnitPoint     },
};

struct FactorRow
{
    KTDistanceUnitEnum unit;
    /** Layout units in one of this unit. */
    double factor;
};

constexpr FactorRow FACTORS[] = {
    {KTDistanceUnitLayout,     1.0         },
    {KTDistanceUnitMillimeter, 10.0        },
    {KTDistanceUnitInch,       254.0       },
    {KTDistanceUnitCentimeter, 100.0       },
    {KTDistanceUnitPoint,      254.0 / 72.0},
};

double factor(KTDistanceUnitEnum unit)
{
    for (const FactorRow &row : FACTORS) {
        if (row.unit == unit)
            return row.factor;
    }
    QMessageLogger("libs/KTCore/KTDistanceUnit", __LINE__, Q_FUNC_INFO, "default").warning()
        << "distance not supported!" << unit;
    return 1.0;
}

} // namespace

KTDistanceUnit::KTDistanceUnit()
    : KTDistanceUnit(static_cast<KTDistanceUnitEnum>(0))
{
}

KTDistanceUnit::KTDistanceUnit(KTDistanceUnitEnum value)
    : KTEnumWrapper(value)
{
}

KTDistanceUnit::KTDistanceUnit(const QString &text)
    : KTDistanceUnit()
{
    setValue(text);
}

double KTDistanceUnit::units2Pixels(double units) const
{
    return units * factor(value());
}

double KTDistanceUnit::pixels2Units(double pixels) const
{
    return pixels / factor(value());
}

void KTDistanceUnit::fillTable(KTEnumToStringTable<KTDistanceUnitEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
}

QDebug operator<<(QDebug stream, const KTDistanceUnit &unit)
{
    return stream << "KTDistanceUnit:" << unit.debugText();
}
