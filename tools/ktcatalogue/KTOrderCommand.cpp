#include "KTOrderCommand.h"

#include "KTArticleReport.h"
#include "KTCatalogueFile.h"
#include "KTCommandLine.h"
#include "KTNearestWord.h"
#include "KTSpool.h"
#include "KTTerminalText.h"
#include "KTVariantsText.h"

#include <QJsonDocument>

namespace {

QStringList distinctValues(const KTConfiguredArticleVariantList &options)
{
    QStringList values;
    for (const KTConfiguredArticleVariant &option : options)
        values.append(option.value());
    values.removeDuplicates();
    return values;
}

/** What is wrong with a choice that the article does not offer; empty for one that it does. */
QString objection(const KTConfiguredArticleVariantList &options, const QString &key, const QString &value)
{
    if (options.contains(KTConfiguredArticleVariant(key, value)))
        return QString();
    const bool isKeyOffered = options.keys().contains(key);
    const QStringList offered = isKeyOffered ? distinctValues(options.filter(key)) : options.keys();
    const QString nearest = KTNearestWord::find(isKeyOffered ? value : key, offered);

    QString text = isKeyOffered ? QStringLiteral("does not offer '%1' for '%2'").arg(value, key)
                                : QStringLiteral("has no option '%1'").arg(key);
    text += offered.isEmpty() ? QStringLiteral("; it offers none")
                              : QStringLiteral("; offered: ") + offered.join(QStringLiteral(", "));
    if (!nearest.isNull())
        text += QStringLiteral("; did you mean '%1'?").arg(nearest);
    return text;
}

QString text(const KTArticleId &articleId, const KTArticleVariants &choice)
{
    const auto line = [](const char *label, const QString &value) {
        return QStringLiteral("%1  %2\n")
            .arg(QString::fromLatin1(label).leftJustified(10), KTTerminalText::visible(value));
    };
    return line("article", articleId.toString()) + line("order text", KTVariantsText::orderTxt(choice))
        + line("MCF", KTVariantsText::mcf(choice))
        + line("production", KTVariantsText::mcf(KTVariantsText::xtci(choice)));
}

QString json(const KTArticleId &articleId, const KTArticleVariants &choice)
{
    QJsonObject object;
    articleId.toJSON(object);
    object.insert(QStringLiteral("choice"), KTVariantsText::json(choice));
    object.insert(QStringLiteral("orderText"), KTVariantsText::orderTxt(choice));
    object.insert(QStringLiteral("mcf"), KTVariantsText::mcf(choice));
    object.insert(QStringLiteral("production"), KTVariantsText::json(KTVariantsText::xtci(choice)));
    return KTTerminalText::visibleJson(QString::fromUtf8(QJsonDocument(object).toJson()));
}

} // namespace

KTExitCode KTOrderCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("order"),
        QStringLiteral(
            "Starts from the preselected options of an article, applies the choices, and writes the order "
            "text, the MCF and the production form."),
        QStringLiteral("examples/catalogue.xml --article 7301 --choose alcolor=red"));
    const QCommandLineOption articleOption(
        QStringLiteral("article"), QStringLiteral("The number of the article."), QStringLiteral("ID"));
    const QCommandLineOption chooseOption(
        QStringLiteral("choose"),
        QStringLiteral("Chooses an option that the article offers; may be given several times."),
        QStringLiteral("KEY=VALUE"));
    const QCommandLineOption jsonOption(QStringLiteral("json"), QStringLiteral("Prints a JSON object."));
    commandLine.parser().addOptions({articleOption, chooseOption, jsonOption});
    if (const auto code = commandLine.parse(arguments))
        return *code;

    const std::optional<int> wanted = commandLine.number(articleOption);
    if (!wanted)
        return KTExitUsage;
    KTArticleVariants choices;
    for (const QString &choice : commandLine.parser().values(chooseOption)) {
        const int separator = choice.indexOf(QLatin1Char('='));
        if (separator <= 0)
            return KTCommandLine::failUsage(QStringLiteral("'%1' is not KEY=VALUE").arg(choice));
        choices.insert(choice.left(separator), choice.mid(separator + 1));
    }

    std::optional<KTConfiguredArticleVariantList> options;
    const auto failure
        = KTCatalogueFile(commandLine.fileName()).forEachArticle([&](const KTCatalogueArticle &article) {
              const KTArticleReport report(article.element());
              if (!options && report.articleId() == *wanted)
                  options = report.options();
          });
    if (failure)
        return *failure;
    if (!options)
        return commandLine.failNoArticle(*wanted);

    for (const QString &key : choices.keys()) {
        const QString wrong = objection(*options, key, choices.value(key, QString()));
        if (!wrong.isEmpty()) {
            return KTCommandLine::fail(
                KTExitUnanswerable,
                QStringLiteral("%1: article %2 %3").arg(commandLine.fileName()).arg(*wanted).arg(wrong));
        }
    }
    KTArticleVariants choice = options->defaultVariants();
    choice.insert(choices);
    KTSpool spool;
    spool.write(commandLine.parser().isSet(jsonOption) ? json(*wanted, choice) : text(*wanted, choice));
    return KTCommandLine::deliver(&spool);
}
