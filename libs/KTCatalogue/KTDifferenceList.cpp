#include "KTDifferenceList.h"

#include "KTCatalogueText.h"
#include "KTCheckText.h"

KTDifference &KTDifferenceList::add(KTDifferenceRule rule, const QString &subject, const QString &message)
{
    return add(rule, subject, message, QString(), QString());
}

KTDifference &KTDifferenceList::add(KTDifferenceRule rule, const QString &subject, const QString &message,
                                    const QString &before, const QString &after)
{
    KTDifference difference;
    difference.rule = rule;
    difference.articleId = myNewer.articleId().id();
    difference.articleName = myNewer.name();
    difference.subject = subject;
    difference.message = message;
    difference.before = before;
    difference.after = after;
    myDifferences.append(difference);
    return myDifferences.last();
}

QString KTDifferenceList::listed(const QStringList &words)
{
    constexpr int MAX_WORDS = 8;
    QStringList first = words.mid(0, MAX_WORDS);
    for (QString &word : first)
        word = KTCheckText::shortened(word);
    const QString text = first.join(QStringLiteral(", "));
    return words.size() <= MAX_WORDS
        ? text
        : KTCatalogueText::tr("%1 and %2 more").arg(text, QString::number(words.size() - MAX_WORDS));
}
