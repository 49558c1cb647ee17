#pragma once

#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>

#include <QMetaType>

class QDebug;

/** Materials of certain gifts. */
enum KTPRODUCTBASE_EXPORT KTMaterialTypeEnum : qint64 {
    KTMaterialTypeNotebook = 0x1,
    KTMaterialTypePictureBox = 0x2,
    KTMaterialTypeCardPlaying = 0x4,
    KTMaterialTypeDecoPrint = 0x8,
    KTMaterialTypeRetroPrint = 0x10,
    KTMaterialTypePictureBundle = 0x20,
};
KT_DECLARE_FLAG_OPERATORS(KTMaterialTypeEnum)

/** What a gift is made of, or several materials. */
class KTPRODUCTBASE_EXPORT KTMaterialType : public KTEnumWrapper<KTMaterialTypeEnum>
{
public:
    /** No material: value 0. */
    KTMaterialType();
    KTMaterialType(KTMaterialTypeEnum value);
    /** Reads a comma-separated list; an empty text or unknown words give no material. */
    KTMaterialType(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTMaterialType(T) = delete;

    void fillTable(KTEnumToStringTable<KTMaterialTypeEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTMaterialType)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTMaterialType &materialType);
