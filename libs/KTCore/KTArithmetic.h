#pragma once

#include <QtGlobal>

#include <cmath>
#include <limits>

/** Narrowing that is defined for every number: catalogue numbers come from outside and may be anything. */
namespace KTArithmetic {

/** The nearest int. */
constexpr int saturated(qint64 value)
{
    constexpr qint64 LOWEST = std::numeric_limits<int>::min();
    constexpr qint64 HIGHEST = std::numeric_limits<int>::max();
    return static_cast<int>(value < LOWEST ? LOWEST : value > HIGHEST ? HIGHEST : value);
}

/** The number without its fraction, saturating at the ends of int; not-a-number gives 0. */
inline int truncated(double value)
{
    // Both ends of int are exact doubles, so comparing with them decides before the cast.
    if (std::isnan(value))
        return 0;
    if (value <= std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    if (value >= std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    return static_cast<int>(value);
}

/** The nearest whole number, halves upwards as qRound() has them; otherwise like truncated(). */
inline int rounded(double value)
{
    // qRound() is undefined at both ends already.
    const bool isInside = value > std::numeric_limits<int>::min() && value < std::numeric_limits<int>::max();
    return isInside ? qRound(value) : truncated(value);
}

} // namespace KTArithmetic
