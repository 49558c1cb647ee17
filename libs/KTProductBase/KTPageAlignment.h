#pragma once

#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>

#include <QMetaType>

class QDebug;

/** Places on a spread or cover. */
enum KTPRODUCTBASE_EXPORT KTPageAlignmentEnum : qint32 {
    KTPageAlignmentLeft = 1,
    KTPageAlignmentRight = 2,
    /** On the spine. */
    KTPageAlignmentMiddle = 4,
    KTPageAlignmentFullpage = 8,
    KTPageAlignmentTop = 16,
    KTPageAlignmentBottom = 32,
    KTPageAlignmentCenter = 64,
};
KT_DECLARE_FLAG_OPERATORS(KTPageAlignmentEnum)

/** Where on a spread or cover something is placed, and so the name of the production file of one side. */
class KTPRODUCTBASE_EXPORT KTPageAlignment : public KTEnumWrapper<KTPageAlignmentEnum>
{
public:
    /** No place: value 0. */
    KTPageAlignment();
    KTPageAlignment(KTPageAlignmentEnum value);
    /** Reads a comma-separated list; an empty text and unknown words are left. */
    KTPageAlignment(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTPageAlignment(T) = delete;

    /**
     * "_left.pdf" or "_right.pdf" for exactly that side if the sides are produced apart, else "_center.pdf".
     */
    QString pdfPostFix(bool sidesApart) const;
    /** The path with each ".pdf", in any letter case, replaced by the post fix. */
    [[nodiscard]] QString modifyProductionPath(const QString &path, bool sidesApart) const;
    /**
     * Says in German where exactly one place is, else a null string; translated on first use of any and kept.
     */
    [[nodiscard]] QString describe() const;

    void fillTable(KTEnumToStringTable<KTPageAlignmentEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTPageAlignment)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTPageAlignment &alignment);
