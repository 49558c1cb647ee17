#include "KTCommandLine.h"

#include "KTConsole.h"
#include "KTToolText.h"

#include <QCoreApplication>

namespace {
const QString HELP_OPTION = QStringLiteral("help");
const QString FORMAT_OPTION = QStringLiteral("format");
const QString JSON_OPTION = QStringLiteral("json");
} // namespace

KTCommandLine::KTCommandLine(const QString &command, const QString &description, const QString &example,
                             Files files)
    : myCommand(command)
    , myFiles(files)
{
    myParser.setApplicationDescription(
        KTToolText::tr("%1\n\nExample:\n  %2 %3 %4")
            .arg(description, QCoreApplication::applicationName(), command, example));
    myParser.addOption({
        {QStringLiteral("h"), HELP_OPTION},
        KTToolText::tr("Displays this help.")
    });
    const QString file = QStringLiteral("FILE");
    if (files != Files::None) {
        myParser.addPositionalArgument(file, KTToolText::tr("The catalogue; - for standard input."),
                                       files == Files::One ? file : QStringLiteral("[FILE...]"));
    }
}

void KTCommandLine::addFormats(const QStringList &formats)
{
    myFormats = formats;
    myParser.addOptions({
        {FORMAT_OPTION,
         KTToolText::tr("One of %1; %2 by default.")
             .arg(formats.join(QStringLiteral(", ")),    formats.constFirst()),
         QStringLiteral("FORMAT"), formats.constFirst()},
        {JSON_OPTION, KTToolText::tr("The same as --format json.")},
    });
}

std::optional<QString> KTCommandLine::format() const
{
    const QString format = myParser.isSet(JSON_OPTION) ? JSON_OPTION : myParser.value(FORMAT_OPTION);
    if (myFormats.contains(format))
        return format;
    failChoice(FORMAT_OPTION, format, myFormats);
    return std::nullopt;
}

std::optional<KTExitCode> KTCommandLine::parse(const QStringList &arguments)
{
    if (!myParser.parse(QStringList(QCoreApplication::applicationName()) + arguments))
        return KTConsole::failUsage(myParser.errorText());
    if (myParser.isSet(HELP_OPTION))
        return KTConsole::print(helpText());
    if (myFiles == Files::One && myParser.positionalArguments().size() != 2)
        return KTConsole::failUsage(KTToolText::tr("'%1' needs one file").arg(myCommand));
    return std::nullopt;
}

void KTCommandLine::addOption(const KTOptionRow &row)
{
    QCommandLineOption option(row.name, KTToolText::tr(row.description), QString::fromLatin1(row.valueName));
    if (*row.defaultValue)
        option.setDefaultValue(QString::fromLatin1(row.defaultValue));
    myParser.addOption(option);
}

/** Qt would put the options before the command, where they are not understood. */
QString KTCommandLine::helpText() const
{
    // Qt's own headings would need Qt's own translations.
    const QString text = myParser.helpText()
                             .replace(QStringLiteral("\nOptions:\n"), KTToolText::tr("\nOptions:\n"))
                             .replace(QStringLiteral("\nArguments:\n"), KTToolText::tr("\nArguments:\n"));
    const QString firstLine = text.section(QLatin1Char('\n'), 0, 0);
    const QString operands = firstLine.section(QLatin1Char(']'), 1).trimmed();
    return KTToolText::tr("Usage: %1\n")
               .arg(QStringList {QCoreApplication::applicationName(), myCommand, operands,
                                 QStringLiteral("[OPTIONS]")}
                        .join(QLatin1Char(' ')))
        + text.mid(firstLine.size() + 1);
}

QString KTCommandLine::fileName() const
{
    return myParser.positionalArguments().at(1);
}

QStringList KTCommandLine::fileNames() const
{
    return myParser.positionalArguments().mid(1);
}

std::optional<int> KTCommandLine::number(const QCommandLineOption &option) const
{
    const std::optional<QList<int>> values = numbers(option);
    if (!values)
        return std::nullopt;
    if (!values->isEmpty())
        return values->constLast();
    KTConsole::failUsage(KTToolText::tr("'%1' needs --%2").arg(myCommand, option.names().constFirst()));
    return std::nullopt;
}

std::optional<QList<int>> KTCommandLine::numbers(const QCommandLineOption &option) const
{
    QList<int> numbers;
    for (const QString &text : myParser.values(option)) {
        bool ok = false;
        numbers.append(text.toInt(&ok));
        if (!ok) {
            KTConsole::failUsage(
                KTToolText::tr("'%1' is no number for --%2").arg(text, option.names().constFirst()));
            return std::nullopt;
        }
    }
    return numbers;
}

std::optional<int> KTCommandLine::number(const QCommandLineParser &parser, const QString &option, int minimum)
{
    bool ok = false;
    const int number = parser.value(option).toInt(&ok);
    if (ok && number >= minimum)
        return number;
    KTConsole::failUsage(KTToolText::tr("'%1' is no number for %2%3")
                             .arg(parser.value(option),
                                  option.size() == 1 ? QStringLiteral("-") : QStringLiteral("--"), option));
    return std::nullopt;
}

KTExitCode KTCommandLine::failChoice(const QString &option, const QString &value, const QStringList &choices)
{
    return KTConsole::failUsage(KTToolText::tr("'%1' is no value of --%2; possible: %3")
                                    .arg(value, option, choices.join(QStringLiteral(", "))));
}

KTExitCode KTCommandLine::failNoArticle(int articleId) const
{
    return KTConsole::fail(
        KTExitUnanswerable,
        KTToolText::tr("%1: there is no article %2").arg(fileName(), QString::number(articleId)));
}

KTExitCode KTCommandLine::failArticle(int articleId, const QString &objection) const
{
    return KTConsole::fail(
        KTExitUnanswerable,
        KTToolText::tr("%1: article %2 %3").arg(fileName(), QString::number(articleId), objection));
}
