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

/** The number of entries or characters of a Qt container, whose sizes are wider than int with Qt 6. */
template <typename CONTAINER>
constexpr int sizeOf(const CONTAINER &container)
{
    return saturated(container.size());
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

/**
 * The nearest whole number, halves upwards, also below zero: -0.5 gives 0 and -1.5 gives -1. Otherwise like
 * truncated().
 *
 * That is what qRound() of Qt 5 gives; it is undefined at both ends of int, and that of Qt 6 rounds halves
 * below zero away from it.
 */
inline int rounded(double value)
{
    return truncated(std::floor(value + 0.5));
}

} // namespace KTArithmetic
