#pragma once

#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>

#include <QMetaType>

class QDebug;

/** Kinds of downloadable design content. */
enum KTPRODUCTBASE_EXPORT KTDlpTypeEnum : qint32 {
    KTDlpTypeBackground = 0x1,
    KTDlpTypeStyle = 0x2,
    KTDlpTypeTemplate = 0x4,
    KTDlpTypeClipart = 0x8,
    KTDlpTypeMask = 0x10,
    KTDlpTypeLayoutcollection = 0x20,
    KTDlpTypeStorybook = 0x40,
    KTDlpTypeFormParameterData = 0x80,
    KTDlpTypePredefinedProject = 0x100,
    /** May accompany a kind; directories and queries ignore it, and it has no keyword. */
    KTDlpTypeReserved9 = 0x200,
};
KT_DECLARE_FLAG_OPERATORS(KTDlpTypeEnum)

/** The kind of a piece of downloadable design content, or several kinds. */
class KTPRODUCTBASE_EXPORT KTDlpType : public KTEnumWrapper<KTDlpTypeEnum>
{
public:
    /** No kind: value 0. */
    KTDlpType();
    KTDlpType(KTDlpTypeEnum value);
    /** Reads a comma-separated list; an empty text or unknown words give no kind. */
    KTDlpType(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTDlpType(T) = delete;

    /** The display name of exactly one kind, else empty; translated on first use of any and kept. */
    QString visibleName() const;
    /**
     * The name of the directory with the content of exactly one kind; empty where there is none. The flag
     * asks for the templates' own directory, instead of the one they share with the predefined projects.
     */
    QString dlpPath(bool flag) const;
    /** The keyword to query content with: that of a style for story books, else that of the value, if any. */
    [[nodiscard]] QString queryValue() const;
    /** The value in decimal and its keyword, like "8 | clipart". */
    [[nodiscard]] QString describe() const;

    void fillTable(KTEnumToStringTable<KTDlpTypeEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTDlpType)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTDlpType &dlpType);
