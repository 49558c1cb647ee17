#include <KTArticle.h>
#include <KTCatalogueReader.h>

#include <QFile>

#include <cstdio>

/** Reads every article of a catalogue, one after the other, and does nothing with it. */
int main(int argc, char *argv[])
{
    QFile file(QString::fromLocal8Bit(argc == 2 ? argv[1] : ""));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fputs("usage: read_catalogue FILE\n", stderr);
        return 64;
    }
    KTCatalogueReader reader(&file);
    KTCatalogueArticle article;
    while (reader.nextArticle(&article) == KTCatalogueReader::Item::Article)
        const KTArticle content(article);
    return reader.error().kind == KTCatalogueErrorKind::None ? 0 : 2;
}
