#include "KTRecipe.h"

#include <KTProductBase>
#include <KTVariantsText>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);
    const QDomElement article = sampleArticle(7301);
    //! [order]
    const KTConfiguredArticleVariantList options(article);
    KTArticleVariants choice = options.defaultVariants();

    const KTArticleVariants red(KTArticleVariants::coverColorKeyName(), QStringLiteral("red"));
    if (options.contains(red))
        choice.insert(red);
    choice.insert(QStringLiteral("giftboxcolor;boxstyle"), QStringLiteral("black;magnet"));

    // The same as choice.toMCF() and choice.toOrderTxt(), but with the pairs in the order of their keys.
    const QString mcf = KTVariantsText::mcf(choice);
    out << mcf << '\n' << KTVariantsText::orderText(choice) << '\n';
    out << (KTArticleVariants::createFromMCF(mcf) == choice ? "reads back" : "is another choice") << '\n';
    //! [order]
}
