#include "KTPaperType.h"

#include <KTFactRow.h>
#include <KTKeywordRow.h>

#include <QDebug>

#include <iterator>

namespace {

constexpr KTKeywordRow<KTPaperTypeEnum> KEYWORDS[] = {
    {"unbekanntes Papier",        KTPaperTypeUnknown             },
    {"indigo",                    KTPaperTypeIndigo              },
    {"digital_printing_standard", KTPaperTypeIndigo              },
    {"indigo-glossy",             KTPaperTypeIndigoGlossy        },
    {"glossy",                    KTPaperTypeIndigoGlossy        },
    {"digital_printing_glossy",   KTPaperTypeIndigoGlossy        },
    {"fotopaper",                 KTPaperTypeFotopaper           },
    {"photopaper_matt",           KTPaperTypeFotopaper           },
    {"fotopaper-glossy",          KTPaperTypeFotopaperGlossy     },
    {"photopaper_glossy",         KTPaperTypeFotopaperGlossy     },
    {"premium",                   KTPaperTypePremium             },
    {"digital_printing_premium",  KTPaperTypePremium             },
    {"premium-matt",              KTPaperTypePremiumMatt         },
    {"digital_printing_matt",     KTPaperTypePremiumMatt         },
    {"fotopaper-premium-matt",    KTPaperTypeFotopaperPremiumMatt},
    {"photopaper_classy_matt",    KTPaperTypeFotopaperPremiumMatt},
    {"digital_printing_recycled", KTPaperTypeRecycled            },
};

constexpr KTTextRow<KTPaperTypeEnum> NAMES[] = {
    {KTPaperTypeIndigo,               QT_TRANSLATE_NOOP("KTPaperType", "Digitaldruck Matt")                },
    {KTPaperTypeIndigoGlossy,         QT_TRANSLATE_NOOP("KTPaperType", "Digitaldruck Hochglanz")           },
    {KTPaperTypeFotopaper,            QT_TRANSLATE_NOOP("KTPaperType", "Fotopapier Matt")                  },
    {KTPaperTypeFotopaperGlossy,      QT_TRANSLATE_NOOP("KTPaperType", "Fotopapier Glänzend")             },
    {KTPaperTypePremium,              QT_TRANSLATE_NOOP("KTPaperType", "Premiumpapier")                    },
    {KTPaperTypePremiumMatt,          QT_TRANSLATE_NOOP("KTPaperType", "Digitaldruck Premium-Matt")        },
    {KTPaperTypeFotopaperPremiumMatt, QT_TRANSLATE_NOOP("KTPaperType", "Fotopapier Premium-Matt")          },
    {KTPaperTypeRecycled,             QT_TRANSLATE_NOOP("KTPaperType", "Digitaldruck Matt (100% recycelt)")},
};
static_assert(KTKeywordRows::bits(KEYWORDS) == (1 << std::size(NAMES)) - 1,
              "every paper has a keyword and a name");

} // namespace

KTPaperType::KTPaperType()
    : KTPaperType(KTPaperTypeUnknown)
{
}

KTPaperType::KTPaperType(KTPaperTypeEnum value)
    : KTEnumWrapper(value)
{
}

KTPaperType::KTPaperType(const QString &text)
    : KTPaperType()
{
    setValue(text);
}

KTPaperType KTPaperType::createFromHumanReadable(const QString &name)
{
    return paperTypeNames()->keyOf(QCoreApplication::translate("KTPaperType", name.toUtf8().constData()));
}

KTLookUpTable<KTPaperType, QString> *KTPaperType::initPaperTypeNames()
{
    auto *const table = KTFactRows::createTextTable<KTPaperType>("KTPaperType", NAMES);
    table->defaultValue = QCoreApplication::translate("KTPaperType", "unbekannter Papiertyp");
    return table;
}

KTLookUpTable<KTPaperType, QString> *KTPaperType::paperTypeNames()
{
    static auto *const table = initPaperTypeNames();
    return table;
}

QString KTPaperType::humanReadableName() const
{
    return paperTypeNames()->valueOf(*this);
}

void KTPaperType::fillTable(KTEnumToStringTable<KTPaperTypeEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
    table->defaultValue = KTPaperTypeIndigo;
}

QDebug operator<<(QDebug stream, const KTPaperType &paperType)
{
    return stream << "KTPaperType:" << paperType.debugText();
}
