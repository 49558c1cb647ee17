#include "KTShowCommand.h"

#include "KTArticleReport.h"
#include "KTCatalogueFile.h"
#include "KTCommandLine.h"
#include "KTSpool.h"
#include "KTTerminalText.h"

#include <QJsonDocument>

namespace {

/** The document's text without its final line break. */
QString jsonText(const QJsonObject &object)
{
    return KTTerminalText::visibleJson(QString::fromUtf8(QJsonDocument(object).toJson()).trimmed());
}

} // namespace

KTExitCode KTShowCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("show"),
        QStringLiteral("Shows what the library makes of each article: its number, the options "
                       "offered, the default choice and the possible box styles."),
        QStringLiteral("examples/catalogue.xml --article 7301"));
    const QCommandLineOption articleOption(QStringLiteral("article"),
                                           QStringLiteral("Only the article with this number."),
                                           QStringLiteral("ID"));
    const QCommandLineOption jsonOption(QStringLiteral("json"),
                                        QStringLiteral("Prints a JSON array of articles."));
    commandLine.parser().addOptions({articleOption, jsonOption});
    if (const auto code = commandLine.parse(arguments))
        return *code;

    const bool isJson = commandLine.parser().isSet(jsonOption);
    std::optional<int> wanted;
    if (commandLine.parser().isSet(articleOption)) {
        wanted = commandLine.number(articleOption);
        if (!wanted)
            return KTExitUsage;
    }

    KTSpool spool;
    bool isFirst = true;
    const auto failure
        = KTCatalogueFile(commandLine.fileName()).forEachArticle([&](const KTCatalogueArticle &article) {
              const KTArticleReport report(article.element());
              if (wanted && (!isFirst || report.articleId() != *wanted))
                  return;
              if (isJson)
                  spool.write((isFirst ? QStringLiteral("[\n") : QStringLiteral(",\n"))
                              + jsonText(report.toJSON()));
              else
                  spool.write((isFirst ? QString() : QStringLiteral("\n")) + report.toText());
              isFirst = false;
          });
    if (failure)
        return *failure;
    if (wanted && isFirst)
        return commandLine.failNoArticle(*wanted);
    if (isJson)
        spool.write(isFirst ? QStringLiteral("[]\n") : QStringLiteral("\n]\n"));
    return KTCommandLine::deliver(&spool);
}
