#include "KTPreviewModel.h"
#include "KTPreviewWriter.h"
#include "KTTestSupport.h"

#include <KTCatalogue.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QXmlStreamReader>

namespace {

const QString SOURCE = QStringLiteral(KT_SOURCE_DIR);
const QString SAMPLE = SOURCE + QStringLiteral("/examples/catalogue.xml");
const QString EXPECTED = QStringLiteral(KT_TEST_DATA "/preview/geometry.txt");

/** What a box of a drawing is, by the fill and the pen it is drawn with. */
struct BoxRow
{
    const char *fill;
    const char *pen;
    const char *name;
};

constexpr BoxRow BOXES[] = {
    {"#fbe3df", "#c0392b", "sheet"   },
    {"#ffffff", "#2c5d8f", "usable"  },
    {"#dfe8f2", "#2c5d8f", "spine"   },
    {"none",    "#7d3c98", "slipcase"},
    {"none",    "#222222", "barcode" },
};
/** Boxes of this size, on paper, belong to the legend. */
constexpr QSizeF SYMBOL(7.4, 3.2);
constexpr char DIMENSION_PEN[] = "#44546a";

QString millimeters(double length)
{
    return QString::number(length, 'f', 1);
}

/**
 * The figures of a drawing in millimetres of the product, read from what was drawn: boxes by their corner in
 * the sheet and size, dimensions with the text beside them, then the names. Nothing of it hangs on fonts.
 */
QStringList geometryOf(const QByteArray &svg)
{
    QStringList lines;
    double scale = 0.0;
    QPointF corner;
    QString fill;
    QString pen;
    QString dimension;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        const auto text = [&](const char *name) { return attributes.value(QLatin1String(name)).toString(); };
        const auto length = [&](const char *name) { return text(name).toDouble() / 10.0; };
        const QString element = reader.name().toString();
        if (element == u"g"_s) {
            fill = text("fill");
            pen = text("stroke");
        } else if (element == u"rect"_s) {
            const QRectF rect(length("x"), length("y"), length("width"), length("height"));
            for (const BoxRow &row : BOXES) {
                if (fill != QLatin1String(row.fill) || pen != QLatin1String(row.pen) || rect.size() == SYMBOL
                    || scale == 0.0)
                    continue;
                const bool isSheet = &row == std::begin(BOXES);
                if (isSheet)
                    corner = rect.topLeft();
                const QRectF product((rect.topLeft() - corner) * scale, rect.size() * scale);
                lines.append(u"  %1%2 %3 x %4"_s.arg(
                    QLatin1String(row.name),
                    isSheet ? QString()
                            : u" at %1, %2:"_s.arg(millimeters(product.x()), millimeters(product.y())),
                    millimeters(product.width()), millimeters(product.height())));
            }
        } else if (element == u"polyline"_s && pen == QLatin1String(DIMENSION_PEN)) {
            // Where the arrows stand outside, the line goes on below them.
            const QStringList points = text("points").simplified().split(u' ');
            const double begin = points.constFirst().section(u',', 0, 0).toDouble();
            const double end = points.constLast().section(u',', 0, 0).toDouble();
            dimension = millimeters((end + begin) / 10.0 * scale);
        } else if (element == u"text"_s) {
            const QString word = reader.readElementText();
            const KTSize place = word.indexOf(u"Scale 1 : "_s);
            if (place >= 0) {
                scale = word.mid(place + 10).section(u',', 0, 0).toDouble();
                lines.append(word);
            } else if (!dimension.isEmpty()) {
                lines.append(u"  dimension %1: %2"_s.arg(dimension, word));
                dimension.clear();
            } else if (text("fill") == u"#9aa5b1"_s) {
                lines.append(u"  name %1"_s.arg(word));
            }
        }
    }
    return lines;
}

QByteArray drawing(const KTArticle &article, int pages, const std::optional<KTPageType> &only = std::nullopt)
{
    QString objection;
    const std::optional<KTPreviewModel> model = KTPreviewModel::create(article, pages, &objection, only);
    if (!model)
        return QByteArray();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    KTPreviewWriter writer(u"svg"_s, &buffer, model->title);
    return writer.add(*model) && writer.end() ? buffer.data() : QByteArray();
}

/** At the least page count, and at the highest one where there are several. */
QString geometryAtBothEnds(const KTArticle &article)
{
    const KTPageCountOrganization &counts = article.pageCounts();
    QString text;
    for (const int pages : {counts.minPages(), counts.maxPages()}) {
        const QByteArray svg = drawing(article, pages);
        if (!svg.isEmpty() && (text.isEmpty() || counts.minPages() != counts.maxPages()))
            text += article.articleId().toString() + u": "_s + geometryOf(svg).join(u'\n') + u'\n';
    }
    return text;
}

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_KTPreview : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    /** With KT_RENEW in the environment, the file is written anew, for review. */
    void drawsToScale()
    {
        QString said;
        for (const QString &name : {SAMPLE, QStringLiteral(KT_TEST_DATA "/preview/catalogue.xml")}) {
            KTCatalogue catalogue(name);
            for (const int articleId : catalogue.articleIds())
                said += geometryAtBothEnds(catalogue.article(articleId).value());
        }
        if (qEnvironmentVariableIsSet("KT_RENEW")) {
            QFile file(EXPECTED);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(said.toUtf8());
        }
        QCOMPARE(said.split(u'\n'), QString::fromUtf8(contentOf(EXPECTED)).split(u'\n'));
    }

    void keepsTheGalleryTrue()
    {
        KTCatalogue catalogue(SAMPLE);
        const QString page = QString::fromUtf8(contentOf(SOURCE + u"/docs/gallery.md"_s));
        const QFileInfoList pictures = QDir(SOURCE + u"/docs/gallery"_s).entryInfoList({u"*.svg"_s});
        QVERIFY(pictures.size() >= 4);
        for (const QFileInfo &picture : pictures) {
            const QStringList numbers = picture.completeBaseName().split(u'-');
            QVERIFY2(page.contains(u"(gallery/%1)"_s.arg(picture.fileName())),
                     qPrintable(picture.fileName()));
            const std::optional<KTArticle> article = catalogue.article(numbers.constFirst().toInt());
            QVERIFY(article);
            QCOMPARE(geometryOf(contentOf(picture.filePath())),
                     geometryOf(drawing(*article, numbers.constLast().toInt())));
        }
    }
};

QTEST_MAIN(tst_KTPreview)
#include "tst_KTPreview.moc"
