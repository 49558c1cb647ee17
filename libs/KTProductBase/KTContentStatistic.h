#pragma once

#include "KTPriceClass.h"

#include <QMap>
#include <QMetaType>

class QDebug;

/** What a product holds that is charged: its map and video areas, and the content that was bought. */
class KTPRODUCTBASE_EXPORT KTContentStatistic
{
public:
    /** Nothing that is charged. */
    KTContentStatistic() = default;
    /** Nothing is checked; the map gives the amount of each price class bought. */
    KTContentStatistic(int countGeoMapAreas, int countVideoAreas,
                       const QMap<KTPriceClass, int> &boughtAdditionalContent);
    KTContentStatistic(const KTContentStatistic &other) = default;
    KTContentStatistic(KTContentStatistic &&other) noexcept = default;
    KTContentStatistic &operator=(const KTContentStatistic &other) = default;
    KTContentStatistic &operator=(KTContentStatistic &&other) noexcept = default;
    virtual ~KTContentStatistic();

    /** The number of areas that show a geographic map. */
    int countGeoMapAreas() const { return myCountGeoMapAreas; }
    int countVideoAreas() const { return myCountVideoAreas; }
    /** The amount of each price class bought. */
    QMap<KTPriceClass, int> boughtAdditionalContent() const { return myBoughtAdditionalContent; }

    /**
     * Re-bases the bought amounts when a product changes between its normal and its vario form: every one
     * becomes 10 when only the second flag is set, and 1 when only the first is, whatever it was before.
     * Equal flags change nothing.
     */
    void adaptFromOrToVario(bool first, bool second);

private:
    int myCountGeoMapAreas = 0;
    int myCountVideoAreas = 0;
    QMap<KTPriceClass, int> myBoughtAdditionalContent;
};

Q_DECLARE_METATYPE(KTContentStatistic)
/** Writes the class name and the fields in their order. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTContentStatistic &statistic);
