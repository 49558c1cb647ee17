#pragma once

#include "KTArticle.h"
#include "KTDifference.h"

#include <QStringList>
#include <QVector>

/** Two versions of an article and what was found between them. Not part of the library's interface. */
class KTDifferenceList
{
public:
    KTDifferenceList(const KTArticle &older, const KTArticle &newer)
        : myOlder(older)
        , myNewer(newer)
    {
    }

    const KTArticle &older() const { return myOlder; }
    const KTArticle &newer() const { return myNewer; }
    const QVector<KTDifference> &differences() const { return myDifferences; }

    /** The new entry, about the article as a whole, for what else there is to say. Valid until the next. */
    KTDifference &add(KTDifferenceRule rule, const QString &subject, const QString &message);
    /** The same with the two states. */
    KTDifference &add(KTDifferenceRule rule, const QString &subject, const QString &message,
                      const QString &before, const QString &after);

    /** The words, of many only the first ones and how many more there are. */
    static QString listed(const QStringList &words);

private:
    const KTArticle &myOlder;
    const KTArticle &myNewer;
    QVector<KTDifference> myDifferences;
};
