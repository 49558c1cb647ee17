#pragma once

#include <QtGlobal>

#include <type_traits>

/** What the tests of the classification classes share. */
namespace KTTest {

/** The enumeration of a classification class. */
template <typename CLASS>
using Enum = std::decay_t<decltype(CLASS().value())>;

/** The union of the single bits for which the predicate holds. */
template <typename CLASS, typename Predicate>
qint64 bitsWhere(Predicate predicate)
{
    qint64 bits = 0;
    for (int i = 0; i < int(sizeof(Enum<CLASS>)) * 8 - 1; ++i) {
        const qint64 bit = qint64(1) << i;
        if (predicate(CLASS(static_cast<Enum<CLASS>>(bit))))
            bits |= bit;
    }
    return bits;
}

} // namespace KTTest
