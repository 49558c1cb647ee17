#include "KTFuzz.h"
#include "KTTrickle.h"

#include <KTArticle.h>
#include <KTArticleReport.h>
#include <KTArticleSection.h>
#include <KTCatalogueChecker.h>
#include <KTCatalogueReader.h>
#include <KTHtmlWriter.h>
#include <KTOrderDraft.h>

#include <QBuffer>
#include <QJsonDocument>
#include <QXmlStreamReader>

namespace {

struct Reading
{
    int articles = 0;
    KTFileRange last;
    KTCatalogueError error;
};

Reading read(QIODevice *file)
{
    Reading reading;
    KTCatalogueReader reader(file);
    KTCatalogueArticle article;
    while (reader.nextArticle(&article) == KTCatalogueReader::Item::Article) {
        ++reading.articles;
        reading.last = article.elementRange(0);
    }
    reading.error = reader.error();
    return reading;
}

/** A page about the article is well-formed, and nothing in it acts. */
void requireReport(const KTCatalogueArticle &source, const KTArticle &model)
{
    KTReportArticle article;
    article.source = &source;
    article.article = model;
    QBuffer page;
    KT_REQUIRE(page.open(QIODevice::ReadWrite));
    KTHtmlWriter html(&page);
    KTArticleSection(&html, article, QString()).write(QString());
    KT_REQUIRE(!html.hasError() && page.seek(0));
    QXmlStreamReader reader(&page);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            KT_REQUIRE(reader.name() != QLatin1String("script")
                       && !reader.attributes().hasAttribute(QStringLiteral("onclick")));
    }
    KT_REQUIRE(!reader.hasError());
}

/** However the file comes, what is read is the same. */
void requireSamePieces(const QByteArray &text, int piece)
{
    QBuffer whole;
    whole.setData(text);
    KT_REQUIRE(whole.open(QIODevice::ReadOnly));
    KTTrickle pieces(text, piece);
    const Reading first = read(&whole);
    const Reading second = read(&pieces);
    KT_REQUIRE(first.articles == second.articles && first.last.end.offset == second.last.end.offset);
    KT_REQUIRE(first.last.begin.line == second.last.begin.line
               && first.last.begin.column == second.last.begin.column);
    KT_REQUIRE(first.error.kind == second.error.kind && first.error.text == second.error.text);
    KT_REQUIRE(first.error.position.line == second.error.position.line
               && first.error.position.column == second.error.position.column);
}

} // namespace

void KTFuzz::catalogue(Bytes input)
{
    enum Flag { Check = 1, JSON = 2, Boundaries = 4, Pieces = 8 };
    const int question = input.take<uchar>();
    const QList<int> pageCounts = question & Boundaries ? QList<int> {INT_MIN, 0, 1, INT_MAX} : QList<int>();
    const QByteArray text = QByteArray::fromRawData(input.begin, static_cast<int>(input.end - input.begin));
    if (question & Pieces)
        return requireSamePieces(text, 1 + (question >> 4));
    QBuffer file;
    file.setData(text);
    KT_REQUIRE(file.open(QIODevice::ReadOnly));
    KTCatalogueReader reader(&file);
    KTCatalogueArticle article;
    while (reader.nextArticle(&article) == KTCatalogueReader::Item::Article) {
        KT_REQUIRE(reader.error().kind == KTCatalogueErrorKind::None && !article.root().isNull());
        if (question & Check)
            continue;
        const KTArticle model(article);
        if (question & JSON)
            KT_REQUIRE(
                !QJsonDocument::fromJson(KTArticleReport::toJSON(model, pageCounts).toUtf8()).isNull());
        else
            // A terminal gets nothing but lines of visible text.
            for (const QChar character : KTArticleReport::toText(model, pageCounts))
                KT_REQUIRE(character == u'\n' || character.category() != QChar::Other_Control);
        if (question & Boundaries)
            requireReport(article, model);
        for (const int wish : KTTest::INTS)
            use(KTOrderDraft(model).setPages(wish));
    }
    KT_REQUIRE(reader.next(&article) != KTCatalogueReader::Item::Article);
    if (!(question & Check))
        return;

    // The checker reads the same file to the same end, and says what stopped it.
    KT_REQUIRE(file.reset());
    const auto lastLine = text.count('\n') + text.count('\r') + 1;
    int findings = 0;
    KTCatalogueChecker checker([&](const KTFinding &finding) {
        ++findings;
        KT_REQUIRE(finding.range.begin.line >= 1 && finding.range.begin.line <= lastLine);
        KT_REQUIRE(finding.range.begin.column >= 1 && !finding.message.isEmpty());
    });
    KT_REQUIRE(checker.check(QStringLiteral("fuzz.xml"), &file) || findings > 0);
    KT_REQUIRE(reader.error().kind == KTCatalogueErrorKind::None || findings > 0);
}
