#pragma once

#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>
#include <KTSpotColor.h>

#include <QMetaType>

class QDebug;

/** Kinds of layout pages. */
enum KTPRODUCTBASE_EXPORT KTPageTypeEnum : qint32 {
    KTPageTypeSpine = 0x1,
    KTPageTypeCardfront = 0x2,
    KTPageTypeCardback = 0x4,
    KTPageTypeNormalpage = 0x8,
    KTPageTypeEmptypage = 0x10,
    KTPageTypeFullcover = 0x20,
    KTPageTypeCalendarcoverfront = 0x40,
    KTPageTypeCalendarcoverback = 0x80,
    KTPageTypeCromolinen = 0x100,
    KTPageTypeLeather = 0x200,
    /** The back of a door of an advent calendar; it has no keyword of its own. */
    KTPageTypeAdvdoorback = 0x400,
    KTPageTypeNormalpages = 0x800,
    KTPageTypeDuplexcard = 0x1000,
    KTPageTypeFoldedduplexcard = 0x2000,
    KTPageTypeArtprints = 0x4000,
    KTPageTypeAdvwithdoorbackprint = 0x8000,
    KTPageTypeSlipcasespine = 0x10000,
    KTPageTypeSlipcaseemptyspine = 0x20000,
    KTPageTypeSlipcasefrontcover = 0x40000,
    KTPageTypeSlipcasebackcover = 0x80000,
    KTPageTypeSlipcasesequence = 0x100000,

    KTPageTypeNormalcardfront = KTPageTypeNormalpage | KTPageTypeCardfront,
    KTPageTypeNormalcardback = KTPageTypeNormalpage | KTPageTypeCardback,
    KTPageTypeNormaladvdoorback = KTPageTypeNormalpage | KTPageTypeAdvdoorback,
    KTPageTypeSlipcasecover = KTPageTypeSlipcasefrontcover | KTPageTypeSlipcasebackcover,
    KTPageTypeSlipcasepages
    = KTPageTypeSlipcasecover | KTPageTypeSlipcasespine | KTPageTypeSlipcaseemptyspine,
    KTPageTypeCover = KTPageTypeSpine | KTPageTypeFullcover | KTPageTypeCalendarcoverfront
        | KTPageTypeCalendarcoverback | KTPageTypeCromolinen | KTPageTypeLeather | KTPageTypeSlipcasepages,
    KTPageTypeAll = KTPageTypeCover | KTPageTypeEmptypage | KTPageTypeNormalpage,
};
KT_DECLARE_FLAG_OPERATORS(KTPageTypeEnum)

/**
 * The kind of a layout page, or several kinds, and the rules for it.
 *
 * The rules look at the exact value: a union is a page like any other unless said otherwise. Their numbers
 * are codes of the layers that draw, edit and order pages, and mean nothing here.
 */
class KTPRODUCTBASE_EXPORT KTPageType : public KTEnumWrapper<KTPageTypeEnum>
{
public:
    /** No kind: value 0, which is not valid. */
    KTPageType();
    KTPageType(KTPageTypeEnum value);
    /** Reads a comma-separated list; an empty text or unknown words give no kind. */
    KTPageType(const QString &keywords);
    template <typename T, typename = KTNoClassification<T>>
    KTPageType(T) = delete;

    /** Adds the kinds of a comma-separated list. */
    KTEnumWrapper<KTPageTypeEnum> &expandToKeyword(const QString &keywords);

    /**
     * True when the page may be finished with the spot colours. Linen and leather take any but gloss and
     * silver ink; full covers and card fronts take every list, other pages one that has silver ink in it.
     */
    bool isSpotColorAllowed(const QList<KTSpotColor> &colors) const;

    int productionRenderingRule() const;
    /** A set of 32 bits. */
    quint32 renderingRule() const;
    /** The number the page is ordered under, 0 for a union with a part of a cover, or -1. */
    int explicitOrderPageNumber() const;
    int acceptTemplateRule() const;
    int acceptFotoRule() const;

    void fillTable(KTEnumToStringTable<KTPageTypeEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTPageType)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTPageType &pageType);
