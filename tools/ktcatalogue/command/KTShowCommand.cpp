#include "KTShowCommand.h"

#include "KTArticleReport.h"
#include "KTArticleRequest.h"
#include "KTCatalogueFile.h"
#include "KTCommandLine.h"
#include "KTConsole.h"
#include "KTSpool.h"
#include "KTToolText.h"

namespace {

const QString TEXT_FORMAT = QStringLiteral("text");
const QString JSON_FORMAT = QStringLiteral("json");
const QString JSON_BEGIN = QStringLiteral("{\"format\":1,\"articles\":[\n");

} // namespace

KTExitCode KTShowCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("show"),
        KTToolText::tr("Shows what the library makes of each article: its number, classifications, "
                       "page counts, layout and options, the default choice and the box styles."),
        QStringLiteral("examples/catalogue.xml --article 7301 --pages 30"));
    KTArticleRequest request(
        &commandLine, KTArticleRequest::Article::Optional,
        KTToolText::tr("What becomes of a wish for N pages, and how wide the spine is then; "
                       "may be given several times."));
    commandLine.addFormats({TEXT_FORMAT, JSON_FORMAT});
    if (const auto code = commandLine.parse(arguments))
        return *code;
    if (const auto code = request.read())
        return *code;
    const std::optional<QString> format = commandLine.format();
    if (!format)
        return KTExitUsage;

    const bool isJson = *format == JSON_FORMAT;
    KTSpool spool;
    bool isFirst = true;
    const auto show = [&](const KTCatalogueArticle &article) {
        const KTArticle content(article);
        if (isJson)
            spool.write((isFirst ? JSON_BEGIN : QStringLiteral(",\n"))
                        + KTArticleReport::toJSON(content, request.pageCounts()));
        else
            spool.write((isFirst ? QString() : QStringLiteral("\n"))
                        + KTArticleReport::toText(content, request.pageCounts()));
        isFirst = false;
    };
    if (const auto failure
        = KTCatalogueFile(commandLine.fileName()).forEachArticle(show, request.articleId()))
        return *failure;
    if (request.articleId() && isFirst)
        return commandLine.failNoArticle(*request.articleId());
    if (isJson)
        spool.write((isFirst ? JSON_BEGIN : QString()) + QStringLiteral("\n]}\n"));
    return KTConsole::deliver(&spool);
}
