#include "KTShowCommand.h"

#include "KTArticleReport.h"
#include "KTCatalogueFile.h"
#include "KTCommandLine.h"
#include "KTSpool.h"

namespace {

const QString TEXT_FORMAT = QStringLiteral("text");
const QString JSON_FORMAT = QStringLiteral("json");
const QString JSON_BEGIN = QStringLiteral("{\"format\":1,\"articles\":[\n");

} // namespace

KTExitCode KTShowCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("show"),
        QStringLiteral("Shows what the library makes of each article: its number, classifications, "
                       "page counts, layout and options, the default choice and the box styles."),
        QStringLiteral("examples/catalogue.xml --article 7301 --pages 30"));
    const QCommandLineOption articleOption(QStringLiteral("article"),
                                           QStringLiteral("Only the article with this number."),
                                           QStringLiteral("ID"));
    const QCommandLineOption pagesOption(QStringLiteral("pages"),
                                         QStringLiteral("What becomes of a wish for N pages, and how wide "
                                                        "the spine is then; may be given several times."),
                                         QStringLiteral("N"));
    commandLine.parser().addOptions({articleOption, pagesOption});
    commandLine.addFormats({TEXT_FORMAT, JSON_FORMAT});
    if (const auto code = commandLine.parse(arguments))
        return *code;

    const std::optional<QList<int>> wanted = commandLine.numbers(articleOption);
    if (!wanted)
        return KTExitUsage;
    const std::optional<QList<int>> pageCounts = commandLine.numbers(pagesOption);
    if (!pageCounts)
        return KTExitUsage;

    const std::optional<QString> format = commandLine.format();
    if (!format)
        return KTExitUsage;

    const bool isJson = *format == JSON_FORMAT;
    const bool isOneArticle = !wanted->isEmpty();
    KTSpool spool;
    bool isFirst = true;
    const auto show = [&](const KTCatalogueArticle &article) {
        const KTArticle content(article);
        if (isJson)
            spool.write((isFirst ? JSON_BEGIN : QStringLiteral(",\n"))
                        + KTArticleReport::toJSON(content, *pageCounts));
        else
            spool.write((isFirst ? QString() : QStringLiteral("\n"))
                        + KTArticleReport::toText(content, *pageCounts));
        isFirst = false;
    };
    const auto articleId = isOneArticle ? std::make_optional(wanted->constLast()) : std::nullopt;
    if (const auto failure = KTCatalogueFile(commandLine.fileName()).forEachArticle(show, articleId))
        return *failure;
    if (isOneArticle && isFirst)
        return commandLine.failNoArticle(wanted->constLast());
    if (isJson)
        spool.write((isFirst ? JSON_BEGIN : QString()) + QStringLiteral("\n]}\n"));
    return KTCommandLine::deliver(&spool);
}
