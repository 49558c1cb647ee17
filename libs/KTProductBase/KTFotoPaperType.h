#pragma once

#include "KTArticleClass.h"
#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>

#include <QMetaType>

class QDebug;

/** Surfaces of photo prints. */
enum KTPRODUCTBASE_EXPORT KTFotoPaperTypeEnum : qint32 {
    KTFotoPaperTypeUnknown = 0,
    KTFotoPaperTypeGlossy = 1,
    KTFotoPaperTypeMatt = 2,
};
KT_DECLARE_FLAG_OPERATORS(KTFotoPaperTypeEnum)

/** The surface of a photo print. It is written as the number of its value. */
class KTPRODUCTBASE_EXPORT KTFotoPaperType : public KTEnumWrapper<KTFotoPaperTypeEnum>
{
public:
    /** An unknown surface: value 0. */
    KTFotoPaperType();
    KTFotoPaperType(KTFotoPaperTypeEnum value);
    /** Reads a comma-separated list; an empty text or unknown words give an unknown surface. */
    KTFotoPaperType(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTFotoPaperType(T) = delete;

    /** Reads a decimal number: 1 and 2 are one surface, 0 is both, glossy first; anything else is none. */
    [[nodiscard]] static QList<KTFotoPaperType> createFromXTCI(const QString &text);
    /** Glossy for exactly one kind of photo prints; unknown for every other class. */
    [[nodiscard]] static KTFotoPaperType defaultFor(const KTArticleClass &articleClass);

    /** The display name, translated on first use of any and kept; empty for a union. */
    QString humanReadableName() const;
    /** "1" or "2" for exactly that surface, else an empty text. */
    [[nodiscard]] QString encodeForProduction() const;

    void fillTable(KTEnumToStringTable<KTFotoPaperTypeEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTFotoPaperType)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTFotoPaperType &paperType);
