#pragma once

#include "ktproductbase_export.h"

#include <KTAngle.h>
#include <KTEnumWrapper.h>
#include <KTFlagOperators.h>

#include <QMetaType>
#include <QSizeF>

class QDebug;
class QDomElement;

/** The formats of a page. */
enum KTPRODUCTBASE_EXPORT KTOrientationEnum : qint32 {
    KTOrientationPortrait = 1,
    KTOrientationLandscape = 2,
    KTOrientationSquare = 4,
    KTOrientationPortraitSlim = 8,
    KTOrientationLandscapeSlim = 16,

    KTOrientationAll = KTOrientationPortrait | KTOrientationLandscape | KTOrientationSquare
        | KTOrientationPortraitSlim | KTOrientationLandscapeSlim,
};
KT_DECLARE_FLAG_OPERATORS(KTOrientationEnum)

/** The format of a product or page, or the formats that something suits; a size without a keyword has one
 * too.
 */
class KTPRODUCTBASE_EXPORT KTOrientation : public KTEnumWrapper<KTOrientationEnum>
{
public:
    /** No orientation: value 0, though it is written "portrait" like any union but all. */
    KTOrientation();
    KTOrientation(KTOrientationEnum value);
    /** Reads a comma-separated list; an empty text or unknown words give no orientation. */
    KTOrientation(const QString &text);
    template <typename T, typename = KTNoClassification<T>>
    KTOrientation(T) = delete;
    /** Reads the text, or derives from the size if that gives no orientation. */
    KTOrientation(const QString &text, const QSizeF &size);
    template <typename T, typename = KTNoClassification<T>>
    KTOrientation(T, const QSizeF &) = delete;
    /** Derives from the size, as fromSize() does. */
    KTOrientation(const QSizeF &size);

    [[nodiscard]] static KTOrientation createFromSize(const QSizeF &size);
    /** Landscape for an untilted page, else portrait. */
    [[nodiscard]] static KTOrientation createFromPageTilt(const KTAngle &tilt);

    /**
     * The format of a size, by width over height: slim landscape from 2.0 up, slim portrait up to 0.5,
     * portrait up to 0.9, square up to 1.1, else landscape. A negative side, or two of 0, give value 0. The
     * object stays as it is.
     */
    KTOrientationEnum fromSize(const QSizeF &size) const;

    /**
     * German words to put before a noun, translated on first use of any and kept; a null string unless it is
     * exactly one format.
     */
    QString humanReadable() const;
    /** True for portrait, slim or not; also when other formats are among the value's. */
    bool isPortrait() const;
    /** The same for landscape. */
    bool isLandscape() const;
    /** The same for square. */
    bool isQuadratic() const;
    /** The usual width over height of exactly one format, else 1.0. */
    double defaultWidthHeightRatio() const;

    /**
     * Portrait, landscape or square, slim or not; a null value and all formats together are portrait. Any
     * other mixture has no basic format: value 0.
     */
    [[nodiscard]] KTOrientation reduceToBasics() const;
    /** The keyword of the basic format, and "portrait" where there is none. */
    [[nodiscard]] QString encodeForDLP() const;
    /** The part of a length that a fold takes, by basic format; 0.0 where there is none. */
    double foldMarginFactor() const;
    /** So much of the length in whole units, rounded down, also below 0. */
    int foldMargin(int length) const;

    /** Appends an "orientation" child per format; nothing for exactly all formats. */
    void toTemplates2Format(QDomElement &parent) const;

    void fillTable(KTEnumToStringTable<KTOrientationEnum> *table) const override;
};

Q_DECLARE_METATYPE(KTOrientation)
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTOrientation &orientation);
