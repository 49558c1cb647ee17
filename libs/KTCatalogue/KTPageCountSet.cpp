#include "KTPageCountSet.h"

#include "KTCatalogueText.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

namespace {

/** The number whose product with the other one leaves 1 when divided by the modulus; they share no factor. */
qint64 inverse(qint64 number, qint64 modulus)
{
    qint64 remainder = modulus;
    qint64 next = number % modulus;
    qint64 factor = 0;
    qint64 nextFactor = 1;
    while (next != 0) {
        const qint64 quotient = remainder / next;
        remainder = std::exchange(next, remainder - quotient * next);
        factor = std::exchange(nextFactor, factor - quotient * nextFactor);
    }
    return factor < 0 ? factor + modulus : factor;
}

} // namespace

KTPageCountSet::KTPageCountSet(const KTPageCountOrganization &pageCounts)
    // Without an increment every count of the range is taken.
    : KTPageCountSet(pageCounts.minPages(), pageCounts.maxPages(),
                     std::max<qint64>(1, std::abs(qint64(pageCounts.pageIncrement()))))
{
}

KTPageCountSet::KTPageCountSet(qint64 first, qint64 last, qint64 step)
    : myFirst(first)
    , myStep(step)
    , mySize(last < first ? 0 : (last - first) / step + 1)
{
}

bool KTPageCountSet::contains(qint64 count) const
{
    return !isEmpty() && count >= myFirst && count <= last() && (count - myFirst) % myStep == 0;
}

KTPageCountSet KTPageCountSet::intersected(const KTPageCountSet &other) const
{
    const KTPageCountSet nothing(0, -1, 1);
    if (isEmpty() || other.isEmpty())
        return nothing;
    const qint64 divisor = std::gcd(myStep, other.myStep);
    const qint64 distance = other.myFirst - myFirst;
    if (distance % divisor != 0)
        return nothing;
    // The steps have 31 bits, and so does each factor of a product.
    const qint64 modulus = other.myStep / divisor;
    const qint64 wanted = ((distance / divisor) % modulus + modulus) % modulus;
    const qint64 steps = modulus == 1 ? 0 : wanted * inverse(myStep / divisor, modulus) % modulus;
    const qint64 common = myStep * modulus;
    qint64 first = myFirst + steps * myStep;
    if (first < other.myFirst)
        first += (other.myFirst - first + common - 1) / common * common;
    return KTPageCountSet(first, std::min(last(), other.last()), common);
}

std::optional<int> KTPageCountSet::firstNotIn(const KTPageCountSet &other) const
{
    const KTPageCountSet common = intersected(other);
    if (common.mySize == mySize)
        return std::nullopt;
    if (common.isEmpty() || common.myFirst != myFirst)
        return at(0);
    // Either every second count or so is missing, or those behind a place.
    return common.mySize > 1 && common.myStep == myStep ? static_cast<int>(common.last() + myStep) : at(1);
}

QString KTPageCountSet::toText() const
{
    if (isEmpty())
        return KTCatalogueText::tr("none");
    if (mySize == 1)
        return QString::number(myFirst);
    const QString range = KTCatalogueText::tr("%1 to %2").arg(myFirst).arg(last());
    return myStep == 1 ? range : KTCatalogueText::tr("%1 step %2").arg(range).arg(myStep);
}
