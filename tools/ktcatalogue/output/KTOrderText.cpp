#include "KTOrderText.h"

#include "KTMarkdownText.h"
#include "KTTerminalText.h"
#include "KTToolText.h"

#include <QJsonArray>

namespace {

/** "30 pages, alcolor:red,coverphoto:yes" */
QString choice(const KTSavedOrder &order)
{
    QStringList parts;
    if (order.pages)
        parts.append(KTToolText::tr("%1 pages").arg(*order.pages));
    if (!order.mcf.isEmpty())
        parts.append(order.mcf);
    return parts.isEmpty() ? KTToolText::tr("the article without options") : parts.join(QStringLiteral(", "));
}

QString nearestText(const KTSavedOrder &order, const KTOrderVerdict &verdict)
{
    const std::optional<KTSavedOrder> nearest = KTOrderCheck::nearest(order, verdict);
    return nearest ? choice(*nearest) : KTToolText::tr("nothing");
}

} // namespace

QString KTOrderText::lines(const QString &fileName, const KTSavedOrder &order, const KTOrderVerdict &verdict)
{
    QString text;
    for (const KTOrderProblem &problem : verdict.problems) {
        text += KTToolText::tr("%1:%2: article %3 %4 [%5]\n")
                    .arg(KTTerminalText::escaped(fileName), QString::number(order.line),
                         QString::number(order.articleId), KTTerminalText::escaped(problem.text),
                         KTOrderProblem::name(problem.reason));
    }
    if (verdict.draft)
        text += KTToolText::tr("    nearest: %1\n").arg(KTTerminalText::escaped(nearestText(order, verdict)));
    return text;
}

QString KTOrderText::tableRow(const KTSavedOrder &order, const KTOrderVerdict &verdict)
{
    QStringList problems;
    for (const KTOrderProblem &problem : verdict.problems)
        problems.append(KTMarkdownText::escaped(problem.text));
    return QStringLiteral("| %1 | %2 | %3 | %4 |\n")
        .arg(QString::number(order.line), QString::number(order.articleId),
             problems.join(QStringLiteral("<br>")), KTMarkdownText::escaped(nearestText(order, verdict)));
}

QJsonObject KTOrderText::toJSON(const KTSavedOrder &order, const KTOrderVerdict &verdict)
{
    const auto insertChoice = [](QJsonObject *object, const KTSavedOrder &choice) {
        if (choice.pages)
            object->insert(QStringLiteral("pages"), *choice.pages);
        object->insert(QStringLiteral("mcf"), choice.mcf);
    };
    QJsonArray problems;
    for (const KTOrderProblem &problem : verdict.problems) {
        problems.append(QJsonObject {
            {QStringLiteral("reason"),  KTOrderProblem::name(problem.reason)},
            {QStringLiteral("message"), problem.text                        },
        });
    }
    QJsonObject object {
        {QStringLiteral("line"),     order.line     },
        {QStringLiteral("article"),  order.articleId},
        {QStringLiteral("problems"), problems       },
    };
    insertChoice(&object, order);
    if (const std::optional<KTSavedOrder> nearest = KTOrderCheck::nearest(order, verdict)) {
        QJsonObject choice;
        insertChoice(&choice, *nearest);
        object.insert(QStringLiteral("nearest"), choice);
    }
    return object;
}
