#include <KTCatalogue.h>
#include <KTOrderDraft.h>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);
    KTCatalogue catalogue(QStringLiteral(KT_SAMPLE_CATALOGUE));
    const KTArticle article = catalogue.article(7301).value_or(KTArticle());
    //! [draft]
    KTOrderDraft order(article);
    if (const auto refusal = order.choose(QStringLiteral("alcolor"), QStringLiteral("rde")))
        out << "refused: " << refusal->toString() << '\n';
    if (const auto refusal = order.setPages(31))
        out << "refused: " << refusal->toString() << '\n';

    if (!order.choose(QStringLiteral("alcolor"), QStringLiteral("red")) && !order.setPages(30))
        out << order.orderText() << '\n';
    if (!order.isComplete())
        out << "still open: " << order.openKeys().join(u' ') << '\n';
    //! [draft]
}
