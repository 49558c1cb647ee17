#pragma once

#include "KTShippingGroupId.h"
#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>

#include <QMetaType>

class QDebug;
class QDomElement;

/** The kinds of articles, and groups of them that filters and the shop ask for. */
enum KTPRODUCTBASE_EXPORT KTArticleClassEnum : qint64 {
    KTArticleClassNone = 0,
    KTArticleClassBook = 0x1,
    KTArticleClassNormalCalendar = 0x2,
    KTArticleClassAgenda = 0x4,
    KTArticleClassCard = 0x8,
    KTArticleClassDeko = 0x10,
    KTArticleClassCanvas = 0x20,
    KTArticleClassArtPrint = 0x40,
    KTArticleClassSimpleGift = 0x80,
    KTArticleClassAdventCalendar = 0x100,
    KTArticleClassPlayingCard = 0x200,
    KTArticleClassDoublepage = 0x400,
    KTArticleClassPictureBox = 0x800,
    KTArticleClassNatureBundle = 0x1000,
    KTArticleClassPuzzle = 0x2000,
    KTArticleClassSlipcase = 0x4000,
    KTArticleClassFoto = 0x8000,
    KTArticleClassPremiumfoto = 0x10000,
    KTArticleClassPosterfoto = 0x20000,
    KTArticleClassExpressFee = 0x40000,
    KTArticleClassTransferFee = 0x80000,
    KTArticleClassPaymentFee = 0x100000,
    KTArticleClassShipmentMethodFee = 0x200000,
    KTArticleClassPagePackageAddOn = 0x400000,
    KTArticleClassSpotColorAddOn = 0x800000,
    KTArticleClassVideoAddOn = 0x1000000,
    KTArticleClassDesignAddOn = 0x2000000,
    KTArticleClassLocrMapAddOn = 0x4000000,
    KTArticleClassFrameAddOn = 0x8000000,
    KTArticleClassFrameConstruction = 0x10000000,
    // The reserved bits have no keywords, but they are add-ons, and two have their place in the shopping
    // cart.
    KTArticleClassReserved29 = 0x20000000,
    KTArticleClassReserved30 = 0x40000000,
    KTArticleClassWallholderAddOn = 0x80000000,
    KTArticleClassEnvelopeAddOn = 0x100000000,
    KTArticleClassMattCoverAddOn = 0x200000000,
    KTArticleClassGiftBoxAddOn = 0x400000000,
    KTArticleClassGiftWrapAddOn = 0x800000000,
    KTArticleClassFlyleafcolor = 0x1000000000,
    KTArticleClassReserved37 = 0x2000000000,
    KTArticleClassPreAssembled = 0x4000000000,

    KTArticleClassCalendar = KTArticleClassNormalCalendar | KTArticleClassAgenda,
    // Double pages are sold as gifts.
    KTArticleClassGift = KTArticleClassArtPrint | KTArticleClassSimpleGift | KTArticleClassAdventCalendar
        | KTArticleClassPlayingCard | KTArticleClassDoublepage | KTArticleClassPictureBox
        | KTArticleClassNatureBundle | KTArticleClassPuzzle,
    KTArticleClassPhoto = KTArticleClassFoto | KTArticleClassPremiumfoto | KTArticleClassPosterfoto,
    KTArticleClassFee = KTArticleClassExpressFee | KTArticleClassTransferFee | KTArticleClassPaymentFee
        | KTArticleClassShipmentMethodFee,
    // The slipcase counts as an article of its own, not as an add-on.
    KTArticleClassFullrange = KTArticleClassBook | KTArticleClassCalendar | KTArticleClassCard
        | KTArticleClassDeko | KTArticleClassCanvas | KTArticleClassGift | KTArticleClassSlipcase,
    KTArticleClassArticle = KTArticleClassFullrange | KTArticleClassPhoto,
    // Without what is pre-assembled: that is how an article is delivered, nothing that is added to it.
    KTArticleClassAddOn = KTArticleClassPagePackageAddOn | KTArticleClassSpotColorAddOn
        | KTArticleClassVideoAddOn | KTArticleClassDesignAddOn | KTArticleClassLocrMapAddOn
        | KTArticleClassFrameAddOn | KTArticleClassFrameConstruction | KTArticleClassReserved29
        | KTArticleClassReserved30 | KTArticleClassWallholderAddOn | KTArticleClassEnvelopeAddOn
        | KTArticleClassMattCoverAddOn | KTArticleClassGiftBoxAddOn | KTArticleClassGiftWrapAddOn
        | KTArticleClassFlyleafcolor | KTArticleClassReserved37,
};
KT_DECLARE_FLAG_OPERATORS(KTArticleClassEnum)

/** What kind of article an order line is: a book, a calendar, a print, a fee, an add-on; or several kinds. */
class KTPRODUCTBASE_EXPORT KTArticleClass : public KTEnumWrapper<KTArticleClassEnum>
{
public:
    /** No class: value 0, written "none". */
    KTArticleClass();
    KTArticleClass(KTArticleClassEnum value);
    /** Reads a comma-separated list; an empty text or unknown words give no class. */
    KTArticleClass(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTArticleClass(T) = delete;

    /** The prints that are shipped in the group; no class for any other group. */
    [[nodiscard]] static KTArticleClass createFromShippingGroupId(const KTShippingGroupId &groupId);
    /** The group of exactly one kind of prints; invalid for every other class. */
    KTShippingGroupId shippingGroup() const;

    /** "book", "prints", "walldecor", "calendar", "card" or "other"; of several kinds the first of these. */
    QString toPHProjectCategory() const;
    /** The display name of the project category, translated at each call. */
    QString toHumanReadable() const;

    /**
     * The order of the shopping cart: the add-ons and the slipcase follow, in an order of their own, after
     * everything else, in which no class, and no union, comes before another.
     */
    static bool lessThanShopCart(const KTArticleClassEnum &first, const KTArticleClassEnum &second);

    /** True when there are prints among the kinds. */
    bool canModifyABK() const;
    /** The highest amount per order line: 1 for what is made for one article, else the highest int. */
    int maxAmount() const;

    /** Appends a "type" child per kind; nothing when the class is exactly the full range, or none. */
    void toTemplates2Format(QDomElement &parent) const;

    void fillTable(KTEnumToStringTable<KTArticleClassEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTArticleClass)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTArticleClass &articleClass);
