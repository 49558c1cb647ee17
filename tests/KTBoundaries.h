#pragma once

#include <climits>
#include <cmath>
#include <limits>

/** Numbers at which arithmetic goes wrong, and a model that is wide enough for all of them. */
namespace KTTest {

using Wide = long double;
static_assert(std::numeric_limits<Wide>::digits >= 64, "the model must hold products of ints exactly");

constexpr int INTS[] = {INT_MIN, INT_MIN + 1, -1, 0, 1, 2, INT_MAX - 1, INT_MAX};
constexpr double DOUBLES[]
    = {NAN, INFINITY, -INFINITY,     1e300,         -1e300,  1e-300,        -1e-300,      -0.5,
       1.5, INT_MAX,  INT_MAX + 1.0, INT_MAX - 0.5, INT_MIN, INT_MIN - 1.0, INT_MIN + 0.5};

/** The number without its fraction, as an int if there is one, else the nearest; 0 for none at all. */
inline int toInt(Wide number)
{
    const Wide whole = std::isnan(number) ? 0 : std::trunc(number);
    return static_cast<int>(std::fmin(std::fmax(whole, Wide(INT_MIN)), Wide(INT_MAX)));
}

} // namespace KTTest
