#pragma once

#include "KTOrderDraft.h"
#include "KTSavedOrders.h"
#include "ktcatalogue_export.h"

#include <QCache>
#include <QVector>

#include <functional>
#include <optional>

/** Why a saved order cannot be ordered as it was saved. */
struct KTCATALOGUE_EXPORT KTOrderProblem
{
    enum class Reason {
        /** There is no such article. */
        UnknownArticle,
        /** See KTOrderRefusal for these three. */
        UnknownKey,
        UnknownValue,
        PageCount,
        /** The MCF has an entry that is no pair of key and value. */
        UnreadableChoice,
        COUNT,
    };

    Reason reason;
    /** A predicate in English about the article: "does not offer 'rde' for 'alcolor'; offered: ...". */
    QString text;

    /** "unknown-article" and the like. */
    static QString name(Reason reason);
};

/** What becomes of a saved order. */
struct KTOrderVerdict
{
    /** Empty for one that can be ordered as it was saved. */
    QVector<KTOrderProblem> problems;
    /** What can be ordered of it, on top of what is preselected; none without the article. */
    std::optional<KTOrderDraft> draft;
    /** What was refused, to find what comes nearest. */
    QVector<KTOrderRefusal> refusals;
};

/**
 * Tells of saved orders whether they can still be ordered.
 *
 * Articles are asked for once and kept, within a limit, for the next orders. One thread at a time.
 */
class KTCATALOGUE_EXPORT KTOrderCheck
{
public:
    using Source = std::function<std::optional<KTArticle>(int articleId)>;

    explicit KTOrderCheck(const Source &source);

    /** Keys that the order leaves out are no problem: they may have come later, and be preselected. */
    [[nodiscard]] KTOrderVerdict check(const KTSavedOrder &order);
    /**
     * The possible order that comes nearest: options and page counts that are like those saved, else what is
     * preselected or offered first. None without the article, or a page count that it can have.
     */
    [[nodiscard]] static std::optional<KTSavedOrder> nearest(const KTSavedOrder &order,
                                                             const KTOrderVerdict &verdict);

private:
    using Draft = std::optional<KTOrderDraft>;

    /** With nothing but what is preselected; valid until the next call. */
    const Draft *draft(int articleId);

    Source mySource;
    QCache<int, Draft> myDrafts;
};
