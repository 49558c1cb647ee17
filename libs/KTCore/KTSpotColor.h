#pragma once

#include "ktcore_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>

#include <QMetaType>

class QDebug;

/** The finishings that are printed with a colour of their own. */
enum KTCORE_EXPORT KTSpotColorEnum : qint32 {
    KTSpotColorGloss = 1,
    KTSpotColorGold = 2,
    KTSpotColorSilver = 4,
    KTSpotColorRoseGold = 8,
    KTSpotColorSilverInk = 16,
};
KT_DECLARE_FLAG_OPERATORS(KTSpotColorEnum)

/** A spot colour or a union of them, written "gloss", "gold", "silver", "rosegold" and "silverink". */
class KTCORE_EXPORT KTSpotColor : public KTEnumWrapper<KTSpotColorEnum>
{
public:
    /** No spot colour: value 0. */
    KTSpotColor();
    KTSpotColor(KTSpotColorEnum value);
    /** Reads a comma-separated list; an empty text or unknown words give no spot colour. */
    KTSpotColor(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTSpotColor(T) = delete;

    void fillTable(KTEnumToStringTable<KTSpotColorEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTSpotColor)
KTCORE_EXPORT QDebug operator<<(QDebug stream, const KTSpotColor &color);
