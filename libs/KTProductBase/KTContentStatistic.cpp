#include "KTContentStatistic.h"

#include <QDebug>

namespace {
constexpr int AMOUNT_WITH_FIRST_FLAG = 1;
constexpr int AMOUNT_WITH_SECOND_FLAG = 10;
} // namespace

KTContentStatistic::KTContentStatistic(int countGeoMapAreas, int countVideoAreas,
                                       const QMap<KTPriceClass, int> &boughtAdditionalContent)
    : myCountGeoMapAreas(countGeoMapAreas)
    , myCountVideoAreas(countVideoAreas)
    , myBoughtAdditionalContent(boughtAdditionalContent)
{
}

KTContentStatistic::~KTContentStatistic() = default;

void KTContentStatistic::adaptFromOrToVario(bool first, bool second)
{
    if (first == second)
        return;
    // Set, not scaled: going back does not restore what was bought before.
    for (int &amount : myBoughtAdditionalContent)
        amount = second ? AMOUNT_WITH_SECOND_FLAG : AMOUNT_WITH_FIRST_FLAG;
}

QDebug operator<<(QDebug stream, const KTContentStatistic &statistic)
{
    return stream << "KTContentStatistic:" << statistic.countGeoMapAreas() << statistic.countVideoAreas()
                  << statistic.boughtAdditionalContent();
}
