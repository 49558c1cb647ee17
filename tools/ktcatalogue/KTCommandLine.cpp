#include "KTCommandLine.h"

#include "KTSpool.h"
#include "KTTerminalText.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

namespace {
const QString HELP_OPTION = QStringLiteral("help");
}

KTCommandLine::KTCommandLine(const QString &command, const QString &description, const QString &example,
                             Files files)
    : myCommand(command)
    , myFiles(files)
{
    myParser.setApplicationDescription(
        QStringLiteral("%1\n\nExample:\n  %2 %3 %4")
            .arg(description, QCoreApplication::applicationName(), command, example));
    myParser.addOption({
        {QStringLiteral("h"), HELP_OPTION},
        QStringLiteral("Displays this help.")
    });
    if (files == Files::None)
        return;
    myParser.addPositionalArgument(
        QStringLiteral("FILE"), QStringLiteral("The catalogue; - for standard input."),
        command + (files == Files::One ? QStringLiteral(" FILE") : QStringLiteral(" [FILE...]")));
}

std::optional<KTExitCode> KTCommandLine::parse(const QStringList &arguments)
{
    if (!myParser.parse(QStringList(QCoreApplication::applicationName()) + arguments))
        return failUsage(myParser.errorText());
    if (myParser.isSet(HELP_OPTION))
        return print(myParser.helpText());
    if (myFiles == Files::One && myParser.positionalArguments().size() != 2)
        return failUsage(QStringLiteral("'%1' needs one file").arg(myCommand));
    return std::nullopt;
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
    failUsage(QStringLiteral("'%1' needs --%2").arg(myCommand, option.names().constFirst()));
    return std::nullopt;
}

std::optional<QList<int>> KTCommandLine::numbers(const QCommandLineOption &option) const
{
    QList<int> numbers;
    for (const QString &text : myParser.values(option)) {
        bool ok = false;
        numbers.append(text.toInt(&ok));
        if (!ok) {
            failUsage(QStringLiteral("'%1' is no number for --%2").arg(text, option.names().constFirst()));
            return std::nullopt;
        }
    }
    return numbers;
}

KTExitCode KTCommandLine::fail(KTExitCode code, const QString &message)
{
    const QByteArray line = KTTerminalText::visible(message).toUtf8() + '\n';
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    return code;
}

KTExitCode KTCommandLine::failUsage(const QString &message)
{
    const QString name = QCoreApplication::applicationName();
    return fail(KTExitUsage, QStringLiteral("%1: %2; see '%1 --help'").arg(name, message));
}

KTExitCode KTCommandLine::failNoArticle(int articleId) const
{
    return fail(KTExitUnanswerable,
                QStringLiteral("%1: there is no article %2").arg(fileName(), QString::number(articleId)));
}

KTExitCode KTCommandLine::failArticle(int articleId, const QString &objection) const
{
    return fail(KTExitUnanswerable,
                QStringLiteral("%1: article %2 %3").arg(fileName(), QString::number(articleId), objection));
}

KTExitCode KTCommandLine::print(const QString &text)
{
    KTSpool spool;
    spool.write(text);
    return deliver(&spool);
}

KTExitCode KTCommandLine::deliver(KTSpool *spool)
{
    QFile output;
    if (output.open(stdout, QIODevice::WriteOnly) && spool->deliver(&output) && output.flush())
        return KTExitSuccess;
    return fail(KTExitUnreadable, QStringLiteral("the output cannot be written"));
}
