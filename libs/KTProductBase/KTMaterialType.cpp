#include "KTMaterialType.h"

#include <KTKeywordRow.h>

#include <QDebug>

namespace {

constexpr KTKeywordRow<KTMaterialTypeEnum> KEYWORDS[] = {
    {"notebook",       KTMaterialTypeNotebook     },
    {"picture_box",    KTMaterialTypePictureBox   },
    {"card_playing",   KTMaterialTypeCardPlaying  },
    {"deco_print",     KTMaterialTypeDecoPrint    },
    {"retro_print",    KTMaterialTypeRetroPrint   },
    {"picture_bundle", KTMaterialTypePictureBundle},
};

} // namespace

KTMaterialType::KTMaterialType()
    : KTMaterialType(static_cast<KTMaterialTypeEnum>(0))
{
}

KTMaterialType::KTMaterialType(KTMaterialTypeEnum value)
    : KTEnumWrapper(value)
{
}

KTMaterialType::KTMaterialType(const QString &text)
    : KTMaterialType()
{
    setValue(text);
}

void KTMaterialType::fillTable(KTEnumToStringTable<KTMaterialTypeEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
}

QDebug operator<<(QDebug stream, const KTMaterialType &materialType)
{
    return stream << "KTMaterialType:" << materialType.debugText();
}
