#pragma once

#include "KTTestSupport.h"

#include <type_traits>

/** What the tests of the classification classes share. */
namespace KTTest {

/** The enumeration of a classification class. */
template <typename CLASS>
using Enum = std::decay_t<decltype(CLASS().value())>;

/** The classification with these bits. */
template <typename CLASS>
CLASS withBits(qint64 bits)
{
    return CLASS(static_cast<Enum<CLASS>>(bits));
}

/** The template "<t/>" with what the classification with these bits adds to it. */
template <typename CLASS>
QString templateOf(qint64 bits)
{
    QDomElement element = KTTest::element(u"<t/>"_s);
    withBits<CLASS>(bits).toTemplates2Format(element);
    return xml(element);
}

/** The union of the single bits for which the predicate holds. */
template <typename CLASS, typename Predicate>
qint64 bitsWhere(Predicate predicate)
{
    qint64 bits = 0;
    for (int i = 0; i < int(sizeof(Enum<CLASS>)) * 8 - 1; ++i) {
        const qint64 bit = qint64(1) << i;
        if (predicate(withBits<CLASS>(bit)))
            bits |= bit;
    }
    return bits;
}

} // namespace KTTest
