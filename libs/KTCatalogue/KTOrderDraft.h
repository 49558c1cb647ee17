#pragma once

#include "KTArticle.h"
#include "KTOrderRefusal.h"
#include "ktcatalogue_export.h"

#include <KTArticleVariants.h>
#include <KTPriceClassSet.h>

#include <QMetaType>
#include <QVector>

#include <optional>

/**
 * An order of one article on its way: the options chosen and the page count, neither of which is ever one
 * that the article does not offer.
 *
 * A value class; a refusal leaves it as it was.
 */
class KTCATALOGUE_EXPORT KTOrderDraft
{
public:
    /** Starts from the preselected options; of several of one key the last one counts. */
    explicit KTOrderDraft(const KTArticle &article = KTArticle());

    const KTArticle &article() const { return myArticle; }
    const KTArticleVariants &choice() const { return myChoice; }
    /** The page count; none until one is set. */
    std::optional<int> pages() const { return myPages; }

    /** Chooses an option in place of the key's present one. */
    [[nodiscard]] std::optional<KTOrderRefusal> choose(const QString &key, const QString &value);
    [[nodiscard]] std::optional<KTOrderRefusal> setPages(int pages);
    /**
     * Takes over a choice that was saved as MCF, on top of the present one. What is no longer offered is left
     * out and handed back, in the order of the keys.
     */
    [[nodiscard]] QVector<KTOrderRefusal> readMCF(const QString &mcf);

    /** The keys that the article offers and nothing is chosen for, sorted. */
    [[nodiscard]] QStringList openKeys() const;
    /** True when every key has its choice, and a page count is set where there is more than one to choose. */
    bool isComplete() const;

    /** @name The texts of the choice, the pairs in the order of their keys, so that they can be compared. */
    /** @{ */
    [[nodiscard]] QString orderText() const;
    [[nodiscard]] QString mcf() const;
    /** The production form, in which compound options are expanded; the later key wins where two collide. */
    [[nodiscard]] KTArticleVariants production() const;
    /** @} */

    /**
     * The codes under which the order is billed, as far as article and options tell: the article's own price
     * class unless it is free, and the codes of each chosen spot colour that is charged, of which the price
     * list takes the one that fits the article.
     */
    [[nodiscard]] KTPriceClassSet priceClasses() const;

private:
    KTArticle myArticle;
    KTArticleVariants myChoice;
    std::optional<int> myPages;
};

Q_DECLARE_METATYPE(KTOrderDraft)
