#include "KTPreviewCommand.h"

#include "KTArticleRequest.h"
#include "KTCatalogueFile.h"
#include "KTCommandLine.h"
#include "KTConsole.h"
#include "KTFileName.h"
#include "KTPreviewWriter.h"
#include "KTSpool.h"
#include "KTToolText.h"

#include <KTNearestWord.h>
#include <KTOrderDraft.h>

#include <QFileInfo>
#include <QFontDatabase>

#include <functional>

namespace {

const QString ARTICLE = QStringLiteral("article");
const QString PAGES = QStringLiteral("pages");
const QString ALL = QStringLiteral("all");
const QString PAGE = QStringLiteral("page");
const QString FORMAT = QStringLiteral("format");
const QString WIDTH = QStringLiteral("width");
const QString OUTPUT = QStringLiteral("output");
const QString STANDARD_OUTPUT = QStringLiteral("-");
const QString PNG = QStringLiteral("png");
const QString PDF = QStringLiteral("pdf");

const KTOptionRow OPTIONS[] = {
    optionRow(
        ALL, "", "",
        QT_TRANSLATE_NOOP("KTToolText",
                          "Draws every article that has sizes, each on a sheet of its own; needs PDF.")),
    optionRow(PAGE, "TYPE", "",
              QT_TRANSLATE_NOOP("KTToolText",
                                "Only pages of this type, such as normalpage, or of several, separated by "
                                "commas. All by default, the cover first.")),
    optionRow(FORMAT, "FORMAT", "",
              QT_TRANSLATE_NOOP(
                  "KTToolText",
                  "svg, png or pdf. By default the ending of OUT says it; for - it is svg, with --all pdf.")),
    optionRow(WIDTH, "PIXELS", "",
              QT_TRANSLATE_NOOP("KTToolText", "The width of a PNG, 100 to 8000; 1782 by default.")),
};

struct Options
{
    QString output;
    QString format;
    std::optional<KTPageType> only;
    std::optional<int> imageWidth;
    bool isAll = false;
};

/** The page types asked for; an exit code for a word that is none, which is reported. */
std::optional<KTExitCode> readPageType(const QString &text, std::optional<KTPageType> *type)
{
    const QStringList unknown = KTPageType().unknownEntries(text);
    *type = KTPageType(text);
    if (unknown.isEmpty() && (*type)->value() != 0)
        return std::nullopt;
    const QString word = unknown.isEmpty() ? text : unknown.constFirst();
    const QString nearest = KTNearestWord::find(word, KTPageType().enumToStringTable()->allKnownKeywords());
    return KTConsole::failUsage(
        KTToolText::tr("'%1' is no type of page").arg(word)
        + (nearest.isEmpty() ? QString() : KTToolText::tr(", did you mean '%1'?").arg(nearest)));
}

/** What is to be drawn, and where; an exit code for wrong usage, which is reported. */
std::optional<KTExitCode> readOptions(const KTCommandLine &commandLine, Options *options)
{
    const QCommandLineParser &parser = commandLine.parser();
    options->isAll = parser.isSet(ALL);
    options->output = parser.value(OUTPUT);
    if (options->output.isEmpty())
        return KTConsole::failUsage(KTToolText::tr("'preview' needs -o OUT"));
    if (!options->isAll && !parser.isSet(ARTICLE))
        return KTConsole::failUsage(KTToolText::tr("'preview' needs --article or --all"));
    if (options->isAll && (parser.isSet(ARTICLE) || parser.isSet(PAGES)))
        return KTConsole::failUsage(KTToolText::tr("--all goes with neither --article nor --pages"));
    const QStringList formats = KTPreviewWriter::formats();
    const bool isStandardOutput = options->output == STANDARD_OUTPUT;
    options->format = parser.isSet(FORMAT) ? parser.value(FORMAT)
        : isStandardOutput                 ? (options->isAll ? PDF : formats.constFirst())
                                           : QFileInfo(options->output).suffix().toLower();
    if (!formats.contains(options->format)) {
        return parser.isSet(FORMAT)
            ? KTCommandLine::failChoice(FORMAT, options->format, formats)
            : KTConsole::failUsage(
                KTToolText::tr("'%1' does not end in .svg, .png or .pdf").arg(options->output));
    }
    if (options->isAll && options->format != PDF)
        return KTConsole::failUsage(KTToolText::tr("--all needs a PDF, which can have several sheets"));
    if (parser.isSet(WIDTH)) {
        options->imageWidth = KTCommandLine::number(parser, WIDTH, KTPreviewWriter::LEAST_IMAGE_WIDTH);
        if (!options->imageWidth)
            return KTExitUsage;
        if (options->format != PNG)
            return KTConsole::failUsage(KTToolText::tr("--width is for PNG"));
        if (*options->imageWidth > KTPreviewWriter::MAX_IMAGE_WIDTH)
            return KTConsole::failUsage(
                KTToolText::tr("'%1' is no number for --%2").arg(parser.value(WIDTH), WIDTH));
    }
    return parser.isSet(PAGE) ? readPageType(parser.value(PAGE), &options->only) : std::nullopt;
}

/** Why the article cannot have so many pages; empty when it can. */
QString objectionToPages(const KTArticle &article, int pages)
{
    const std::optional<KTOrderRefusal> refusal = KTOrderDraft(article).setPages(pages);
    return refusal ? refusal->toString() : QString();
}

/** Draws the articles, one after the other, and says what each of them is drawn as. */
class Drawing
{
public:
    Drawing(const KTCommandLine &commandLine, const Options &options)
        : myCommandLine(commandLine)
        , myOptions(options)
    {
    }

    /** The article alone, at the page count. */
    KTExitCode run(const KTArticle &article, int articleId, std::optional<int> pages)
    {
        QString objection = pages ? objectionToPages(article, *pages) : QString();
        std::optional<KTPreviewModel> model;
        if (objection.isEmpty())
            model = KTPreviewModel::create(article, pages.value_or(article.pageCounts().minPages()),
                                           &objection, myOptions.only);
        if (!model)
            return myCommandLine.failArticle(articleId, objection);
        return write(model->title, [&](KTPreviewWriter *writer) {
            return writer->add(*model) ? std::nullopt : std::make_optional(failToDraw());
        });
    }

    /** All articles that can be drawn. */
    KTExitCode run()
    {
        const QString name = myCommandLine.fileName();
        const KTExitCode code = write(QFileInfo(name).fileName(), [&](KTPreviewWriter *writer) {
            bool isDrawn = true;
            auto failure = KTCatalogueFile(name).forEachArticle([&](const KTCatalogueArticle &article) {
                isDrawn = isDrawn && add(KTArticle(article), writer);
            });
            if (!failure && myDrawn == 0)
                failure = KTConsole::fail(KTExitUnanswerable,
                                          KTToolText::tr("%1: no article can be drawn").arg(name));
            if (!failure && !isDrawn)
                failure = failToDraw();
            return failure;
        });
        if (code == KTExitSuccess)
            KTConsole::note(KTToolText::tr("%1: %2 of %3 articles drawn")
                                .arg(name, QString::number(myDrawn), QString::number(myArticles)));
        return code;
    }

private:
    KTExitCode fail(const QString &reason) const
    {
        return KTConsole::fail(KTExitUnwritable,
                               QStringLiteral("%1: error: %2").arg(myOptions.output, reason));
    }
    KTExitCode failToDraw() const { return fail(KTToolText::tr("the drawing cannot be made")); }

    bool add(const KTArticle &article, KTPreviewWriter *writer)
    {
        ++myArticles;
        QString objection;
        const std::optional<KTPreviewModel> model
            = KTPreviewModel::create(article, article.pageCounts().minPages(), &objection, myOptions.only);
        if (!model) {
            // Most kinds of articles have no sizes, which is nothing to complain of.
            if (!article.pages().isEmpty() && !myOptions.only)
                myCommandLine.failArticle(article.articleId().id(), objection);
            return true;
        }
        ++myDrawn;
        return writer->add(*model);
    }

    /** Writes what the function draws, or nothing at all, and says why. */
    KTExitCode write(const QString &title,
                     const std::function<std::optional<KTExitCode>(KTPreviewWriter *)> &draw)
    {
        if (KTFileName::areSame(myOptions.output, myCommandLine.fileName()))
            return fail(KTToolText::tr("it is the catalogue"));
        if (QFontDatabase().families().isEmpty())
            return fail(KTToolText::tr("no font is installed, so the drawing would have no text"));
        KTSpool spool;
        KTSpoolDevice device(&spool);
        KTPreviewWriter writer(myOptions.format, &device, title, myOptions.imageWidth);
        if (const auto code = draw(&writer))
            return *code;
        if (!writer.end())
            return failToDraw();
        if (myOptions.output == STANDARD_OUTPUT)
            return KTConsole::deliver(&spool);
        const QString error = KTFileName::replaceFile(myOptions.output,
                                                      [&spool](QFile *file) { return spool.deliver(file); });
        return error.isEmpty() ? KTExitSuccess : fail(error);
    }

    const KTCommandLine &myCommandLine;
    const Options &myOptions;
    int myArticles = 0;
    int myDrawn = 0;
};

} // namespace

KTExitCode KTPreviewCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("preview"),
        KTToolText::tr("Draws the cover of an article to scale, and its other kinds of pages below: usable "
                       "area, bleed, spine, slipcase cover and barcodes, with dimensions in millimetres and "
                       "the options on offer."),
        QStringLiteral("examples/catalogue.xml --article 7301 --pages 90 -o cover.svg"));
    KTArticleRequest request(&commandLine, KTArticleRequest::Article::Optional,
                             KTToolText::tr("The page count; the least one by default."));
    commandLine.addOptions(OPTIONS);
    commandLine.parser().addOption({
        {QStringLiteral("o"), OUTPUT},
        KTToolText::tr("Writes to OUT, whose ending says the format: .svg, .png or .pdf; - for standard "
                       "output. A file that is there is replaced once the drawing is complete."),
        QStringLiteral("OUT")
    });
    if (const auto code = commandLine.parse(arguments))
        return *code;
    Options options;
    if (const auto code = request.read())
        return *code;
    if (const auto code = readOptions(commandLine, &options))
        return *code;

    Drawing drawing(commandLine, options);
    if (options.isAll)
        return drawing.run();
    KTArticle article;
    if (const auto code = request.readArticle(&article))
        return *code;
    return drawing.run(article, *request.articleId(), request.pages());
}
