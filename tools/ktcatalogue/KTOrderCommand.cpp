#include "KTOrderCommand.h"

#include "KTArticleModel.h"
#include "KTCatalogueFile.h"
#include "KTCommandLine.h"
#include "KTNearestWord.h"
#include "KTSpool.h"
#include "KTTerminalText.h"
#include "KTVariantsText.h"

#include <QJsonDocument>

namespace {

const QString TEXT_FORMAT = QStringLiteral("text");
const QString JSON_FORMAT = QStringLiteral("json");

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

/** What is written for an order. */
struct Order
{
    const KTArticleModel &article;
    std::optional<int> pages;
    KTArticleVariants choice;
};

QString text(const Order &order)
{
    const auto line = [](const char *label, const QString &value) {
        return QStringLiteral("%1  %2\n")
            .arg(QString::fromLatin1(label).leftJustified(12), KTTerminalText::visible(value));
    };
    return line("article", order.article.articleId.toString())
        + line("product type", order.article.productType.orderTxtName())
        + (order.pages ? line("pages", QString::number(*order.pages)) : QString())
        + line("order text", KTVariantsText::orderTxt(order.choice))
        + line("MCF", KTVariantsText::mcf(order.choice))
        + line("production", KTVariantsText::mcf(KTVariantsText::xtci(order.choice)));
}

QString json(const Order &order)
{
    QJsonObject object {
        {QStringLiteral("format"),      1                                                       },
        {QStringLiteral("productType"), order.article.productType.orderTxtName()                },
        {QStringLiteral("choice"),      KTVariantsText::json(order.choice)                      },
        {QStringLiteral("orderText"),   KTVariantsText::orderTxt(order.choice)                  },
        {QStringLiteral("mcf"),         KTVariantsText::mcf(order.choice)                       },
        {QStringLiteral("production"),  KTVariantsText::json(KTVariantsText::xtci(order.choice))},
    };
    if (order.pages)
        object.insert(QStringLiteral("pages"), *order.pages);
    order.article.articleId.toJSON(object);
    return KTTerminalText::visibleJson(QString::fromUtf8(QJsonDocument(object).toJson()));
}

/** The choices as pairs; one without a key is reported as wrong usage. */
std::optional<KTArticleVariants> choices(const QStringList &texts)
{
    KTArticleVariants choices;
    for (const QString &text : texts) {
        const int separator = text.indexOf(QLatin1Char('='));
        if (separator <= 0) {
            KTCommandLine::failUsage(QStringLiteral("'%1' is not KEY=VALUE").arg(text));
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
        QStringLiteral(
            "Starts from the preselected options of an article, applies the choices, and writes the order "
            "text, the MCF and the production form."),
        QStringLiteral("examples/catalogue.xml --article 7301 --pages 30 --choose alcolor=red"));
    const QCommandLineOption articleOption(
        QStringLiteral("article"), QStringLiteral("The number of the article."), QStringLiteral("ID"));
    const QCommandLineOption pagesOption(QStringLiteral("pages"), QStringLiteral("The page count."),
                                         QStringLiteral("N"));
    const QCommandLineOption chooseOption(
        QStringLiteral("choose"),
        QStringLiteral("Chooses an option that the article offers; may be given several times."),
        QStringLiteral("KEY=VALUE"));
    commandLine.parser().addOptions({articleOption, pagesOption, chooseOption});
    commandLine.addFormats({TEXT_FORMAT, JSON_FORMAT});
    if (const auto code = commandLine.parse(arguments))
        return *code;

    const std::optional<int> wanted = commandLine.number(articleOption);
    if (!wanted)
        return KTExitUsage;
    const std::optional<QList<int>> pages = commandLine.numbers(pagesOption);
    if (!pages)
        return KTExitUsage;
    const std::optional<KTArticleVariants> chosen = choices(commandLine.parser().values(chooseOption));
    const std::optional<QString> format = chosen ? commandLine.format() : std::nullopt;
    if (!format)
        return KTExitUsage;

    std::optional<KTArticleModel> article;
    if (const auto failure = KTCatalogueFile(commandLine.fileName()).readArticle(*wanted, &article))
        return *failure;
    if (!article)
        return commandLine.failNoArticle(*wanted);

    QStringList objections;
    for (const QString &key : chosen->keys())
        objections.append(objection(article->options, key, chosen->value(key, QString())));
    if (!pages->isEmpty())
        objections.append(article->objectionToPages(pages->constLast()));
    objections.removeAll(QString());
    if (!objections.isEmpty())
        return commandLine.failArticle(*wanted, objections.constFirst());

    Order order {*article, std::nullopt, article->options.defaultVariants()};
    if (!pages->isEmpty())
        order.pages = pages->constLast();
    order.choice.insert(*chosen);
    KTSpool spool;
    spool.write(*format == JSON_FORMAT ? json(order) : text(order));
    return KTCommandLine::deliver(&spool);
}
