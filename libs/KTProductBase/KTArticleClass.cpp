#include "KTArticleClass.h"

#include "KTShippingGroupId.h"

#include <KTKeywordRow.h>
#include <KTXMLBuilder.h>

#include <QDebug>
#include <QDomElement>
#include <QObject>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>

namespace {

constexpr KTKeywordRow<KTArticleClassEnum> KEYWORDS[] = {
    {"none",                      KTArticleClassNone             },
    {"unknown",                   KTArticleClassNone             },
    {"book",                      KTArticleClassBook             },
    {"fotobook",                  KTArticleClassBook             },
    {"doublepage",                KTArticleClassDoublepage       },
    {"normal_calendar",           KTArticleClassNormalCalendar   },
    {"agenda",                    KTArticleClassAgenda           },
    {"calendar",                  KTArticleClassCalendar         },
    {"simple_gift",               KTArticleClassSimpleGift       },
    {"gift",                      KTArticleClassGift             },
    {"card",                      KTArticleClassCard             },
    {"deko",                      KTArticleClassDeko             },
    {"poster",                    KTArticleClassDeko             },
    {"frame",                     KTArticleClassDeko             },
    {"foto",                      KTArticleClassFoto             },
    {"premiumfoto",               KTArticleClassPremiumfoto      },
    {"posterfoto",                KTArticleClassPosterfoto       },
    {"photo",                     KTArticleClassPhoto            },
    {"fee",                       KTArticleClassFee              },
    {"canvas",                    KTArticleClassCanvas           },
    {"art_print",                 KTArticleClassArtPrint         },
    {"advent_calendar",           KTArticleClassAdventCalendar   },
    {"playing_card",              KTArticleClassPlayingCard      },
    {"playingcard",               KTArticleClassPlayingCard      },
    {"picture_box",               KTArticleClassPictureBox       },
    {"nature_bundle",             KTArticleClassNatureBundle     },
    {"puzzle",                    KTArticleClassPuzzle           },
    {"slipcase",                  KTArticleClassSlipcase         },
    {"fullrange",                 KTArticleClassFullrange        },
    {"expressFee",                KTArticleClassExpressFee       },
    {"transferFee",               KTArticleClassTransferFee      },
    {"paymentFee",                KTArticleClassPaymentFee       },
    {"shipmentMethodFee",         KTArticleClassShipmentMethodFee},
    {"express_fee",               KTArticleClassExpressFee       },
    {"transfer",                  KTArticleClassTransferFee      },
    {"pay_method_fee",            KTArticleClassPaymentFee       },
    {"shipment_method_fee",       KTArticleClassShipmentMethodFee},
    {"article",                   KTArticleClassArticle          },
    {"add_on",                    KTArticleClassAddOn            },
    {"design_addOn",              KTArticleClassDesignAddOn      },
    {"frame_addOn",               KTArticleClassFrameAddOn       },
    {"frame_construction",        KTArticleClassFrameConstruction},
    {"wallholder_addOn",          KTArticleClassWallholderAddOn  },
    {"wall_holder_gallery_print", KTArticleClassWallholderAddOn  },
    {"pagePackage_addOn",         KTArticleClassPagePackageAddOn },
    {"video_addOn",               KTArticleClassVideoAddOn       },
    {"locrMap_addOn",             KTArticleClassLocrMapAddOn     },
    {"envelope_addOn",            KTArticleClassEnvelopeAddOn    },
    {"giftBox_addOn",             KTArticleClassGiftBoxAddOn     },
    {"spotColor_addOn",           KTArticleClassSpotColorAddOn   },
    {"giftWrap_addOn",            KTArticleClassGiftWrapAddOn    },
    {"matt_cover_addOn",          KTArticleClassMattCoverAddOn   },
    {"flyleafcolor",              KTArticleClassFlyleafcolor     },
    {"pre_assembled",             KTArticleClassPreAssembled     },
};

constexpr auto RESERVED = KTArticleClassReserved29 | KTArticleClassReserved30 | KTArticleClassReserved37;
static_assert((KTKeywordRows::bits(KEYWORDS) | RESERVED)
                  == (KTArticleClassArticle | KTArticleClassFee | KTArticleClassAddOn
                      | KTArticleClassPreAssembled),
              "every kind has a keyword, except the reserved ones");

struct ShippingGroupRow
{
    KTArticleClassEnum articleClass;
    int groupId;
};

constexpr ShippingGroupRow SHIPPING_GROUPS[] = {
    {KTArticleClassFoto,        1 },
    {KTArticleClassPremiumfoto, 18},
    {KTArticleClassPosterfoto,  3 },
};

struct CategoryRow
{
    KTArticleClassEnum kinds;
    KTStringLiteral projectCategory;
    const char *name;
};

constexpr auto WALL_DECOR = KTArticleClassDeko | KTArticleClassCanvas;

// An article belongs to the first category with which it shares a kind.
constexpr CategoryRow CATEGORIES[] = {
    {KTArticleClassBook,     "book",      QT_TRANSLATE_NOOP("QObject", "Fotobuch")             },
    {KTArticleClassPhoto,    "prints",    QT_TRANSLATE_NOOP("QObject", "Fotos")                },
    {WALL_DECOR,             "walldecor", QT_TRANSLATE_NOOP("QObject", "Poster und Wandbilder")},
    {KTArticleClassCalendar, "calendar",  QT_TRANSLATE_NOOP("QObject", "Kalender")             },
    {KTArticleClassCard,     "card",      QT_TRANSLATE_NOOP("QObject", "Grußkarten")          },
};
constexpr CategoryRow OTHER_CATEGORY
    = {KTArticleClassNone, "other", QT_TRANSLATE_NOOP("QObject", "Fotogeschenke")};

const CategoryRow &category(const KTArticleClass &articleClass)
{
    for (const CategoryRow &row : CATEGORIES) {
        if (articleClass.matches(row.kinds))
            return row;
    }
    return OTHER_CATEGORY;
}

// What belongs to one article of its order line, and so can be ordered once in it.
constexpr auto SINGLE_PIECES = KTArticleClassSlipcase | KTArticleClassSpotColorAddOn
    | KTArticleClassFrameAddOn | KTArticleClassFrameConstruction | KTArticleClassReserved29
    | KTArticleClassReserved30 | KTArticleClassWallholderAddOn | KTArticleClassEnvelopeAddOn
    | KTArticleClassMattCoverAddOn | KTArticleClassGiftBoxAddOn | KTArticleClassGiftWrapAddOn
    | KTArticleClassFlyleafcolor | KTArticleClassReserved37 | KTArticleClassPreAssembled;

constexpr KTStringLiteral TYPE_TAG = "type";

} // namespace

KTArticleClass::KTArticleClass()
    : KTArticleClass(KTArticleClassNone)
{
}

KTArticleClass::KTArticleClass(KTArticleClassEnum value)
    : KTEnumWrapper(value)
{
}

KTArticleClass::KTArticleClass(const QString &text)
    : KTArticleClass()
{
    setValue(text);
}

KTArticleClass KTArticleClass::createFromShippingGroupId(const KTShippingGroupId &groupId)
{
    for (const ShippingGroupRow &row : SHIPPING_GROUPS) {
        if (groupId == row.groupId)
            return row.articleClass;
    }
    return KTArticleClass();
}

KTShippingGroupId KTArticleClass::shippingGroup() const
{
    for (const ShippingGroupRow &row : SHIPPING_GROUPS) {
        if (value() == row.articleClass)
            return row.groupId;
    }
    return KTShippingGroupId();
}

QString KTArticleClass::toPHProjectCategory() const
{
    return category(*this).projectCategory;
}

QString KTArticleClass::toHumanReadable() const
{
    return QObject::tr(category(*this).name);
}

bool KTArticleClass::lessThanShopCart(const KTArticleClassEnum &first, const KTArticleClassEnum &second)
{
    // The order in which the cart explains an article, not the order of the bits.
    static constexpr KTArticleClassEnum importance[] = {
        KTArticleClassPagePackageAddOn,  KTArticleClassSpotColorAddOn, KTArticleClassMattCoverAddOn,
        KTArticleClassGiftBoxAddOn,      KTArticleClassFlyleafcolor,   KTArticleClassVideoAddOn,
        KTArticleClassLocrMapAddOn,      KTArticleClassDesignAddOn,    KTArticleClassFrameAddOn,
        KTArticleClassFrameConstruction, KTArticleClassReserved29,     KTArticleClassWallholderAddOn,
        KTArticleClassReserved30,        KTArticleClassGiftWrapAddOn,  KTArticleClassEnvelopeAddOn,
        KTArticleClassSlipcase,
    };
    const auto position = [](KTArticleClassEnum value) -> std::ptrdiff_t {
        const auto *const found = std::find(std::begin(importance), std::end(importance), value);
        return found == std::end(importance) ? -1 : found - std::begin(importance);
    };
    return position(first) < position(second);
}

bool KTArticleClass::canModifyABK() const
{
    return matches(KTArticleClassPhoto);
}

int KTArticleClass::maxAmount() const
{
    return matches(SINGLE_PIECES) ? 1 : std::numeric_limits<int>::max();
}

void KTArticleClass::toTemplates2Format(QDomElement &parent) const
{
    // A template without a type is good for the full range.
    if (hasValue(KTArticleClassFullrange))
        return;
    for (const QString &keyword : encodeBits())
        KTXMLBuilder::buildDomElement(parent, TYPE_TAG, keyword);
}

void KTArticleClass::fillTable(KTEnumToStringTable<KTArticleClassEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
}

QDebug operator<<(QDebug stream, const KTArticleClass &articleClass)
{
    return stream << "Articleclass:" << articleClass.encode();
}
