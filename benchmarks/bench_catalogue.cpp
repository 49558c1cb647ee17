#include "KTBenchmark.h"

#include <KTArticle.h>
#include <KTArticleReport.h>
#include <KTCatalogueChecker.h>
#include <KTCatalogueReader.h>
#include <KTTerminalText.h>

#include <QBuffer>
#include <QDomDocument>
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

/** Calls the function with each article, as the commands of ktcatalogue read them. */
template <typename FUNCTION>
void forEachArticle(const QByteArray &catalogue, FUNCTION function)
{
    QBuffer buffer;
    buffer.setData(catalogue);
    buffer.open(QIODevice::ReadOnly);
    KTCatalogueReader reader(&buffer);
    KTCatalogueArticle article;
    while (reader.nextArticle(&article) == KTCatalogueReader::Item::Article)
        function(article);
}

/** Looks for an article that is not there, so that all of them are asked. */
void findNone(const QByteArray &catalogue)
{
    QBuffer buffer;
    buffer.setData(catalogue);
    buffer.open(QIODevice::ReadOnly);
    KTCatalogueReader reader(&buffer);
    reader.setFilter([](const KTXMLElement &article) { return KTArticleId::findId(article).id() == -1; });
    KTCatalogueArticle article;
    while (reader.nextArticle(&article) == KTCatalogueReader::Item::Article) { }
}

/** Finds nothing, which is what takes the longest. */
void check(const QByteArray &catalogue)
{
    QBuffer buffer;
    buffer.setData(catalogue);
    buffer.open(QIODevice::ReadOnly);
    KTCatalogueChecker checker(
        [](const KTFinding &finding) { KTBenchmark::require(false, finding.message); });
    checker.check(QString(), &buffer);
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
    static QDomDocument document;
    require(document.setContent(catalogue), QStringLiteral("a catalogue in XML"));
    for (QDomElement article = document.documentElement().firstChildElement(); !article.isNull();
         article = article.nextSiblingElement())
        articles.append(article);
    const KTArticle model(articles.first());
    require(model.options().size() == 12 && model.classifications().size() == 8 && model.hasSpine()
                && model.pageCounts().isConsistent() && model.pages().size() == 2
                && model.barcodes().size() == 2,
            QStringLiteral("what an article holds"));

    const auto count = static_cast<std::size_t>(articles.size());
    addPass("bare walk", count, [] { walk(catalogue); });
    addPass("read", count, [] {
        forEachArticle(catalogue,
                       [](const KTCatalogueArticle &article) { benchmark::DoNotOptimize(&article); });
    });
    addPass("find one", count, [] { findNone(catalogue); });
    addPass("read all", count, [] {
        forEachArticle(catalogue, [](const KTCatalogueArticle &article) {
            benchmark::DoNotOptimize(KTArticle(article));
        });
    });
    addPass("check", count, [] { check(catalogue); });
    addPass("show", count, [] {
        forEachArticle(catalogue, [](const KTCatalogueArticle &article) {
            benchmark::DoNotOptimize(KTArticleReport::toText(KTArticle(article), {}));
        });
    });
    addPass("show as JSON", count, [] {
        forEachArticle(catalogue, [](const KTCatalogueArticle &article) {
            benchmark::DoNotOptimize(KTArticleReport::toJSON(KTArticle(article), {}));
        });
    });
    addOverInputs(WORK + "model of a DOM", articles,
                  [](const QDomElement &article) { return KTArticle(article); });

    static const QStringList reports {KTArticleReport::toJSON(model, {}).left(1000)};
    const QString &report = reports.first();
    require(report.size() == 1000 && KTTerminalText::escapedJson(report) == report,
            QStringLiteral("a text with nothing to escape"));
    addOverInputs("make 1,000 characters visible/library", reports,
                  [](const QString &text) { return KTTerminalText::escapedJson(text); });
}
