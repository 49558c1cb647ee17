#include <KTArticleId>
#include <KTConfiguredArticleVariantList.h>
#include <KTEnumWrapper.h>
#include <KTSpotColor>
#include <KTXMLParser>

#include <QDomDocument>

bool hasEveryLibrary();

int main()
{
    QDomDocument document;
    document.setContent(
        QStringLiteral("<article art_id='7301'><forms>"
                       "<form key='alcolor' value='gold' preselected='1'/></forms></article>"));
    const QDomElement article = document.documentElement();
    const KTConfiguredArticleVariantList options(article);
    const bool works = KTArticleId::findId(article) == 7301
        && options.defaultVariants().toOrderTxt() == QStringLiteral("alcolor:gold")
        && options.first().isSpotColor(KTSpotColor(QStringLiteral("GOLD")));
    return works && hasEveryLibrary() ? 0 : 1;
}
