#include "KTIntRange.h"

#include "KTArithmetic.h"

#include <QDebug>

using KTArithmetic::saturated;

KTIntRange::KTIntRange(int min, int max)
    : KTRange(min, max)
{
}

KTIntRange::~KTIntRange() = default;

KTIntRange KTIntRange::shifted(qint64 distance) const
{
    // A longer way than from one end of int to the other only saturates.
    constexpr qint64 FARTHEST = Q_INT64_C(1) << 32;
    const qint64 way = qBound(-FARTHEST, distance, FARTHEST);
    return KTIntRange(saturated(min() + way), saturated(max() + way));
}

KTIntRange KTIntRange::stretched(int factor) const
{
    return KTIntRange(saturated(qint64(min()) * factor), saturated(qint64(max()) * factor));
}

QDebug operator<<(QDebug stream, const KTIntRange &range)
{
    return stream << QStringLiteral("KTIntRange: %1 - %2").arg(range.min()).arg(range.max());
}
