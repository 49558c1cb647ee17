#include <KTCatalogue.h>

#include <QTextStream>

int main()
{
    QTextStream out(stdout);
    const QString fileName = QStringLiteral(KT_SAMPLE_CATALOGUE);
    //! [catalogue]
    KTCatalogue catalogue(fileName);
    if (catalogue.error().kind != KTCatalogueErrorKind::None) {
        out << "line " << catalogue.error().position.line << ": " << catalogue.error().text << '\n';
        return 2;
    }
    if (const std::optional<KTArticle> article = catalogue.article(7301)) {
        out << article->name() << ", " << article->articleClass().encodeCSV() << ", "
            << article->options().size() << " options\n";
    }
    out << (catalogue.contains(1) ? "1 is" : "1 is not") << " an article\n";
    //! [catalogue]
    return 0;
}
