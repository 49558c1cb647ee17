#include "KTProductArrangement.h"

#include <KTKeywordRow.h>

#include <QDebug>

namespace {

constexpr KTKeywordRow<KTProductArrangementEnum> KEYWORDS[] = {
    {"trivial",   KTProductArrangementTrivial  },
    {"gift",      KTProductArrangementGift     },
    {"card",      KTProductArrangementCard     },
    {"photobook", KTProductArrangementPhotobook},
    {"calendar",  KTProductArrangementCalendar },
};

} // namespace

KTProductArrangement::KTProductArrangement()
    : KTProductArrangement(static_cast<KTProductArrangementEnum>(0))
{
}

KTProductArrangement::KTProductArrangement(KTProductArrangementEnum value)
    : KTEnumWrapper(value)
{
}

KTProductArrangement::KTProductArrangement(const QString &text)
    : KTProductArrangement()
{
    setValue(text);
}

void KTProductArrangement::fillTable(KTEnumToStringTable<KTProductArrangementEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
}

QDebug operator<<(QDebug stream, const KTProductArrangement &arrangement)
{
    return stream << "KTProductArrangement:" << arrangement.debugText();
}
