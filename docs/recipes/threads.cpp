#include <KTCatalogue.h>

#include <QTextStream>

#include <future>
#include <vector>

int main()
{
    QTextStream out(stdout);
    KTCatalogue catalogue(QStringLiteral(KT_SAMPLE_CATALOGUE));
    //! [threads]
    // The catalogue stays with its thread; an article never changes, so any thread may have a copy.
    const KTArticle article = catalogue.article(7301).value_or(KTArticle());
    std::vector<std::future<double>> widths;
    for (const unsigned int pages : {26U, 58U, 90U}) {
        widths.push_back(std::async(std::launch::async, [article, pages] {
            return article.spine().spineWidth(pages).value(KTDistanceUnitMillimeter);
        }));
    }
    for (std::future<double> &width : widths)
        out << width.get() << " mm\n";
    //! [threads]
}
