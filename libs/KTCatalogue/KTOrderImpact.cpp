#include "KTOrderImpact.h"

KTOrderImpact::KTOrderImpact(const KTOrderCheck::Source &older, const KTOrderCheck::Source &newer,
                             const QVector<KTDifference> &differences)
    : myOlder(older)
    , myNewer(newer)
    , myHits(differences.size())
{
    for (int i = 0; i < differences.size(); ++i) {
        const KTDifference &difference = differences.at(i);
        const KTDifferenceReach reach = KTDifferenceRules::row(difference.rule).reach;
        if (reach == KTDifferenceReach::None)
            continue;
        myHits[i] = 0;
        Article &article = myArticles[difference.articleId];
        switch (reach) {
        case KTDifferenceReach::All:
            article.all.append(i);
            break;
        case KTDifferenceReach::WithPages:
            article.pages.append(i);
            break;
        case KTDifferenceReach::WithKey:
            article.withKey[difference.key].append(i);
            break;
        case KTDifferenceReach::WithoutKey:
            article.withoutKey[difference.key].append(i);
            break;
        case KTDifferenceReach::WithOption:
            article.withOption[difference.key][difference.value].append(i);
            break;
        case KTDifferenceReach::None:
            break;
        }
    }
}

KTOrderImpact::Outcome KTOrderImpact::add(const KTSavedOrder &order)
{
    const KTOrderVerdict before = myOlder.check(order);
    Outcome outcome {before.problems.isEmpty(), myNewer.check(order)};
    ++myOrders;
    myRefusedBefore += outcome.wasFine ? 0 : 1;
    myBroken += outcome.isBroken() ? 1 : 0;
    const auto article = myArticles.constFind(order.articleId);
    if (article != myArticles.constEnd() && before.draft)
        count(*article, order, before, outcome.verdict);
    return outcome;
}

std::optional<qint64> KTOrderImpact::hits(int difference) const
{
    return myHits.at(difference);
}

void KTOrderImpact::count(const Article &article, const KTSavedOrder &order, const KTOrderVerdict &before,
                          const KTOrderVerdict &after)
{
    addTo(article.all, 1);
    if (!article.pages.isEmpty() && order.pages && before.draft->pages()
        && !(after.draft && after.draft->pages()))
        addTo(article.pages, 1);
    if (!article.withKey.isEmpty() || !article.withoutKey.isEmpty()) {
        const KTArticleVariants saved = KTArticleVariants::createFromMCF(order.mcf);
        // Those without a key are all but those with it.
        for (const QVector<int> &differences : article.withoutKey)
            addTo(differences, 1);
        for (const QString &key : saved.keys()) {
            addTo(article.withKey.value(key), 1);
            addTo(article.withoutKey.value(key), -1);
        }
    }
    if (article.withOption.isEmpty())
        return;
    const KTArticleVariants &chosen = before.draft->choice();
    for (const QString &key : chosen.keys())
        addTo(article.withOption.value(key).value(chosen.value(key, QString())), 1);
}

void KTOrderImpact::addTo(const QVector<int> &differences, qint64 number)
{
    for (const int difference : differences)
        *myHits[difference] += number;
}
