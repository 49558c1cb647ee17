#include "KTOrderCommand.h"

#include "KTArticleReport.h"
#include "KTArticleRequest.h"
#include "KTCommandLine.h"
#include "KTConsole.h"
#include "KTSpool.h"
#include "KTTerminalText.h"
#include "KTToolText.h"

#include <KTOrderDraft.h>
#include <KTQtTypes.h>
#include <KTVariantsText.h>

#include <QJsonDocument>

namespace {

const QString TEXT_FORMAT = QStringLiteral("text");
const QString JSON_FORMAT = QStringLiteral("json");

QString text(const KTOrderDraft &order)
{
    const auto line = [](const QString &label, const QString &value) {
        return QStringLiteral("%1  %2\n").arg(label.leftJustified(12), KTTerminalText::escaped(value));
    };
    return line(KTToolText::tr("article"), order.article().articleId().toString())
        + line(KTToolText::tr("product type"), order.article().productType().orderTxtName())
        + (order.pages() ? line(KTToolText::tr("pages"), QString::number(*order.pages())) : QString())
        + line(KTToolText::tr("order text"), order.orderText()) + line(QStringLiteral("MCF"), order.mcf())
        + line(KTToolText::tr("production"), KTVariantsText::mcf(order.production()));
}

QString json(const KTOrderDraft &order)
{
    QJsonObject object {
        {QStringLiteral("format"),      1                                           },
        {QStringLiteral("productType"), order.article().productType().orderTxtName()},
        {QStringLiteral("choice"),      KTArticleReport::toJSON(order.choice())     },
        {QStringLiteral("orderText"),   order.orderText()                           },
        {QStringLiteral("mcf"),         order.mcf()                                 },
        {QStringLiteral("production"),  KTArticleReport::toJSON(order.production()) },
    };
    if (order.pages())
        object.insert(QStringLiteral("pages"), *order.pages());
    order.article().articleId().toJSON(object);
    return KTTerminalText::escapedJson(QString::fromUtf8(QJsonDocument(object).toJson()));
}

/** The choices as pairs; one without a key is reported as wrong usage. */
std::optional<KTArticleVariants> choices(const QStringList &texts)
{
    KTArticleVariants choices;
    for (const QString &text : texts) {
        const KTSize separator = text.indexOf(QLatin1Char('='));
        if (separator <= 0) {
            KTConsole::failUsage(KTToolText::tr("'%1' is not KEY=VALUE").arg(text));
            return std::nullopt;
        }
        choices.insert(text.left(separator), text.mid(separator + 1));
    }
    return choices;
}

} // namespace

KTExitCode KTOrderCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("order"),
        KTToolText::tr(
            "Starts from the preselected options of an article, applies the choices, and writes the order "
            "text, the MCF and the production form."),
        QStringLiteral("examples/catalogue.xml --article 7301 --pages 30 --choose alcolor=red"));
    KTArticleRequest request(&commandLine, KTArticleRequest::Article::Needed,
                             KTToolText::tr("The page count."));
    const QCommandLineOption chooseOption(
        QStringLiteral("choose"),
        KTToolText::tr("Chooses an option that the article offers; may be given several times."),
        QStringLiteral("KEY=VALUE"));
    commandLine.parser().addOption(chooseOption);
    commandLine.addFormats({TEXT_FORMAT, JSON_FORMAT});
    if (const auto code = commandLine.parse(arguments))
        return *code;

    if (const auto code = request.read())
        return *code;
    const std::optional<KTArticleVariants> chosen = choices(commandLine.parser().values(chooseOption));
    const std::optional<QString> format = chosen ? commandLine.format() : std::nullopt;
    if (!format)
        return KTExitUsage;

    KTArticle article;
    if (const auto code = request.readArticle(&article))
        return *code;
    KTOrderDraft order(article);
    for (const QString &key : chosen->keys()) {
        if (const auto refusal = order.choose(key, chosen->value(key, QString())))
            return commandLine.failArticle(*request.articleId(), refusal->toString());
    }
    if (request.pages()) {
        if (const auto refusal = order.setPages(*request.pages()))
            return commandLine.failArticle(*request.articleId(), refusal->toString());
    }
    KTSpool spool;
    spool.write(*format == JSON_FORMAT ? json(order) : text(order));
    return KTConsole::deliver(&spool);
}
