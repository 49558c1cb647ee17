#pragma once

#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>
#include <KTLookUpTable.h>

#include <QMetaType>

class QDebug;

/** Papers of printed products. */
enum KTPRODUCTBASE_EXPORT KTPaperTypeEnum : qint32 {
    KTPaperTypeUnknown = 0,
    KTPaperTypeIndigo = 0x1,
    KTPaperTypeIndigoGlossy = 0x2,
    KTPaperTypeFotopaper = 0x4,
    KTPaperTypeFotopaperGlossy = 0x8,
    KTPaperTypeFotopaperPremiumMatt = 0x10,
    KTPaperTypePremium = 0x20,
    KTPaperTypePremiumMatt = 0x40,
    KTPaperTypeRecycled = 0x80,
};
KT_DECLARE_FLAG_OPERATORS(KTPaperTypeEnum)

/** The paper of a printed product, or the papers that something suits. */
class KTPRODUCTBASE_EXPORT KTPaperType : public KTEnumWrapper<KTPaperTypeEnum>
{
public:
    /** An unknown paper: value 0. */
    KTPaperType();
    KTPaperType(KTPaperTypeEnum value);
    /** Reads a comma-separated list; an empty text and unknown words are indigo, the standard paper. */
    KTPaperType(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTPaperType(T) = delete;

    /**
     * The lowest paper whose display name is the translation of the text; unknown for any other text. The
     * text is translated at each call, the names on first use: after a change of language they do not match.
     */
    [[nodiscard]] static KTPaperType createFromHumanReadable(const QString &name);

    /** Builds a table of the display names, translated at this moment, which the caller owns. */
    [[nodiscard]] static KTLookUpTable<KTPaperType, QString> *initPaperTypeNames();
    /** The display names, translated on first use and kept for the life of the process; for any thread. */
    static KTLookUpTable<KTPaperType, QString> *paperTypeNames();
    /** The display name of exactly one paper, from paperTypeNames(), or its "unbekannter Papiertyp". */
    QString humanReadableName() const;

    void fillTable(KTEnumToStringTable<KTPaperTypeEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTPaperType)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTPaperType &paperType);
