#include "KTPageType.h"

#include <KTFactRow.h>
#include <KTKeywordRow.h>
#include <KTSpotColor.h>

#include <QDebug>

namespace {

// "calendercoverfront" is read for the catalogues that misspell it.
constexpr KTKeywordRow<KTPageTypeEnum> KEYWORDS[] = {
    {"fullcover",            KTPageTypeFullcover           },
    {"cover",                KTPageTypeCover               },
    {"spine",                KTPageTypeSpine               },
    {"emptypage",            KTPageTypeEmptypage           },
    {"empty",                KTPageTypeEmptypage           },
    {"normalpage",           KTPageTypeNormalpage          },
    {"normal",               KTPageTypeNormalpage          },
    {"content",              KTPageTypeNormalpage          },
    {"cardback",             KTPageTypeCardback            },
    {"cardfront",            KTPageTypeCardfront           },
    {"normalcardback",       KTPageTypeNormalcardback      },
    {"normalcardfront",      KTPageTypeNormalcardfront     },
    {"normaladvdoorback",    KTPageTypeNormaladvdoorback   },
    {"duplexcard",           KTPageTypeDuplexcard          },
    {"foldedduplexcard",     KTPageTypeFoldedduplexcard    },
    {"artprints",            KTPageTypeArtprints           },
    {"advwithdoorbackprint", KTPageTypeAdvwithdoorbackprint},
    {"leather",              KTPageTypeLeather             },
    {"cromolinen",           KTPageTypeCromolinen          },
    {"calendarcoverback",    KTPageTypeCalendarcoverback   },
    {"calendarcoverfront",   KTPageTypeCalendarcoverfront  },
    {"calendercoverfront",   KTPageTypeCalendarcoverfront  },
    {"normalpages",          KTPageTypeNormalpages         },
    {"all",                  KTPageTypeAll                 },
    {"slipcasefrontcover",   KTPageTypeSlipcasefrontcover  },
    {"slipcasebackcover",    KTPageTypeSlipcasebackcover   },
    {"slipcasespine",        KTPageTypeSlipcasespine       },
    {"slipcaseemptyspine",   KTPageTypeSlipcaseemptyspine  },
    {"slipcasesequence",     KTPageTypeSlipcasesequence    },
    {"slipcasecover",        KTPageTypeSlipcasecover       },
    {"slipcasepages",        KTPageTypeSlipcasepages       },
};
static_assert((KTKeywordRows::bits(KEYWORDS) | KTPageTypeAdvdoorback) == 0x1fffff,
              "every kind has a keyword but the back of a door");

struct RuleRow
{
    KTPageTypeEnum value;
    int productionRendering;
    quint32 rendering;
    int orderPageNumber;
    int acceptTemplate;
    int acceptFoto;
};

constexpr KTPageTypeEnum NO_KIND = static_cast<KTPageTypeEnum>(0);

constexpr RuleRow RULES[] = {
    {NO_KIND,                      1, 0x1c00,     -1, 0, 3},
    {KTPageTypeSpine,              1, 0x80001e00, 0,  7, 3},
    {KTPageTypeNormalpage,         0, 0x1e00,     -1, 3, 3},
    {KTPageTypeNormalcardfront,    0, 0x1e00,     -1, 3, 3},
    {KTPageTypeNormalcardback,     0, 0x1e00,     -1, 3, 3},
    {KTPageTypeEmptypage,          2, 0,          -1, 0, 0},
    {KTPageTypeFullcover,          1, 0x80001e00, 0,  7, 3},
    {KTPageTypeCalendarcoverfront, 0, 0x1e00,     1,  3, 3},
    {KTPageTypeCalendarcoverback,  2, 0,          1,  0, 0},
    {KTPageTypeCromolinen,         1, 0,          0,  7, 0},
    {KTPageTypeLeather,            1, 0,          0,  7, 0},
    {KTPageTypeSlipcasespine,      0, 0x1c00,     2,  7, 3},
    {KTPageTypeSlipcaseemptyspine, 2, 0x1c00,     -1, 7, 3},
    {KTPageTypeSlipcasefrontcover, 0, 0x1c00,     2,  7, 3},
    {KTPageTypeSlipcasebackcover,  0, 0x1c00,     1,  7, 3},
};
constexpr RuleRow OTHER_RULES = {NO_KIND, 1, 0x1c00, -1, 7, 3};
// Of the rules only the order looks into a union.
constexpr RuleRow OTHER_COVER_RULES = {NO_KIND, 1, 0x1c00, 0, 7, 3};

constexpr auto COVER_PARTS = KTPageTypeSpine | KTPageTypeFullcover | KTPageTypeCromolinen | KTPageTypeLeather;
constexpr auto FABRICS = KTPageTypeCromolinen | KTPageTypeLeather;
constexpr auto FINISHED_PAGES = KTPageTypeFullcover | KTPageTypeCardfront;

const RuleRow &rules(const KTPageType &pageType)
{
    return KTFactRows::find(RULES, pageType.value(),
                            pageType.matches(COVER_PARTS) ? OTHER_COVER_RULES : OTHER_RULES);
}

} // namespace

KTPageType::KTPageType()
    : KTPageType(NO_KIND)
{
}

KTPageType::KTPageType(KTPageTypeEnum value)
    : KTEnumWrapper(value)
{
}

KTPageType::KTPageType(const QString &keywords)
    : KTPageType()
{
    setValue(keywords);
}

KTEnumWrapper<KTPageTypeEnum> &KTPageType::expandToKeyword(const QString &keywords)
{
    return *this |= decodeCSV(keywords);
}

bool KTPageType::isSpotColorAllowed(const QList<KTSpotColor> &colors) const
{
    const bool hasSilverInk = colors.contains(KTSpotColorSilverInk);
    if (matches(FABRICS))
        return !hasSilverInk && !colors.contains(KTSpotColorGloss);
    return hasSilverInk || matches(FINISHED_PAGES);
}

int KTPageType::productionRenderingRule() const
{
    return rules(*this).productionRendering;
}

quint32 KTPageType::renderingRule() const
{
    return rules(*this).rendering;
}

int KTPageType::explicitOrderPageNumber() const
{
    return rules(*this).orderPageNumber;
}

int KTPageType::acceptTemplateRule() const
{
    return rules(*this).acceptTemplate;
}

int KTPageType::acceptFotoRule() const
{
    return rules(*this).acceptFoto;
}

void KTPageType::fillTable(KTEnumToStringTable<KTPageTypeEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
}

QDebug operator<<(QDebug stream, const KTPageType &pageType)
{
    return stream << "KTPageType:" << pageType.debugText();
}
