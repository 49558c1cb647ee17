#include "KTOrderCheck.h"

#include "KTCatalogueText.h"
#include "KTCheckText.h"
#include "KTVariantsText.h"

#include <KTArithmetic.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace {

using Reason = KTOrderProblem::Reason;

/** Options of articles that are kept; an article counts as some more. */
constexpr int MAX_KEPT_OPTIONS = 100000;
constexpr int ARTICLE_COST = 10;

constexpr QChar MCF_SEPARATOR = u',';

constexpr const char *REASON_NAMES[]
    = {"unknown-article", "unknown-key", "unknown-value", "page-count", "unreadable-choice"};

Reason reasonOf(const KTOrderRefusal &refusal)
{
    switch (refusal.reason) {
    case KTOrderRefusal::Reason::UnknownKey:
        return Reason::UnknownKey;
    case KTOrderRefusal::Reason::UnknownValue:
        return Reason::UnknownValue;
    case KTOrderRefusal::Reason::PageCount:
        break;
    }
    return Reason::PageCount;
}

/** The first entry that says nothing; null where all do. */
QString unreadableEntry(const QString &mcf)
{
    if (mcf.isEmpty())
        return QString();
    for (const QString &entry : mcf.split(MCF_SEPARATOR)) {
        if (!KTArticleVariants(entry).isValid())
            return entry.isNull() ? QStringLiteral("") : entry;
    }
    return QString();
}

int nearerOf(const QVector<int> &counts, int wish)
{
    const auto distance = [wish](int count) { return std::abs(qint64(count) - wish); };
    // Of two that are equally near, the higher one has room for everything.
    return *std::min_element(counts.begin(), counts.end(), [&](int first, int second) {
        return distance(first) != distance(second) ? distance(first) < distance(second) : first > second;
    });
}

/** Chooses the option that production takes for the same, if there is one under another key. */
bool chooseSameProduction(KTOrderDraft *draft, const KTOrderRefusal &refusal)
{
    const KTArticleVariants wanted
        = KTVariantsText::production(KTArticleVariants(refusal.key, refusal.value));
    if (!wanted.isValid())
        return false;
    for (const KTConfiguredArticleVariant &option : draft->article().options()) {
        if (KTVariantsText::production(option.toArticleVariants()) == wanted)
            return !draft->choose(option.key(), option.value());
    }
    return false;
}

/** Puts something in place of what was refused; what cannot be replaced is left out. */
void replace(KTOrderDraft *draft, const KTOrderRefusal &refusal)
{
    if (chooseSameProduction(draft, refusal))
        return;
    if (refusal.reason == KTOrderRefusal::Reason::UnknownKey) {
        if (!refusal.nearest.isNull())
            static_cast<void>(draft->choose(refusal.nearest, refusal.value));
        return;
    }
    const bool isPreselected = !draft->choice().value(refusal.key, QString()).isEmpty();
    if (!refusal.nearest.isNull())
        static_cast<void>(draft->choose(refusal.key, refusal.nearest));
    else if (!isPreselected && !refusal.offered.isEmpty())
        static_cast<void>(draft->choose(refusal.key, refusal.offered.constFirst()));
}

} // namespace

QString KTOrderProblem::name(Reason reason)
{
    return QString::fromLatin1(REASON_NAMES[static_cast<int>(reason)]);
}

KTOrderCheck::KTOrderCheck(const Source &source)
    : mySource(source)
    , myDrafts(MAX_KEPT_OPTIONS)
{
}

KTOrderVerdict KTOrderCheck::check(const KTSavedOrder &order)
{
    KTOrderVerdict verdict;
    const Draft *const prepared = draft(order.articleId);
    if (!*prepared) {
        verdict.problems.append({Reason::UnknownArticle, KTCatalogueText::tr("is not in the catalogue")});
        return verdict;
    }
    verdict.draft = *prepared;
    verdict.refusals = verdict.draft->readMCF(order.mcf);
    if (order.pages) {
        if (const auto refusal = verdict.draft->setPages(*order.pages))
            verdict.refusals.append(*refusal);
    }
    for (const KTOrderRefusal &refusal : qAsConst(verdict.refusals))
        verdict.problems.append({reasonOf(refusal), refusal.toString()});
    const QString entry = unreadableEntry(order.mcf);
    if (!entry.isNull())
        verdict.problems.append({Reason::UnreadableChoice,
                                 KTCatalogueText::tr("was saved with %1, which is no key and value")
                                     .arg(KTCheckText::quoted(entry))});
    return verdict;
}

std::optional<KTSavedOrder> KTOrderCheck::nearest(const KTSavedOrder &order, const KTOrderVerdict &verdict)
{
    if (!verdict.draft)
        return std::nullopt;
    KTOrderDraft draft = *verdict.draft;
    for (const KTOrderRefusal &refusal : verdict.refusals) {
        if (refusal.reason != KTOrderRefusal::Reason::PageCount)
            replace(&draft, refusal);
        else if (refusal.nearestPages.isEmpty()
                 || draft.setPages(nearerOf(refusal.nearestPages, refusal.pages)))
            return std::nullopt;
    }
    return KTSavedOrder {order.line, order.articleId, draft.pages(), draft.mcf()};
}

const KTOrderCheck::Draft *KTOrderCheck::draft(int articleId)
{
    if (const Draft *const known = myDrafts.object(articleId))
        return known;
    const std::optional<KTArticle> article = mySource(articleId);
    auto draft = std::make_unique<Draft>();
    if (article)
        draft->emplace(*article);
    // What costs more than all that is kept would not stay; nobody gets an article of so many options to
    // order.
    const int cost
        = std::min(MAX_KEPT_OPTIONS, ARTICLE_COST + (article ? KTArithmetic::sizeOf(article->options()) : 0));
    Draft *const kept = draft.release();
    myDrafts.insert(articleId, kept, cost);
    return kept;
}
