#include "KTPageCountChecker.h"

#include "KTArticle.h"
#include "KTCatalogueText.h"
#include "KTCheckText.h"

#include <KTXMLParser.h>

#include <algorithm>
#include <limits>

namespace {

using Id = KTAttributeId;

constexpr Id PAGE_COUNT_IDS[]
    = {Id::ArticlePages, Id::ArticleMaxPages, Id::ArticlePageStep, Id::ArticlePieces};

} // namespace

void KTPageCountChecker::begin(const KTElementCursor &article)
{
    myPageCounts = KTArticle::readPageCounts(article.element());
    mySpinePageCounts = KTPageCountOrganization::createFromProductsXML(article.element());
}

void KTPageCountChecker::checkArticle(KTElementCursor *cursor) const
{
    if (KTArticleId::findId(cursor->element()).isAdventCalendarWithDoorBackPrint()) {
        for (const Id id : PAGE_COUNT_IDS) {
            if (cursor->has(id)) {
                cursor->report(
                    KTRule::IgnoredAttribute,
                    KTCatalogueText::tr(
                        "the application does not read '%1' here: this calendar always has %2 pages")
                        .arg(KTCatalogueFormat::attributeName(id))
                        .arg(myPageCounts.minPages()),
                    cursor->attribute(id));
            }
        }
        return;
    }
    if (cursor->has(Id::ArticlePieces)
        && KTArticleClass(cursor->value(Id::ArticleClass).toString()).matches(KTArticleClassPictureBox)) {
        cursor->report(
            KTRule::IgnoredAttribute,
            KTCatalogueText::tr("the application reads the page counts of a picture box without 'pieces': %1")
                .arg(KTCheckText::text(myPageCounts)),
            cursor->attribute(Id::ArticlePieces));
    }
    if (std::any_of(std::begin(PAGE_COUNT_IDS), std::end(PAGE_COUNT_IDS),
                    [cursor](Id id) { return cursor->has(id); }))
        checkRange(cursor);
}

void KTPageCountChecker::checkRange(KTElementCursor *cursor) const
{
    constexpr int HIGHEST = std::numeric_limits<int>::max();
    const int min = myPageCounts.minPages();
    const int max = myPageCounts.maxPages();
    const int step = myPageCounts.pageIncrement();
    // Put into words only for what is reported.
    const auto counts = [this] {
        return KTCatalogueText::tr("the page counts are %1%2")
            .arg(KTCheckText::text(myPageCounts),
                 myPageCounts.isValid() ? QString() : KTCatalogueText::tr(", which is not valid"));
    };
    const auto wish = [this, max] {
        return KTCatalogueText::tr("; a wish for %1 pages becomes %2")
            .arg(max)
            .arg(myPageCounts.constrain(max));
    };
    const int stepOrUpper = cursor->firstOf({Id::ArticlePageStep, Id::ArticleMaxPages, Id::ArticlePages});
    if (min < 1 || max < 1) {
        cursor->report(KTRule::PageCountRange, counts() + KTCatalogueText::tr("; they begin at 1"),
                       cursor->firstOf({Id::ArticlePages, Id::ArticlePieces, Id::ArticleMaxPages}));
    } else if (cursor->has(Id::ArticlePieces) && (min == HIGHEST || max == HIGHEST)) {
        cursor->report(
            KTRule::PageCountRange,
            KTCatalogueText::tr("'pages' times 'pieces' is too large, so the application cuts it off; ")
                + counts(),
            cursor->attribute(Id::ArticlePieces));
    } else if (min > max) {
        cursor->report(KTRule::PagesInverted, counts() + wish(),
                       cursor->firstOf({Id::ArticleMaxPages, Id::ArticlePages}));
    } else if (step < 0) {
        cursor->report(KTRule::NegativePageStep, counts() + wish(), cursor->attribute(Id::ArticlePageStep));
    } else if (step == 0 && min < max) {
        cursor->report(KTRule::NoPageStep, counts() + wish(), stepOrUpper);
    } else if (min < max && !myPageCounts.isConsistent()) {
        const int last = myPageCounts.pagesWithNExtraPackages(myPageCounts.numberOfPackages() - 1);
        cursor->report(KTRule::UnevenPageStep,
                       counts() + KTCatalogueText::tr(", but the last one offered is %1").arg(last) + wish()
                           + KTCatalogueText::tr(", which exceeds the maximum"),
                       stepOrUpper);
    }
}

void KTPageCountChecker::checkSpine(KTElementCursor *cursor) const
{
    const QStringView packages = cursor->value(Id::SpinePackagesPerBlock);
    if (mySpinePageCounts.pageIncrement() != 0 || KTXMLParser::parseInt(packages).value_or(0) == 0)
        return;
    cursor->report(
        KTRule::SpineWithoutStep,
        KTCatalogueText::tr(
            "a block has %1 packages of pages, but the article has no 'page_step'; the spine never "
            "grows")
            .arg(packages.toString()),
        cursor->attribute(Id::SpinePackagesPerBlock));
}
