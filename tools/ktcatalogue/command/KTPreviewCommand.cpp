#include "KTPreviewCommand.h"

#include "KTArticleRequest.h"
#include "KTCommandLine.h"
#include "KTConsole.h"
#include "KTFileName.h"
#include "KTPreviewPainter.h"
#include "KTToolText.h"

#include <KTOrderDraft.h>
#include <KTQtTypes.h>

#include <QBuffer>
#include <QDateTime>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHash>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace {

/** At this resolution a dot is a layout unit, so vector formats need no scaling. */
constexpr int LAYOUT_UNITS_PER_INCH = 254;
constexpr int LAYOUT_UNITS_PER_MILLIMETER = 10;
constexpr int IMAGE_DOTS_PER_MILLIMETER = 6;

bool paintOn(QPaintDevice *device, const KTPreviewPainter &preview, double scale)
{
    QPainter painter;
    if (!painter.begin(device))
        return false;
    painter.scale(scale, scale);
    preview.paint(&painter);
    return painter.end();
}

/** The time that everything counts as made at, where builds are to be the same; empty for the present one. */
QByteArray sourceDate()
{
    bool ok = false;
    const qint64 seconds = qgetenv("SOURCE_DATE_EPOCH").toLongLong(&ok);
    if (!ok)
        return QByteArray();
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC)
        .toString(QStringLiteral("yyyyMMddhhmmss"))
        .toLatin1();
}

// Each draws into memory and gives the file's bytes, or none when that fails.

QByteArray svg(const KTPreviewPainter &preview, const QString &title)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(LAYOUT_UNITS_PER_INCH);
    generator.setSize(preview.sheetSize());
    generator.setViewBox(QRect(QPoint(), preview.sheetSize()));
    // Qt writes the title as it is.
    generator.setTitle(title.toHtmlEscaped());
    return paintOn(&generator, preview, 1.0) ? bytes : QByteArray();
}

QByteArray png(const KTPreviewPainter &preview, const QString &title)
{
    constexpr double SCALE = double(IMAGE_DOTS_PER_MILLIMETER) / LAYOUT_UNITS_PER_MILLIMETER;
    QImage image(preview.sheetSize() * SCALE, QImage::Format_RGB32);
    // The last row of dots may be covered in part only.
    image.fill(Qt::white);
    image.setDotsPerMeterX(IMAGE_DOTS_PER_MILLIMETER * 1000);
    image.setDotsPerMeterY(IMAGE_DOTS_PER_MILLIMETER * 1000);
    image.setText(QStringLiteral("Title"), title);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return paintOn(&image, preview, SCALE) && image.save(&buffer, "PNG") ? bytes : QByteArray();
}

QByteArray pdf(const KTPreviewPainter &preview, const QString &title)
{
    const QByteArray date = sourceDate();
    if (!date.isEmpty()) {
        // Fonts are written in the order of a hash table. In UTC, Qt's date is as long as the other one.
        qSetGlobalQHashSeed(0);
        qputenv("TZ", "UTC");
    }
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QPdfWriter writer(&buffer);
    writer.setResolution(LAYOUT_UNITS_PER_INCH);
    writer.setTitle(title);
    writer.setPageSize(QPageSize(QSizeF(preview.sheetSize()) / LAYOUT_UNITS_PER_MILLIMETER,
                                 QPageSize::Millimeter, QString(), QPageSize::ExactMatch));
    writer.setPageMargins(QMarginsF());
    if (!buffer.open(QIODevice::WriteOnly) || !paintOn(&writer, preview, 1.0))
        return QByteArray();
    const QByteArray label = "/CreationDate (D:";
    const KTSize place = bytes.indexOf(label);
    if (place >= 0 && !date.isEmpty())
        bytes.replace(place + label.size(), date.size(), date);
    return bytes;
}

struct FormatRow
{
    const char *ending;
    QByteArray (*draw)(const KTPreviewPainter &preview, const QString &title);
};

constexpr FormatRow FORMATS[] = {
    {"svg", &svg},
    {"png", &png},
    {"pdf", &pdf},
};

const FormatRow *formatOf(const QString &fileName)
{
    const QString ending = QFileInfo(fileName).suffix().toLower();
    for (const FormatRow &row : FORMATS) {
        if (ending == QLatin1String(row.ending))
            return &row;
    }
    return nullptr;
}

/** Why the article cannot have so many pages; empty when it can. */
QString objectionToPages(const KTArticle &article, int pages)
{
    const std::optional<KTOrderRefusal> refusal = KTOrderDraft(article).setPages(pages);
    return refusal ? refusal->toString() : QString();
}

} // namespace

KTExitCode KTPreviewCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("preview"),
        KTToolText::tr(
            "Draws the cover of an article to scale: usable area, bleed, spine, slipcase cover and "
            "barcodes, with dimensions in millimetres and the options on offer."),
        QStringLiteral("examples/catalogue.xml --article 7301 --pages 90 -o cover.svg"));
    KTArticleRequest request(&commandLine, KTArticleRequest::Article::Needed,
                             KTToolText::tr("The page count; the least one by default."));
    const QCommandLineOption outputOption(
        {QStringLiteral("o"), QStringLiteral("output")},
        KTToolText::tr(
            "Writes to OUT, whose ending says the format: .svg, .png or .pdf. A file that is there "
            "is replaced once the drawing is complete."),
        QStringLiteral("OUT"));
    commandLine.parser().addOption(outputOption);
    if (const auto code = commandLine.parse(arguments))
        return *code;

    if (const auto code = request.read())
        return *code;
    const QString output = commandLine.parser().value(outputOption);
    if (output.isEmpty())
        return KTConsole::failUsage(KTToolText::tr("'preview' needs -o OUT"));
    const FormatRow *const format = formatOf(output);
    if (!format)
        return KTConsole::failUsage(KTToolText::tr("'%1' does not end in .svg, .png or .pdf").arg(output));

    KTArticle article;
    if (const auto code = request.readArticle(&article))
        return *code;
    QString objection = request.pages() ? objectionToPages(article, *request.pages()) : QString();
    std::optional<KTPreviewModel> model;
    if (objection.isEmpty()) {
        model = KTPreviewModel::create(article, request.pages().value_or(article.pageCounts().minPages()),
                                       &objection);
    }
    if (!model)
        return commandLine.failArticle(*request.articleId(), objection);

    const auto fail = [&output](const QString &reason) {
        return KTConsole::fail(KTExitUnwritable, QStringLiteral("%1: error: %2").arg(output, reason));
    };
    if (KTFileName::areSame(output, commandLine.fileName()))
        return fail(KTToolText::tr("it is the catalogue"));
    if (QFontDatabase().families().isEmpty())
        return fail(KTToolText::tr("no font is installed, so the drawing would have no text"));
    const QByteArray drawing = format->draw(KTPreviewPainter(*model), model->title);
    if (drawing.isEmpty())
        return fail(KTToolText::tr("the drawing cannot be made"));
    const QString error = KTFileName::replaceFile(output, drawing);
    if (!error.isEmpty())
        return fail(error);
    return KTExitSuccess;
}
