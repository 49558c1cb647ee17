#pragma once

#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>
#include <KTLookUpTable.h>

#include <QMetaType>

class QDebug;

/** How a product is bound, or what it is made of where nothing is bound. */
enum KTPRODUCTBASE_EXPORT KTCoverTypeEnum : qint64 {
    KTCoverTypeHardcover = 0x1,
    KTCoverTypeSoftcover = 0x2,
    KTCoverTypeCromolinen = 0x4,
    KTCoverTypeLeather = 0x8,
    KTCoverTypeBooklet = 0x10,
    KTCoverTypeCalendarSimplex = 0x20,
    KTCoverTypeCalendarDuplex = 0x40,
    KTCoverTypeCalendarOnePage = 0x80,
    KTCoverTypeCalendarAnnualDuplex = 0x100,
    KTCoverTypeGift = 0x200,
    KTCoverTypeAgenda = 0x400,
    KTCoverTypeAcrylGlas = 0x800,
    KTCoverTypeCanvas = 0x1000,
    KTCoverTypeAluDibond = 0x2000,
    KTCoverTypeHardFoam = 0x4000,
    KTCoverTypeDecoration = 0x8000,
    KTCoverTypePosterDecoration = 0x10000,
    KTCoverTypePosterPremium = 0x20000,
    KTCoverTypePosterSelfAdhesive = 0x40000,
    KTCoverTypePosterStandard = 0x80000,
    KTCoverTypePosterXXL = 0x100000,
    KTCoverTypeGalleryPrint = 0x200000,
    KTCoverTypeCalendarAdventEmpty = 0x400000,
    KTCoverTypeCalendarAdventChocolate = 0x800000,
    KTCoverTypeCalendarAdventPhoto = 0x1000000,
    KTCoverTypeCeramics = 0x2000000,
    KTCoverTypeGames = 0x4000000,
    KTCoverTypeOffice = 0x8000000,
    KTCoverTypeTextiles = 0x10000000,
    KTCoverTypeWood = 0x20000000,
    KTCoverTypeSet = 0x40000000,
    KTCoverTypeWireO = 0x80000000,
};
KT_DECLARE_FLAG_OPERATORS(KTCoverTypeEnum)

/**
 * The cover, binding or material of a product, or several of them.
 *
 * The tables of display names and tool tips are translated on first use, kept for the life of the process,
 * and for any thread; what init...() builds is translated at each call and belongs to the caller.
 */
class KTPRODUCTBASE_EXPORT KTCoverType : public KTEnumWrapper<KTCoverTypeEnum>
{
public:
    /** No cover type: value 0. */
    KTCoverType();
    KTCoverType(KTCoverTypeEnum value);
    /** Reads a comma-separated list; an empty text or unknown words give no cover type. */
    KTCoverType(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTCoverType(T) = delete;

    /**
     * The lowest type whose display name is the translation of the text; none for an unknown name. An empty
     * text gives gift, the lowest type with an empty name. The text is translated at each call, the names on
     * first use: after a change of language they do not match.
     */
    [[nodiscard]] static KTCoverType createFromHumanReadable(const QString &name);

    [[nodiscard]] static KTLookUpTable<KTCoverTypeEnum, QString> *initCoverNames();
    static KTLookUpTable<KTCoverTypeEnum, QString> *bindingNames();
    [[nodiscard]] static KTLookUpTable<KTCoverTypeEnum, QString> *initTooltips();
    static KTLookUpTable<KTCoverTypeEnum, QString> *bindingToolTips();

    /**
     * The display name of exactly one type, from bindingNames(); empty for those that dialogs name by their
     * article, and "unbekannter Bindungstyp" for what is in no row.
     */
    QString humanReadableName() const;
    /**
     * The tool tip of exactly one book or calendar binding, from bindingToolTips(); "unbekannter Bindungstyp"
     * for the rest.
     */
    QString toolTip() const;

    /** True when a cover that can be designed all over is among the types. */
    bool isFullCover() const;
    /** True when something printed on one side is among the types. */
    bool isSimplex() const;

    void fillTable(KTEnumToStringTable<KTCoverTypeEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTCoverType)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTCoverType &coverType);
