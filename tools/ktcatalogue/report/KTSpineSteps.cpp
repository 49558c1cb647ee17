#include "KTSpineSteps.h"

#include <KTArticle.h>
#include <KTDistanceUnit.h>

#include <algorithm>

KTSpineSteps::KTSpineSteps(const KTArticle &article)
{
    const KTPageCountOrganization &counts = article.pageCounts();
    const qint64 all = std::max(1, counts.numberOfPackages());
    const qint64 looked = std::min<qint64>(all, MAX_COUNTS);
    isSampled = looked < all;
    for (qint64 i = 0; i < looked; ++i) {
        const qint64 packages = looked == 1 ? 0 : i * (all - 1) / (looked - 1);
        const int pages = counts.pagesWithNExtraPackages(static_cast<int>(packages));
        const double width = article.spine()
                                 .spineWidth(static_cast<unsigned int>(std::max(0, pages)))
                                 .value(KTDistanceUnitMillimeter);
        // The same blocks give the same number.
        if (!steps.isEmpty() && steps.constLast().millimeters == width)
            steps.last().last = pages;
        else
            steps.append({pages, pages, width});
    }
}
