#include "KTSpaceMagnitude.h"

#include "KTOrientation.h"

#include <KTArithmetic.h>
#include <KTFactRow.h>
#include <KTKeywordRow.h>

#include <QDebug>
#include <QFont>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>

namespace {

constexpr KTKeywordRow<KTSpaceMagnitudeEnum> KEYWORDS[] = {
    {"50cm2",   KTSpaceMagnitude50cm2  },
    {"150cm2",  KTSpaceMagnitude150cm2 },
    {"A6",      KTSpaceMagnitude150cm2 },
    {"200cm2",  KTSpaceMagnitude200cm2 },
    {"220cm2",  KTSpaceMagnitude220cm2 },
    {"280cm2",  KTSpaceMagnitude280cm2 },
    {"310cm2",  KTSpaceMagnitude310cm2 },
    {"A5",      KTSpaceMagnitude310cm2 },
    {"400cm2",  KTSpaceMagnitude400cm2 },
    {"600cm2",  KTSpaceMagnitude600cm2 },
    {"A4",      KTSpaceMagnitude600cm2 },
    {"900cm2",  KTSpaceMagnitude900cm2 },
    {"1200cm2", KTSpaceMagnitude1200cm2},
    {"A3",      KTSpaceMagnitude1200cm2},
    {"2000cm2", KTSpaceMagnitude2000cm2},
    {"2400cm2", KTSpaceMagnitude2400cm2},
    {"A2",      KTSpaceMagnitude2400cm2},
    {"normal",  KTSpaceMagnitudeNormal },
    {"xl",      KTSpaceMagnitudeXL     },
};
static_assert(KTKeywordRows::bits(KEYWORDS) == KTSpaceMagnitudeAny, "every class has a keyword");

// Only written: read back it is all classes because every unknown word is.
constexpr KTStringLiteral ANY_KEYWORD = "any";

constexpr int NO_LIMIT = std::numeric_limits<int>::max();

struct MagnitudeRow
{
    KTSpaceMagnitudeEnum value;
    /** The highest area that belongs to the class, in cm². */
    int maxArea;
    /** In cm². */
    int normativeSize;
    int maxImagesPerPage;
    /** In points. */
    int fontSize;
    double optimumFotosPortrait;
    double optimumFotos;
};

// Irregular, as the layouts were made for it: some nominal areas differ from the class's name; 220cm2 takes
// one image though its neighbours take more; and 1200cm2 looks best with fewer photos than 900cm2.
constexpr MagnitudeRow MAGNITUDES[] = {
    {KTSpaceMagnitude50cm2,   100,      50,   1,  12, 1.5, 1.5},
    {KTSpaceMagnitude150cm2,  175,      150,  1,  12, 1.5, 1.5},
    {KTSpaceMagnitude200cm2,  204,      200,  4,  12, 1.5, 1.5},
    {KTSpaceMagnitude220cm2,  220,      225,  1,  12, 1.5, 1.5},
    {KTSpaceMagnitude280cm2,  295,      280,  5,  12, 1.5, 1.5},
    {KTSpaceMagnitude310cm2,  355,      310,  5,  12, 1.5, 1.5},
    {KTSpaceMagnitude400cm2,  512,      400,  6,  16, 2.0, 2.0},
    {KTSpaceMagnitude600cm2,  762,      625,  8,  16, 2.8, 3.0},
    {KTSpaceMagnitude900cm2,  950,      900,  12, 24, 3.3, 3.3},
    {KTSpaceMagnitude1200cm2, 1900,     1250, 14, 24, 3.2, 3.2},
    {KTSpaceMagnitude2000cm2, 2100,     2025, 14, 32, 4.0, 4.0},
    {KTSpaceMagnitude2400cm2, NO_LIMIT, 2500, 14, 32, 4.0, 4.0},
};
constexpr MagnitudeRow UNDEFINED = {static_cast<KTSpaceMagnitudeEnum>(0), 0, 0, 1, 12, 2.1, 2.1};

constexpr bool coversEveryClass()
{
    for (std::size_t i = 0; i < std::size(MAGNITUDES); ++i) {
        if (MAGNITUDES[i].value != 1 << i || (i > 0 && MAGNITUDES[i].maxArea <= MAGNITUDES[i - 1].maxArea))
            return false;
    }
    return KTSpaceMagnitudeAny == (1 << std::size(MAGNITUDES)) - 1;
}
static_assert(coversEveryClass(), "one row per class, by ascending area");

// 50cm2 has no name of its own.
constexpr KTTextRow<KTSpaceMagnitudeEnum> NAMES[] = {
    {KTSpaceMagnitude150cm2,  QT_TRANSLATE_NOOP("KTSpaceMagnitude", "Mini")               },
    {KTSpaceMagnitude200cm2,  QT_TRANSLATE_NOOP("KTSpaceMagnitude", "Klein")              },
    {KTSpaceMagnitude220cm2,  QT_TRANSLATE_NOOP("KTSpaceMagnitude", "Compact Quadratisch")},
    {KTSpaceMagnitude280cm2,  QT_TRANSLATE_NOOP("KTSpaceMagnitude", "Compact")            },
    {KTSpaceMagnitude310cm2,  QT_TRANSLATE_NOOP("KTSpaceMagnitude", "A5")                 },
    {KTSpaceMagnitude400cm2,  QT_TRANSLATE_NOOP("KTSpaceMagnitude", "Quadratisch")        },
    {KTSpaceMagnitude600cm2,  QT_TRANSLATE_NOOP("KTSpaceMagnitude", "A4")                 },
    {KTSpaceMagnitude900cm2,  QT_TRANSLATE_NOOP("KTSpaceMagnitude", "XL")                 },
    {KTSpaceMagnitude1200cm2, QT_TRANSLATE_NOOP("KTSpaceMagnitude", "A3")                 },
    {KTSpaceMagnitude2000cm2, QT_TRANSLATE_NOOP("KTSpaceMagnitude", "XXL")                },
    {KTSpaceMagnitude2400cm2, QT_TRANSLATE_NOOP("KTSpaceMagnitude", "A2")                 },
};

const MagnitudeRow &facts(const KTSpaceMagnitude &magnitude)
{
    return KTFactRows::find(MAGNITUDES, magnitude.value(), UNDEFINED);
}

// What QFont::pointSizeF() says of a font that is sized in pixels.
constexpr double SIZED_IN_PIXELS = -1.0;

} // namespace

KTSpaceMagnitude::KTSpaceMagnitude()
    : KTSpaceMagnitude(static_cast<KTSpaceMagnitudeEnum>(0))
{
}

KTSpaceMagnitude::KTSpaceMagnitude(KTSpaceMagnitudeEnum value)
    : KTEnumWrapper(value)
{
}

KTSpaceMagnitude::KTSpaceMagnitude(const QString &text)
    : KTSpaceMagnitude()
{
    setValue(text);
}

KTSpaceMagnitude KTSpaceMagnitude::fromSquareCentimeters(int area)
{
    return std::find_if(std::begin(MAGNITUDES), std::end(MAGNITUDES),
                        [area](const MagnitudeRow &row) { return area <= row.maxArea; })
        ->value;
}

KTSpaceMagnitude KTSpaceMagnitude::estimateByAreaSizes(double areaSizes)
{
    if (areaSizes == 0.0)
        return KTSpaceMagnitude();
    return fromSquareCentimeters(KTArithmetic::truncated(30.0 / areaSizes));
}

KTSpaceMagnitude KTSpaceMagnitude::createFromHumanReadable(const QString &name)
{
    // Latin-1, unlike elsewhere: callers hand over source texts, and all of these are ASCII.
    return names()->keyOf(QCoreApplication::translate("KTSpaceMagnitude", name.toLatin1().constData()));
}

KTLookUpTable<KTSpaceMagnitude, QString> *KTSpaceMagnitude::initNames()
{
    auto *const table = KTFactRows::createTextTable<KTSpaceMagnitude>("KTSpaceMagnitude", NAMES);
    table->defaultValue = QCoreApplication::translate("KTSpaceMagnitude", "Undefiniert");
    return table;
}

KTLookUpTable<KTSpaceMagnitude, QString> *KTSpaceMagnitude::names()
{
    static auto *const theNames = initNames();
    return theNames;
}

QString KTSpaceMagnitude::humanReadableName() const
{
    return names()->valueOf(*this);
}

int KTSpaceMagnitude::maxReasonableImagesPerPage() const
{
    return facts(*this).maxImagesPerPage;
}

int KTSpaceMagnitude::suitableFontSizeInPoints() const
{
    return facts(*this).fontSize;
}

int KTSpaceMagnitude::normativeSize() const
{
    return facts(*this).normativeSize;
}

double KTSpaceMagnitude::optimumFotosPerPage(const KTOrientation &orientation) const
{
    const MagnitudeRow &row = facts(*this);
    return orientation.isPortrait() ? row.optimumFotosPortrait : row.optimumFotos;
}

double KTSpaceMagnitude::scaleFactorForArea(const KTSpaceMagnitude &other) const
{
    if (!isValid() || !other.isValid())
        return 1.0;
    const double area = normativeSize();
    const double otherArea = other.normativeSize();
    return otherArea / area;
}

double KTSpaceMagnitude::scaleFactorPerDimension(const KTSpaceMagnitude &other) const
{
    return std::sqrt(scaleFactorForArea(other));
}

QFont KTSpaceMagnitude::adaptFont(const QFont &font, const KTSpaceMagnitude &other) const
{
    QFont adapted = font;
    const double factor = scaleFactorPerDimension(other);
    if (factor == 1.0 || !std::isfinite(factor))
        return adapted;
    // QFont warns of sizes that are not positive, and cannot tell one beyond int in whole points.
    if (font.pointSizeF() == SIZED_IN_PIXELS) {
        const int pixelSize = KTArithmetic::truncated(factor * font.pixelSize());
        if (pixelSize > 0)
            adapted.setPixelSize(pixelSize);
    } else {
        const double pointSize = factor * font.pointSizeF();
        if (pointSize > 0.0)
            adapted.setPointSizeF(std::min<double>(pointSize, std::numeric_limits<int>::max()));
    }
    return adapted;
}

void KTSpaceMagnitude::fillTable(KTEnumToStringTable<KTSpaceMagnitudeEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
    table->defaultKeyword = ANY_KEYWORD;
    table->defaultValue = KTSpaceMagnitudeAny;
}

QDebug operator<<(QDebug stream, const KTSpaceMagnitude &magnitude)
{
    return stream << QStringLiteral("KTSpaceMagnitude: %1").arg(magnitude.encode());
}
