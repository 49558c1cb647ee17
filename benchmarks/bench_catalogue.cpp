#include "KTBenchmark.h"

#include <KTArticleModel.h>
#include <KTArticleReport.h>
#include <KTCatalogueReader.h>
#include <KTTerminalText.h>

#include <QBuffer>
#include <QFile>
#include <QJsonDocument>
#include <QVector>
#include <QXmlStreamReader>

namespace {

const std::string WORK = "an article of a catalogue/";

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    KTBenchmark::require(file.open(QIODevice::ReadOnly), path);
    return file.readAll();
}

/** Calls the function with each article as the library reads it, an element of a fragment of its own. */
template <typename FUNCTION>
void forEachFragment(const QByteArray &catalogue, FUNCTION function)
{
    QBuffer buffer;
    buffer.setData(catalogue);
    buffer.open(QIODevice::ReadOnly);
    KTCatalogueReader reader(&buffer);
    KTCatalogueArticle article;
    while (reader.readNext(&article))
        function(article.element());
}

/** Reads on to the end and does nothing else. */
void walk(const QByteArray &catalogue)
{
    QXmlStreamReader reader(catalogue);
    reader.setNamespaceProcessing(false);
    while (!reader.atEnd())
        reader.readNext();
}

/** Adds a way through the whole catalogue; an operation is one article of it. */
template <typename WAY>
void addPass(const std::string &contender, std::size_t articles, WAY way)
{
    KTBenchmark::add(WORK + contender, articles, [articles, way](std::size_t count) {
        for (std::size_t round = count / articles; round > 0; --round)
            way();
    });
}

} // namespace

void KTBenchmark::addCatalogue()
{
    static const QByteArray catalogue = fileContent(QStringLiteral(KT_BENCH_CATALOGUE));
    static QVector<QDomElement> articles;
    forEachFragment(catalogue, [](const QDomElement &article) { articles.append(article); });
    const KTArticleModel model(articles.first());
    require(model.options.size() == 12 && model.classifications.size() == 8 && model.hasSpine
                && model.pageCounts.isConsistent() && model.pages.size() == 2 && model.barcodes.size() == 2,
            QStringLiteral("what an article holds"));

    const auto count = static_cast<std::size_t>(articles.size());
    addPass("bare walk", count, [] { walk(catalogue); });
    addPass("fragment", count, [] {
        forEachFragment(catalogue, [](const QDomElement &article) { benchmark::DoNotOptimize(article); });
    });
    addOverInputs(WORK + "model", articles,
                  [](const QDomElement &article) { return KTArticleModel(article); });

    static const QStringList reports {
        QString::fromUtf8(QJsonDocument(KTArticleReport::toJSON(model, {})).toJson()).left(1000)};
    const QString &report = reports.first();
    require(report.size() == 1000 && KTTerminalText::visibleJson(report) == report,
            QStringLiteral("a text with nothing to escape"));
    addOverInputs("make 1,000 characters visible/library", reports,
                  [](const QString &text) { return KTTerminalText::visibleJson(text); });
}
