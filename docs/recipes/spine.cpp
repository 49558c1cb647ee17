#include "KTRecipe.h"

#include <KTProductBase>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);
    const QDomElement article = sampleArticle(7301);
    //! [spine]
    const KTSpineConfig spine = KTSpineConfig::createFromProductsXML(article);
    for (const unsigned int pages : {26U, 42U, 154U})
        out << pages << " pages: " << spine.spineWidth(pages).value(KTDistanceUnitMillimeter) << " mm\n";
    //! [spine]
}
