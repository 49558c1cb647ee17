#pragma once

#include "KTRange.h"
#include "ktcore_export.h"

#include <QMetaType>

class QDebug;

/** A range of ints. What leaves the range of int saturates. */
class KTCORE_EXPORT KTIntRange : public KTRange<int>
{
public:
    /** [0, 0]. */
    KTIntRange() = default;
    KTIntRange(int min, int max);
    KTIntRange(const KTIntRange &other) = default;
    KTIntRange(KTIntRange &&other) noexcept = default;
    KTIntRange &operator=(const KTIntRange &other) = default;
    KTIntRange &operator=(KTIntRange &&other) noexcept = default;
    ~KTIntRange() override;

    /** Both ends moved by the distance. */
    [[nodiscard]] KTIntRange shifted(qint64 distance) const;
    /** Both ends multiplied by the factor; a negative one turns a range into an invalid one. */
    [[nodiscard]] KTIntRange stretched(int factor) const;
};

Q_DECLARE_METATYPE(KTIntRange)
/** Writes "KTIntRange: %1 - %2" as one string. */
KTCORE_EXPORT QDebug operator<<(QDebug stream, const KTIntRange &range);
