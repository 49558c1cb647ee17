/*
 * A shop in one file: finds an article in a catalogue, takes choices and a page count, and prints what is
 * ordered. What the article does not offer is refused with a reason, and the order stays as it was.
 *
 *     order catalogue.xml 7301 alcolor=gold alcolor=red pages=30
 */
#include <KTCatalogue.h>
#include <KTOrderDraft.h>

#include <QCoreApplication>
#include <QTextStream>

namespace {

/** Makes the wish, "KEY=VALUE" or "pages=N", part of the order; says why not where it cannot. */
std::optional<KTOrderRefusal> apply(const QString &wish, KTOrderDraft *order)
{
    const QString key = wish.section(QLatin1Char('='), 0, 0);
    const QString value = wish.section(QLatin1Char('='), 1);
    return key == QLatin1String("pages") ? order->setPages(value.toInt()) : order->choose(key, value);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    QTextStream out(stdout);
    if (arguments.size() < 3) {
        out << "Usage: order CATALOGUE ARTICLE [KEY=VALUE...] [pages=N]\n";
        return 64;
    }

    KTCatalogue catalogue(arguments.at(1));
    if (catalogue.error().kind != KTCatalogueErrorKind::None) {
        out << "line " << catalogue.error().position.line << ": " << catalogue.error().text << '\n';
        return 2;
    }
    const std::optional<KTArticle> article = catalogue.article(arguments.at(2).toInt());
    if (!article) {
        out << "no article " << arguments.at(2) << '\n';
        return 1;
    }

    KTOrderDraft order(*article);
    for (const QString &wish : arguments.mid(3)) {
        if (const auto refusal = apply(wish, &order))
            out << "refused: article " << article->articleId().toString() << ' ' << refusal->toString()
                << '\n';
    }
    out << "article " << article->articleId().toString() << ", " << article->name() << '\n'
        << "order text: " << order.orderText() << '\n';
    if (order.pages()) {
        out << "spine at " << *order.pages() << " pages: "
            << article->spine()
                   .spineWidth(static_cast<unsigned int>(*order.pages()))
                   .value(KTDistanceUnitMillimeter)
            << " mm\n";
    }
    if (!order.isComplete())
        out << "open: " << order.openKeys().join(QStringLiteral(", ")) << '\n';
    return 0;
}
