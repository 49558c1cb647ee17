#include "KTSpotColor.h"

#include <KTKeywordRow.h>

#include <QDebug>

namespace {

constexpr KTKeywordRow<KTSpotColorEnum> KEYWORDS[] = {
    {"gloss",     KTSpotColorGloss    },
    {"gold",      KTSpotColorGold     },
    {"silver",    KTSpotColorSilver   },
    {"rosegold",  KTSpotColorRoseGold },
    {"silverink", KTSpotColorSilverInk},
};

} // namespace

KTSpotColor::KTSpotColor()
    : KTSpotColor(static_cast<KTSpotColorEnum>(0))
{
}

KTSpotColor::KTSpotColor(KTSpotColorEnum value)
    : KTEnumWrapper(value)
{
}

KTSpotColor::KTSpotColor(const QString &text)
    : KTSpotColor()
{
    setValue(text);
}

void KTSpotColor::fillTable(KTEnumToStringTable<KTSpotColorEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
}

QDebug operator<<(QDebug stream, const KTSpotColor &color)
{
    return stream << "KTSpotColor:" << color.debugText();
}
