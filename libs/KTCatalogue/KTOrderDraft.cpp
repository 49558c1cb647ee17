#include "KTOrderDraft.h"

#include "KTNearestWord.h"
#include "KTVariantsText.h"

#include <KTSpotColor.h>

#include <algorithm>

namespace {

/** The valid page counts below and above a wish that is not valid; none where page counts end before they
 * begin. */
QVector<int> nearestPages(const KTPageCountOrganization &counts, int wish)
{
    const int above = counts.constrain(wish);
    QVector<int> candidates {above};
    if (counts.pageIncrement() != 0) {
        const int last = counts.pagesWithNExtraPackages(std::max(1, counts.numberOfPackages()) - 1);
        const int below = counts.pagesWithNExtraPackages(counts.countPackages(wish));
        candidates = {std::min(below, last), std::min(above, last)};
    }
    QVector<int> nearest;
    for (const int pages : candidates) {
        if (counts.isValidPageCount(pages) && !nearest.contains(pages))
            nearest.append(pages);
    }
    return nearest;
}

std::optional<KTOrderRefusal> refusalOf(const KTConfiguredArticleVariantList &options, const QString &key,
                                        const QString &value)
{
    if (options.contains(KTConfiguredArticleVariant(key, value)))
        return std::nullopt;
    KTOrderRefusal refusal {KTOrderRefusal::Reason::UnknownKey, key, value, 0, options.keys(), {}, {}};
    if (refusal.offered.contains(key)) {
        refusal.reason = KTOrderRefusal::Reason::UnknownValue;
        refusal.offered.clear();
        for (const KTConfiguredArticleVariant &option : options.filter(key))
            refusal.offered.append(option.value());
        refusal.offered.removeDuplicates();
    }
    refusal.nearest = KTNearestWord::find(refusal.reason == KTOrderRefusal::Reason::UnknownKey ? key : value,
                                          refusal.offered);
    return refusal;
}

} // namespace

KTOrderDraft::KTOrderDraft(const KTArticle &article)
    : myArticle(article)
    , myChoice(article.options().defaultVariants())
{
}

std::optional<KTOrderRefusal> KTOrderDraft::choose(const QString &key, const QString &value)
{
    std::optional<KTOrderRefusal> refusal = refusalOf(myArticle.options(), key, value);
    if (!refusal)
        myChoice.insert(key, value);
    return refusal;
}

std::optional<KTOrderRefusal> KTOrderDraft::setPages(int pages)
{
    const KTPageCountOrganization &counts = myArticle.pageCounts();
    if (!counts.isValidPageCount(pages)) {
        return KTOrderRefusal {KTOrderRefusal::Reason::PageCount, QString(), QString(), pages, {}, {},
                               nearestPages(counts, pages)};
    }
    myPages = pages;
    return std::nullopt;
}

QVector<KTOrderRefusal> KTOrderDraft::readMCF(const QString &mcf)
{
    QVector<KTOrderRefusal> refusals;
    const KTArticleVariants saved = KTArticleVariants::createFromMCF(mcf);
    for (const QString &key : saved.keys()) {
        if (const auto refusal = choose(key, saved.value(key, QString())))
            refusals.append(*refusal);
    }
    return refusals;
}

QStringList KTOrderDraft::openKeys() const
{
    QStringList open;
    const QStringList chosen = myChoice.keys();
    for (const QString &key : myArticle.options().keys()) {
        if (!chosen.contains(key))
            open.append(key);
    }
    return open;
}

bool KTOrderDraft::isComplete() const
{
    const bool hasPages = myPages || myArticle.pageCounts().numberOfPackages() <= 1;
    return hasPages && openKeys().isEmpty();
}

QString KTOrderDraft::orderText() const
{
    return KTVariantsText::orderText(myChoice);
}

QString KTOrderDraft::mcf() const
{
    return KTVariantsText::mcf(myChoice);
}

KTArticleVariants KTOrderDraft::production() const
{
    return KTVariantsText::production(myChoice);
}

KTPriceClassSet KTOrderDraft::priceClasses() const
{
    KTPriceClassSet priceClasses;
    if (!myArticle.priceClass().isFree())
        priceClasses.insert(myArticle.priceClass());
    for (const KTConfiguredArticleVariant &option : myArticle.options()) {
        if (option.isNotAccountable() || myChoice.value(option.key(), QString()) != option.value())
            continue;
        for (const KTSpotColorEnum color : KTSpotColor().allKnownEnumValues()) {
            if (option.isSpotColor(color))
                priceClasses.unite(KTPriceClassSet::spotColorPriceClasses(color));
        }
    }
    return priceClasses;
}
