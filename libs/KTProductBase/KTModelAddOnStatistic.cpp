#include "KTModelAddOnStatistic.h"

#include <QDebug>

#include <KTStringLiteral.h>

namespace {
constexpr KTStringLiteral DEFAULT_VIDEO_ADD_ON = "VDO1";
}

KTModelAddOnStatistic::KTModelAddOnStatistic()
    : KTModelAddOnStatistic(KTContentStatistic())
{
}

KTModelAddOnStatistic::KTModelAddOnStatistic(const KTContentStatistic &contentStatistic)
    : KTModelAddOnStatistic(contentStatistic, KTPriceClass(DEFAULT_VIDEO_ADD_ON), KTPriceClass())
{
}

KTModelAddOnStatistic::KTModelAddOnStatistic(const KTContentStatistic &contentStatistic,
                                             const KTPriceClass &videoAddOn,
                                             const KTPriceClass &spotColorAddOn)
    : myContentStatistic(contentStatistic)
    , myVideoAddOn(videoAddOn)
    , mySpotColorAddOn(spotColorAddOn)
{
}

KTModelAddOnStatistic::~KTModelAddOnStatistic() = default;

void KTModelAddOnStatistic::setFlyLeafAddOn(const KTPriceClass &priceClass, const KTArticleVariants &variants)
{
    myFlyLeafAddOn = priceClass;
    myFlyLeafVariants = variants;
}

QDebug operator<<(QDebug stream, const KTModelAddOnStatistic &statistic)
{
    return stream << "KTModelAddOnStatistic:" << statistic.contentStatistic() << statistic.videoAddOn()
                  << statistic.spotColorAddOn() << statistic.flyLeafAddOn() << statistic.flyLeafVariants()
                  << statistic.designStyleAddOns();
}
