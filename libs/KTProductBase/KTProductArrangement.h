#pragma once

#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>

#include <QMetaType>

class QDebug;

/** Families of products that are arranged alike. */
enum KTPRODUCTBASE_EXPORT KTProductArrangementEnum : qint32 {
    KTProductArrangementTrivial = 1,
    // 2 is a family without a keyword.
    KTProductArrangementGift = 4,
    KTProductArrangementCard = 8,
    KTProductArrangementPhotobook = 16,
    KTProductArrangementCalendar = 32,
};
KT_DECLARE_FLAG_OPERATORS(KTProductArrangementEnum)

/** The family as which a product is arranged, or several of them. */
class KTPRODUCTBASE_EXPORT KTProductArrangement : public KTEnumWrapper<KTProductArrangementEnum>
{
public:
    /** No family: value 0. */
    KTProductArrangement();
    KTProductArrangement(KTProductArrangementEnum value);
    /** Reads a comma-separated list; an empty text or unknown words give no family. */
    KTProductArrangement(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTProductArrangement(T) = delete;

    void fillTable(KTEnumToStringTable<KTProductArrangementEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTProductArrangement)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTProductArrangement &arrangement);
