#include "KTRecipe.h"

#include <KTProductBase>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);
    const QDomElement article = sampleArticle(4120);
    //! [classify]
    const KTCoverType cover(article.attribute(QStringLiteral("cover_type")));
    if (cover == KTCoverTypeCalendarSimplex && cover.isSimplex())
        out << cover.encodeCSV() << " is printed on one side\n";

    // One or several kinds in one value: matches() wants a common one, containsAll() wants them all.
    const KTArticleClass kinds(QStringLiteral("book, normal_calendar"));
    if (kinds.matches(KTArticleClassCalendar) && !kinds.containsAll(KTArticleClassCalendar))
        out << kinds.encodeCSV() << ": a calendar among them, but not of each kind\n";

    // An unknown word reads as the default of its table, here as nothing; ask where that matters.
    out << "unknown: " << cover.unknownEntries(QStringLiteral("BOOKLET, PAPER")).join(u'|') << '\n';
    //! [classify]
}
