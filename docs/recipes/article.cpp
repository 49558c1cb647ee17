#include "KTRecipe.h"

#include <KTProductBase>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);
    const QDomElement article = sampleArticle(7301);
    //! [article]
    const KTArticleId id = KTArticleId::findId(article);
    const KTProductType type = KTProductType::fromMcf(article);
    out << id.toString() << " is of the product type " << type.orderTxtName() << '\n';

    // A reader never fails: what is missing or malformed takes its default, and isValid() says so.
    const KTArticleId none = KTArticleId::findId(QDomElement());
    out << none.toString() << (none.isValid() ? " names" : " does not name") << " an article\n";
    //! [article]
}
