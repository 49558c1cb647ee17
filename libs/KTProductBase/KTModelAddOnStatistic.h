#pragma once

#include "KTArticleVariants.h"
#include "KTContentStatistic.h"
#include "KTPriceClassSet.h"

#include <QMetaType>

class QDebug;

/** The chargeable content of a product together with the add-ons chosen for the product as a whole. */
class KTPRODUCTBASE_EXPORT KTModelAddOnStatistic
{
public:
    /** No content; videos are billed by "VDO1", and there are no further add-ons. */
    KTModelAddOnStatistic();
    /** Videos are billed by "VDO1"; there are no further add-ons. */
    KTModelAddOnStatistic(const KTContentStatistic &contentStatistic);
    KTModelAddOnStatistic(const KTContentStatistic &contentStatistic, const KTPriceClass &videoAddOn,
                          const KTPriceClass &spotColorAddOn);
    KTModelAddOnStatistic(const KTModelAddOnStatistic &other) = default;
    KTModelAddOnStatistic(KTModelAddOnStatistic &&other) noexcept = default;
    KTModelAddOnStatistic &operator=(const KTModelAddOnStatistic &other) = default;
    KTModelAddOnStatistic &operator=(KTModelAddOnStatistic &&other) noexcept = default;
    virtual ~KTModelAddOnStatistic();

    KTContentStatistic contentStatistic() const { return myContentStatistic; }
    int countGeoMapAreas() const { return myContentStatistic.countGeoMapAreas(); }
    int countVideoAreas() const { return myContentStatistic.countVideoAreas(); }
    /** KTContentStatistic::boughtAdditionalContent(). */
    QMap<KTPriceClass, int> additionalContent() const { return myContentStatistic.boughtAdditionalContent(); }
    /** What bills the videos. */
    KTPriceClass videoAddOn() const { return myVideoAddOn; }
    /** What bills the finishing with a spot colour; empty without one. */
    KTPriceClass spotColorAddOn() const { return mySpotColorAddOn; }
    /** What bills the flyleaf; empty without one. */
    KTPriceClass flyLeafAddOn() const { return myFlyLeafAddOn; }
    /** The options of the flyleaf. */
    KTArticleVariants flyLeafVariants() const { return myFlyLeafVariants; }
    /** The design styles that were bought. */
    KTPriceClassSet designStyleAddOns() const { return myDesignStyleAddOns; }

    void setVideoAddOn(const KTPriceClass &priceClass) { myVideoAddOn = priceClass; }
    void setSpotColorAddOn(const KTPriceClass &priceClass) { mySpotColorAddOn = priceClass; }
    /** Replaces both, because the options are those of the flyleaf that is billed. */
    void setFlyLeafAddOn(const KTPriceClass &priceClass, const KTArticleVariants &variants);
    void setDesignStyleAddOns(const KTPriceClassSet &priceClasses) { myDesignStyleAddOns = priceClasses; }

private:
    KTContentStatistic myContentStatistic;
    KTPriceClass myVideoAddOn;
    KTPriceClass mySpotColorAddOn;
    KTPriceClass myFlyLeafAddOn;
    KTArticleVariants myFlyLeafVariants;
    KTPriceClassSet myDesignStyleAddOns;
};

Q_DECLARE_METATYPE(KTModelAddOnStatistic)
/** Writes the class name and the fields in their order. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTModelAddOnStatistic &statistic);
