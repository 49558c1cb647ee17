#pragma once

#include "KTPriceClass.h"

#include <KTSpotColor.h>

#include <QSet>

#include <initializer_list>
#include <type_traits>
#include <utility>

/**
 * Price classes without order and without duplicates, and the catalogue's fixed groups of them.
 *
 * The groups tell what kind of add-on a price class bills. They can be asked from any thread and during
 * static initialisation. Each call returns a copy, which shares the group until it is changed and then leaves
 * it as it is.
 */
class KTPRODUCTBASE_EXPORT KTPriceClassSet : public QSet<KTPriceClass>
{
public:
    KTPriceClassSet() = default;
    /** The one price class, be it empty. */
    KTPriceClassSet(const KTPriceClass &priceClass);
    /** A price class for each code; an empty code gives the empty price class. */
    KTPriceClassSet(std::initializer_list<QString> codes);
    /** A template, so that empty braces still stand for no codes. */
    template <typename T, typename = std::enable_if_t<std::is_same_v<T, KTPriceClass>>>
    KTPriceClassSet(std::initializer_list<T> priceClasses)
        : QSet<KTPriceClass>(priceClasses)
    {
    }
    KTPriceClassSet(const QSet<KTPriceClass> &priceClasses)
        : QSet<KTPriceClass>(priceClasses)
    {
    }
    KTPriceClassSet(QSet<KTPriceClass> &&priceClasses) noexcept
        : QSet<KTPriceClass>(std::move(priceClasses))
    {
    }
    KTPriceClassSet(const KTPriceClassSet &other) = default;
    KTPriceClassSet(KTPriceClassSet &&other) noexcept = default;
    KTPriceClassSet &operator=(const KTPriceClassSet &other) = default;
    KTPriceClassSet &operator=(KTPriceClassSet &&other) noexcept = default;
    virtual ~KTPriceClassSet();

    /** @name Finishings with a spot colour */
    /** @{ */
    static KTPriceClassSet spotColorGloss();
    static KTPriceClassSet spotColorGoldSilver();
    /** Empty: the catalogue has the group, but bills nothing for it. */
    static KTPriceClassSet spotColorSilverInk();
    /** The three groups together. */
    static KTPriceClassSet spotColorAll();
    /** What bills exactly this spot colour; empty for none and for a union of spot colours. */
    static KTPriceClassSet spotColorPriceClasses(const KTSpotColor &color);
    /** @} */

    /** @name Gift boxes */
    /** @{ */
    static KTPriceClassSet bookGiftBoxes();
    static KTPriceClassSet calendarGiftBoxes();
    /** @} */

    /** @name Picture frames */
    /** @{ */
    static KTPriceClass framePassepartout();
    static KTPriceClass frameGlass();
    /** The lamination that takes the place of a glass. */
    static KTPriceClass frameLamination();
    /** Glass and lamination. */
    static KTPriceClassSet frameGlasses();
    /** @} */

    /** @name What hangs or holds a print. The misspelling of "wooden" is part of the API. */
    /** @{ */
    static KTPriceClassSet calendarStrips();
    static KTPriceClassSet posterWoddenStrips();
    static KTPriceClassSet calendarStandPriceClasses();
    /** Strips and stands for calendars. */
    static KTPriceClassSet calendarFrameClasses();
    static KTPriceClassSet wallholderPriceClasses();
    /** @} */

    /** @name Further add-ons. The misspelling of "envelopes" is part of the API. */
    /** @{ */
    static KTPriceClassSet maps();
    static KTPriceClassSet envelops();
    static KTPriceClassSet mattCoverPriceClasses();
    static KTPriceClassSet flyleafPriceClasses();
    /** The design styles that can be bought. */
    static KTPriceClassSet designPriceClasses();
    static KTPriceClassSet videoNames();
    /** @} */

    /** The codes joined by ",", in the set's own order, which may differ between runs. */
    [[nodiscard]] QString toString() const;
};

Q_DECLARE_METATYPE(KTPriceClassSet)

/** Writes each code as a string, in the set's own order and without brackets. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTPriceClassSet &priceClasses);
