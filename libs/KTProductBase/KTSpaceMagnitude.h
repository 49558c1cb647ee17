#pragma once

#include "KTOrientation.h"
#include "ktproductbase_export.h"

#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>
#include <KTLookUpTable.h>

#include <QFont>
#include <QMetaType>

class QDebug;

/** Size classes of a page, named after their area. */
enum KTPRODUCTBASE_EXPORT KTSpaceMagnitudeEnum : qint32 {
    KTSpaceMagnitude50cm2 = 0x1,
    KTSpaceMagnitude150cm2 = 0x2,
    KTSpaceMagnitude200cm2 = 0x4,
    KTSpaceMagnitude220cm2 = 0x8,
    KTSpaceMagnitude280cm2 = 0x10,
    KTSpaceMagnitude310cm2 = 0x20,
    KTSpaceMagnitude400cm2 = 0x40,
    KTSpaceMagnitude600cm2 = 0x80,
    KTSpaceMagnitude900cm2 = 0x100,
    KTSpaceMagnitude1200cm2 = 0x200,
    KTSpaceMagnitude2000cm2 = 0x400,
    KTSpaceMagnitude2400cm2 = 0x800,

    KTSpaceMagnitudeNormal = KTSpaceMagnitude200cm2 | KTSpaceMagnitude220cm2 | KTSpaceMagnitude280cm2
        | KTSpaceMagnitude310cm2 | KTSpaceMagnitude400cm2 | KTSpaceMagnitude600cm2 | KTSpaceMagnitude1200cm2
        | KTSpaceMagnitude2400cm2,
    KTSpaceMagnitudeXL = KTSpaceMagnitude900cm2 | KTSpaceMagnitude2000cm2,
    KTSpaceMagnitudeAny
    = KTSpaceMagnitude50cm2 | KTSpaceMagnitude150cm2 | KTSpaceMagnitudeNormal | KTSpaceMagnitudeXL,
};
KT_DECLARE_FLAG_OPERATORS(KTSpaceMagnitudeEnum)

/**
 * The size class of a page by its area, or the classes that something suits.
 *
 * The layout questions ask for exactly one class; a null value and a union get the stated fallback.
 */
class KTPRODUCTBASE_EXPORT KTSpaceMagnitude : public KTEnumWrapper<KTSpaceMagnitudeEnum>
{
public:
    /** No class: value 0. */
    KTSpaceMagnitude();
    KTSpaceMagnitude(KTSpaceMagnitudeEnum value);
    /** Reads a comma-separated list; an empty text and unknown words are all classes. */
    KTSpaceMagnitude(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTSpaceMagnitude(T) = delete;

    /** The class of an area; the smallest one for 0 and negative areas. */
    [[nodiscard]] static KTSpaceMagnitude fromSquareCentimeters(int area);
    /** The class of 30.0 over the number, in whole cm²; none for 0.0, the smallest for not-a-number. */
    [[nodiscard]] static KTSpaceMagnitude estimateByAreaSizes(double areaSizes);
    /**
     * The lowest class whose display name is the translation of the text; none for an unknown name. The text
     * is translated at each call, the names are those of names(): after a change of language they do not
     * match.
     */
    [[nodiscard]] static KTSpaceMagnitude createFromHumanReadable(const QString &name);

    /** Builds a table of the display names, translated at this moment, which the caller owns. */
    [[nodiscard]] static KTLookUpTable<KTSpaceMagnitude, QString> *initNames();
    /** The display names, translated on first use and kept for the life of the process; for any thread. */
    static KTLookUpTable<KTSpaceMagnitude, QString> *names();

    /** The display name, from names(), or its "Undefiniert". */
    QString humanReadableName() const;
    /** How many images a page holds; fallback 1. */
    int maxReasonableImagesPerPage() const;
    /** Fallback 12. */
    int suitableFontSizeInPoints() const;
    /** The nominal area in cm²; fallback 0. */
    int normativeSize() const;
    /** The best mean number of photos on a page of that orientation; fallback 2.1. */
    double optimumFotosPerPage(const KTOrientation &orientation) const;

    /**
     * The nominal area of the other class over that of this one, 1.0 if either is null. A union has the area
     * 0, and so the factor can be 0.0, infinite or not a number.
     */
    double scaleFactorForArea(const KTSpaceMagnitude &other) const;
    /** The square root of scaleFactorForArea(). */
    double scaleFactorPerDimension(const KTSpaceMagnitude &other) const;
    /**
     * The font in the size that suits the other class as its size suits this one. A pixel size is rounded
     * down. Where that gives no positive finite size, the font comes back unchanged.
     */
    [[nodiscard]] QFont adaptFont(const QFont &font, const KTSpaceMagnitude &other) const;

    void fillTable(KTEnumToStringTable<KTSpaceMagnitudeEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTSpaceMagnitude)
/** Writes one string like "KTSpaceMagnitude: 600cm2". */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTSpaceMagnitude &magnitude);
