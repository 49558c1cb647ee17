#pragma once

#include "KTArticleVariants.h"
#include "KTProductCheckerType.h"
#include "KTProductType.h"

#include <KTSingleton.h>

#include <QHash>
#include <QList>
#include <QPair>
#include <QRecursiveMutex>

class KTProductChecker;

/**
 * Asks the registered checkers about a product type: it is valid unless one of them objects.
 *
 * The checkers that share a bit with the asked checker type are asked in the order of their registration, up
 * to the first that objects; where there is none to ask, everything is valid. isValid() may be called from
 * any thread; everything else takes no lock, and nothing may run beside it on another thread.
 */
class KTPRODUCTBASE_EXPORT KTProductCheckerRegistry : public KTSingleton<KTProductCheckerRegistry>
{
public:
    KTProductCheckerRegistry();
    ~KTProductCheckerRegistry() override;

    /**
     * Adds the checker, which stays the caller's; one that is added twice is asked twice, and a null one is
     * ignored. Forgets all answers. A checker that is added while another one is asked counts from the next
     * question on.
     */
    void registerChecker(KTProductChecker *checker);
    /** Removes the checker wherever it was added; its owner does so before deleting it. Forgets all answers.
     */
    void unregisterChecker(KTProductChecker *checker);
    /** Forgets all answers; needed when a checker would answer differently from now on. */
    void clearCaches();

    /**
     * The answer, from memory where the question was asked before; otherwise the checkers are asked under the
     * lock, see KTProductChecker for what they must not do. When a checker throws, so does this, and
     * nothing is remembered; nor is it when a checker has changed the registration or cleared the caches.
     */
    bool isValid(const KTProductType &type, KTProductCheckerType checkerType) const;
    /** The answer without memory and without lock. */
    bool isValidWorker(const KTProductType &type, KTProductCheckerType checkerType) const;
    /** The answer for a product type with options of its box; without memory and without lock. */
    bool isValidBoxStyle(const KTProductType &type, const KTArticleVariants &variants,
                         KTProductCheckerType checkerType) const;

private:
    template <typename Question>
    bool allAgree(KTProductCheckerType checkerType, Question question) const;

    QList<KTProductChecker *> myCheckers;
    mutable QRecursiveMutex myMutex;
    mutable QHash<QPair<KTProductType, KTProductCheckerType>, bool> myCache;
    /** Counts how often the answers became invalid. */
    quint32 myGeneration = 0;
};
