#include "KTOrientation.h"

#include <KTAngle.h>
#include <KTArithmetic.h>
#include <KTFactRow.h>
#include <KTKeywordRow.h>
#include <KTXMLBuilder.h>

#include <QDebug>
#include <QDomElement>
#include <QSizeF>

#include <cmath>

namespace {

constexpr KTKeywordRow<KTOrientationEnum> KEYWORDS[] = {
    {"portrait",        KTOrientationPortrait     },
    {"landscape",       KTOrientationLandscape    },
    {"portrait_slim",   KTOrientationPortraitSlim },
    {"landscape_slim",  KTOrientationLandscapeSlim},
    {"landscape_large", KTOrientationLandscape    },
    {"square",          KTOrientationSquare       },
    {"quadratic",       KTOrientationSquare       },
    {"all",             KTOrientationAll          },
};
static_assert(KTKeywordRows::bits(KEYWORDS) == KTOrientationAll, "every format has a keyword");

constexpr KTOrientationEnum NO_ORIENTATION = static_cast<KTOrientationEnum>(0);

struct FormatRow
{
    KTOrientationEnum value;
    const char *text;
    double widthHeightRatio;
};

// The texts go before a noun: the first half of a compound, or, with its blank, an adjective.
constexpr FormatRow FORMATS[] = {
    {KTOrientationPortrait,      QT_TRANSLATE_NOOP("KTOrientation", "Hochkant-"),          0.666666},
    {KTOrientationLandscape,     QT_TRANSLATE_NOOP("KTOrientation", "Panorama-"),          1.5     },
    {KTOrientationSquare,        QT_TRANSLATE_NOOP("KTOrientation", "quadratische "),      1.0     },
    {KTOrientationPortraitSlim,  QT_TRANSLATE_NOOP("KTOrientation", "schlanke Hochkant-"), 0.5     },
    {KTOrientationLandscapeSlim, QT_TRANSLATE_NOOP("KTOrientation", "schlanke Panorama-"), 2.0     },
};
constexpr FormatRow NO_FORMAT = {NO_ORIENTATION, nullptr, 1.0};

constexpr double SLIM_LANDSCAPE_MIN_RATIO = 2.0;

struct RatioRow
{
    double maxWidthHeightRatio;
    KTOrientationEnum orientation;
};

constexpr RatioRow RATIOS[] = {
    {0.5, KTOrientationPortraitSlim},
    {0.9, KTOrientationPortrait    },
    {1.1, KTOrientationSquare      },
};

struct BasicRow
{
    KTOrientationEnum value;
    KTOrientationEnum basic;
};

// What suits nothing in particular, or everything, is laid out as portrait.
constexpr BasicRow BASICS[] = {
    {NO_ORIENTATION,                                      KTOrientationPortrait },
    {KTOrientationPortrait,                               KTOrientationPortrait },
    {KTOrientationPortraitSlim,                           KTOrientationPortrait },
    {KTOrientationPortrait | KTOrientationPortraitSlim,   KTOrientationPortrait },
    {KTOrientationAll,                                    KTOrientationPortrait },
    {KTOrientationLandscape,                              KTOrientationLandscape},
    {KTOrientationLandscapeSlim,                          KTOrientationLandscape},
    {KTOrientationLandscape | KTOrientationLandscapeSlim, KTOrientationLandscape},
    {KTOrientationSquare,                                 KTOrientationSquare   },
};
constexpr BasicRow NO_BASIC = {NO_ORIENTATION, NO_ORIENTATION};

struct FoldRow
{
    KTOrientationEnum value;
    double marginFactor;
};

constexpr FoldRow FOLDS[] = {
    {KTOrientationPortrait,  0.053659},
    {KTOrientationLandscape, 0.040741},
    {KTOrientationSquare,    0.044878},
};
constexpr FoldRow NO_FOLD = {NO_ORIENTATION, 0.0};

constexpr KTStringLiteral ORIENTATION_TAG = "orientation";

} // namespace

KTOrientation::KTOrientation()
    : KTOrientation(NO_ORIENTATION)
{
}

KTOrientation::KTOrientation(KTOrientationEnum value)
    : KTEnumWrapper(value)
{
}

KTOrientation::KTOrientation(const QString &text)
    : KTOrientation()
{
    setValue(text);
}

KTOrientation::KTOrientation(const QString &text, const QSizeF &size)
    : KTOrientation(text)
{
    if (isNull())
        setValue(fromSize(size));
}

KTOrientation::KTOrientation(const QSizeF &size)
    : KTOrientation()
{
    setValue(fromSize(size));
}

KTOrientation KTOrientation::createFromSize(const QSizeF &size)
{
    return KTOrientation(QString(), size);
}

KTOrientation KTOrientation::createFromPageTilt(const KTAngle &tilt)
{
    return tilt.isNull() ? KTOrientationLandscape : KTOrientationPortrait;
}

KTOrientationEnum KTOrientation::fromSize(const QSizeF &size) const
{
    const double width = size.width();
    const double height = size.height();
    if (width < 0.0 || height < 0.0 || (width == 0.0 && height == 0.0))
        return NO_ORIENTATION;
    // A height of 0 gives infinity, and so slim landscape.
    const double ratio = std::abs(width / height);
    if (ratio >= SLIM_LANDSCAPE_MIN_RATIO)
        return KTOrientationLandscapeSlim;
    for (const RatioRow &row : RATIOS) {
        if (ratio <= row.maxWidthHeightRatio)
            return row.orientation;
    }
    return KTOrientationLandscape;
}

QString KTOrientation::humanReadable() const
{
    static const auto *const myTable
        = KTFactRows::createTextTable<KTOrientationEnum>("KTOrientation", FORMATS);
    return myTable->valueOf(value());
}

bool KTOrientation::isPortrait() const
{
    return matches(KTOrientationPortrait | KTOrientationPortraitSlim);
}

bool KTOrientation::isLandscape() const
{
    return matches(KTOrientationLandscape | KTOrientationLandscapeSlim);
}

bool KTOrientation::isQuadratic() const
{
    return matches(KTOrientationSquare);
}

double KTOrientation::defaultWidthHeightRatio() const
{
    return KTFactRows::find(FORMATS, value(), NO_FORMAT).widthHeightRatio;
}

KTOrientation KTOrientation::reduceToBasics() const
{
    return KTFactRows::find(BASICS, value(), NO_BASIC).basic;
}

QString KTOrientation::encodeForDLP() const
{
    return reduceToBasics().encode();
}

double KTOrientation::foldMarginFactor() const
{
    return KTFactRows::find(FOLDS, reduceToBasics().value(), NO_FOLD).marginFactor;
}

int KTOrientation::foldMargin(int length) const
{
    return KTArithmetic::truncated(std::floor(foldMarginFactor() * length));
}

void KTOrientation::toTemplates2Format(QDomElement &parent) const
{
    // A template without an orientation is good for all.
    if (hasValue(KTOrientationAll))
        return;
    for (const QString &keyword : encodeBits())
        KTXMLBuilder::buildDomElement(parent, ORIENTATION_TAG, keyword);
}

void KTOrientation::fillTable(KTEnumToStringTable<KTOrientationEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
    table->defaultKeyword = table->encode(KTOrientationPortrait);
}

QDebug operator<<(QDebug stream, const KTOrientation &orientation)
{
    return stream << "KTOrientation:" << orientation.debugText();
}
