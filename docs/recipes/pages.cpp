#include "KTRecipe.h"

#include <KTProductBase>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);
    const QDomElement article = sampleArticle(7301);
    //! [pages]
    const auto counts = KTPageCountOrganization::createFromProductsXML(article);
    out << counts.minPages() << " to " << counts.maxPages() << " pages in steps of " << counts.pageIncrement()
        << ": " << counts.numberOfPackages() << " page counts\n";

    // A wish becomes a count that can be made: the next step, or the nearer end.
    for (const int wish : {30, 31, 1000}) {
        if (!counts.isValidPageCount(wish))
            out << wish << " becomes " << counts.constrain(wish) << '\n';
    }
    //! [pages]
}
