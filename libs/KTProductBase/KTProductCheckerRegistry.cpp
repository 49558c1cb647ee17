#include "KTProductCheckerRegistry.h"

#include "KTProductChecker.h"

#include <QMutexLocker>

KTProductCheckerRegistry::KTProductCheckerRegistry() = default;
KTProductCheckerRegistry::~KTProductCheckerRegistry() = default;

void KTProductCheckerRegistry::registerChecker(KTProductChecker *checker)
{
    if (checker)
        myCheckers.append(checker);
    clearCaches();
}

void KTProductCheckerRegistry::unregisterChecker(KTProductChecker *checker)
{
    myCheckers.removeAll(checker);
    clearCaches();
}

void KTProductCheckerRegistry::clearCaches()
{
    myCache.clear();
    ++myGeneration;
}

bool KTProductCheckerRegistry::isValid(const KTProductType &type, KTProductCheckerType checkerType) const
{
    // Held over the evaluation, so that threads with the same question ask the checkers once; recursive,
    // because a checker may ask again.
    const QMutexLocker locker(&myMutex);
    const QPair<KTProductType, KTProductCheckerType> question(type, checkerType);
    const auto remembered = myCache.constFind(question);
    if (remembered != myCache.constEnd())
        return *remembered;
    // The iterator is not used again: what a checker asks changes the cache.
    const quint32 generation = myGeneration;
    const bool valid = isValidWorker(type, checkerType);
    // Not remembered when a checker changed the registration meanwhile: that invalidates every answer.
    if (generation == myGeneration)
        myCache.insert(question, valid);
    return valid;
}

bool KTProductCheckerRegistry::isValidWorker(const KTProductType &type,
                                             KTProductCheckerType checkerType) const
{
    return allAgree(checkerType,
                    [&type](KTProductChecker *checker) { return checker->checkProductType(type); });
}

bool KTProductCheckerRegistry::isValidBoxStyle(const KTProductType &type, const KTArticleVariants &variants,
                                               KTProductCheckerType checkerType) const
{
    return allAgree(checkerType, [&type, &variants](KTProductChecker *checker) {
        return checker->checkBoxStyle(type, variants);
    });
}

template <typename Question>
bool KTProductCheckerRegistry::allAgree(KTProductCheckerType checkerType, Question question) const
{
    // A copy, because a checker may change the registration while it is asked; who is gone is not asked.
    const QList<KTProductChecker *> checkers = myCheckers;
    for (KTProductChecker *const checker : checkers) {
        if (!myCheckers.contains(checker))
            continue;
        if ((checker->checkerType() & checkerType) && !question(checker))
            return false;
    }
    return true;
}
