#include "KTRuleOptions.h"

#include "KTConsole.h"
#include "KTToolText.h"

#include <KTArithmetic.h>
#include <KTNearestWord.h>

#include <QCommandLineParser>

#include <algorithm>

namespace {

constexpr QChar SEPARATOR = u',';

} // namespace

const QString KTRuleOptions::IGNORE = QStringLiteral("ignore");
const QString KTRuleOptions::LIST_RULES = QStringLiteral("list-rules");
const QString KTRuleOptions::EXPLAIN = QStringLiteral("explain");

KTRuleOptions::KTRuleOptions(const QVector<Rule> &rules)
    : myRules(rules)
{
}

std::optional<KTExitCode> KTRuleOptions::answer(const QCommandLineParser &parser) const
{
    if (parser.isSet(LIST_RULES))
        return KTConsole::print(list());
    if (!parser.isSet(EXPLAIN))
        return std::nullopt;
    const std::optional<int> number = find(parser.value(EXPLAIN));
    if (!number)
        return KTExitUsage;
    const Rule &rule = myRules.at(*number);
    return KTConsole::print(
        QStringLiteral("%1 (%2): %3.\n%4\n").arg(rule.name, rule.weight, rule.summary, rule.explanation));
}

std::optional<QVector<int>> KTRuleOptions::numbers(const QCommandLineParser &parser,
                                                   const QString &option) const
{
    QVector<int> numbers;
    for (const QString &name : parser.values(option).join(SEPARATOR).split(SEPARATOR, Qt::SkipEmptyParts)) {
        const std::optional<int> number = find(name);
        if (!number)
            return std::nullopt;
        numbers.append(*number);
    }
    return numbers;
}

/** Reports a name that no rule has. */
std::optional<int> KTRuleOptions::find(const QString &name) const
{
    QStringList names;
    for (const Rule &rule : myRules)
        names.append(rule.name);
    const int number = KTArithmetic::saturated(names.indexOf(name));
    if (number >= 0)
        return number;
    const QString nearest = KTNearestWord::find(name, names);
    KTConsole::failUsage(
        KTToolText::tr("there is no rule '%1'").arg(name)
        + (nearest.isEmpty() ? QString() : KTToolText::tr(", did you mean '%1'?").arg(nearest)));
    return std::nullopt;
}

QString KTRuleOptions::list() const
{
    int nameWidth = 0;
    int weightWidth = 0;
    for (const Rule &rule : myRules) {
        nameWidth = std::max(nameWidth, KTArithmetic::sizeOf(rule.name));
        weightWidth = std::max(weightWidth, KTArithmetic::sizeOf(rule.weight));
    }
    QString text;
    for (const Rule &rule : myRules)
        text += QStringLiteral("%1  %2  %3\n")
                    .arg(rule.name, -nameWidth)
                    .arg(rule.weight, -weightWidth)
                    .arg(rule.summary);
    return text;
}
