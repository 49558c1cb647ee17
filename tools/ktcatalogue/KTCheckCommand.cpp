#include "KTCheckCommand.h"

#include "KTCatalogueChecker.h"
#include "KTCommandLine.h"
#include "KTFindingWriter.h"
#include "KTNearestWord.h"
#include "KTProgressLine.h"

#include <QFile>

#include <cstdio>
#include <limits>
#include <unistd.h>

namespace {

const QString NEVER = QStringLiteral("never");
const QString AUTO = QStringLiteral("auto");
const QString ALWAYS = QStringLiteral("always");
const QString STANDARD_INPUT = QStringLiteral("-");
constexpr KTSeverity SEVERITIES[] = {KTSeverity::Error, KTSeverity::Warning, KTSeverity::Hint};

struct Options
{
    KTRuleSeverities severities;
    QString format;
    bool isColored = false;
    bool isQuiet = false;
    /** Nothing when findings do not matter for the exit code. */
    std::optional<KTSeverity> failOn;
    int maximum = std::numeric_limits<int>::max();
};

KTExitCode failChoice(const QString &option, const QString &value, const QStringList &choices)
{
    return KTCommandLine::failUsage(QStringLiteral("'%1' is no value of --%2; possible: %3")
                                        .arg(value, option, choices.join(QStringLiteral(", "))));
}

/** Reports a rule that does not exist. */
const KTRuleRow *findRule(const QString &name)
{
    const KTRuleRow *const row = KTCheckRules::find(name);
    if (!row) {
        const QString nearest = KTNearestWord::find(name, KTCheckRules::names());
        KTCommandLine::failUsage(
            QStringLiteral("there is no rule '%1'").arg(name)
            + (nearest.isEmpty() ? QString() : QStringLiteral(", did you mean '%1'?").arg(nearest)));
    }
    return row;
}

QString ruleList()
{
    QString text;
    for (int i = 0; i < KTCheckRules::COUNT; ++i) {
        const KTRuleRow &row = KTCheckRules::at(i);
        text += QStringLiteral("%1 %2 %3\n")
                    .arg(QString::fromLatin1(row.name), -20)
                    .arg(KTCheckRules::name(row.severity), -8)
                    .arg(QString::fromLatin1(row.summary));
    }
    return text;
}

QString explanation(const KTRuleRow &row)
{
    return QStringLiteral("%1 (%2): %3.\n%4\n")
        .arg(QString::fromLatin1(row.name), KTCheckRules::name(row.severity),
             QString::fromLatin1(row.summary), QString::fromLatin1(row.explanation));
}

bool isTerminalColored()
{
    return isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR")
        && qgetenv("TERM") != QByteArrayLiteral("dumb");
}

/** The names in the file, one per line; an exit code when it cannot be read. */
std::optional<KTExitCode> readNames(const QString &listName, QStringList *names)
{
    QFile file(listName);
    const bool isOpen
        = listName == STANDARD_INPUT ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        return KTCommandLine::fail(KTExitUnreadable,
                                   QStringLiteral("%1: error: %2").arg(listName, file.errorString()));
    }
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        if (!line.isEmpty())
            names->append(QFile::decodeName(line));
    }
    return std::nullopt;
}

/** What the library logs about the texts that it is asked about, the findings say better. */
void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

KTExitCode checkFiles(const QStringList &names, const Options &options)
{
    const auto writer = KTFindingWriter::create(options.format, options.isColored);
    KTProgressLine progress(!options.isQuiet);
    KTFindingCounts total;
    KTFindingCounts ofFile;
    QString name;
    bool isFailed = false;
    int written = 0;
    KTCatalogueChecker checker(
        [&](const KTFinding &finding) {
            ofFile.add(finding.severity);
            isFailed = isFailed || (options.failOn && finding.severity >= *options.failOn);
            if (written == options.maximum)
                return;
            ++written;
            progress.clear();
            writer->write(finding);
        },
        options.severities);
    checker.setListener([&](int articles) {
        if (progress.isDue())
            progress.show(QStringLiteral("%1: %2 articles").arg(name, QString::number(articles)));
    });

    writer->begin();
    for (const QString &file : names) {
        name = file;
        ofFile = KTFindingCounts();
        if (!checker.checkFile(name))
            ++ofFile.unreadable;
        total.add(ofFile);
        progress.clear();
        if (!writer->flush())
            break;
        if (!options.isQuiet)
            KTCommandLine::fail(KTExitSuccess, QStringLiteral("%1: %2").arg(name, ofFile.toText()));
    }
    writer->end(total);
    if (!writer->flush()) {
        // A reader that has seen enough needs no message.
        return writer->isReaderGone()
            ? KTExitUnreadable
            : KTCommandLine::fail(KTExitUnreadable, QStringLiteral("the output cannot be written"));
    }
    if (!options.isQuiet) {
        QString text = QStringLiteral("total: %1").arg(total.toText());
        if (written < total.total())
            text += QStringLiteral(", %1 of them not shown").arg(total.total() - written);
        if (total.unreadable > 0)
            text += QStringLiteral("; %1 of %2 files unreadable").arg(total.unreadable).arg(names.size());
        KTCommandLine::fail(KTExitSuccess, text);
    }
    if (total.unreadable > 0)
        return KTExitUnreadable;
    return isFailed ? KTExitFindings : KTExitSuccess;
}

} // namespace

KTExitCode KTCheckCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("check"),
        QStringLiteral("Finds what the application would pass over in silence: where it stands, and what the "
                       "application makes of it. Exits with 0 when nothing was found, 1 for findings, 2 for "
                       "files that are not readable."),
        QStringLiteral("examples/catalogue.xml --fail-on=error"), KTCommandLine::Files::Any);
    const QCommandLineOption filesFromOption(QStringLiteral("files-from"),
                                             QStringLiteral("Further files, named in FILE line by line."),
                                             QStringLiteral("FILE"));
    const QCommandLineOption formatOption(QStringLiteral("format"),
                                          QStringLiteral("text (the default), json or sarif."),
                                          QStringLiteral("FORMAT"), QStringLiteral("text"));
    const QCommandLineOption failOnOption(
        QStringLiteral("fail-on"),
        QStringLiteral("The least severity for exit code 1: error, warning (the default), hint or never."),
        QStringLiteral("SEVERITY"), QStringLiteral("warning"));
    const QCommandLineOption ignoreOption(QStringLiteral("ignore"), QStringLiteral("Leaves out a rule."),
                                          QStringLiteral("RULE"));
    const QCommandLineOption errorOption(QStringLiteral("error"),
                                         QStringLiteral("Takes a rule's findings as errors."),
                                         QStringLiteral("RULE"));
    const QCommandLineOption pedanticOption(
        QStringLiteral("pedantic"), QStringLiteral("Takes warnings as errors and hints as warnings."));
    const QCommandLineOption maximumOption(
        QStringLiteral("max-findings"),
        QStringLiteral("Shows the first N findings; all of them are counted."), QStringLiteral("N"));
    const QCommandLineOption quietOption(QStringLiteral("quiet"),
                                         QStringLiteral("Neither summary nor progress on standard error."));
    const QCommandLineOption listOption(QStringLiteral("list-rules"), QStringLiteral("Lists the rules."));
    const QCommandLineOption explainOption(QStringLiteral("explain"), QStringLiteral("Explains a rule."),
                                           QStringLiteral("RULE"));
    const QCommandLineOption colorOption(
        QStringLiteral("color"),
        QStringLiteral("auto (the default: on a terminal, unless NO_COLOR is set), always or never."),
        QStringLiteral("WHEN"), AUTO);
    commandLine.parser().addOptions({filesFromOption, formatOption, failOnOption, ignoreOption, errorOption,
                                     pedanticOption, maximumOption, quietOption, listOption, explainOption,
                                     colorOption});
    if (const auto code = commandLine.parse(arguments))
        return *code;
    const QCommandLineParser &parser = commandLine.parser();

    if (parser.isSet(listOption))
        return KTCommandLine::print(ruleList());
    if (parser.isSet(explainOption)) {
        const KTRuleRow *const row = findRule(parser.value(explainOption));
        return row ? KTCommandLine::print(explanation(*row)) : KTExitUsage;
    }

    Options options;
    options.format = parser.value(formatOption);
    if (!KTFindingWriter::formats().contains(options.format))
        return failChoice(QStringLiteral("format"), options.format, KTFindingWriter::formats());
    const QString color = parser.value(colorOption);
    if (!QStringList {AUTO, ALWAYS, NEVER}.contains(color))
        return failChoice(QStringLiteral("color"), color, {AUTO, ALWAYS, NEVER});
    options.isColored = color == ALWAYS || (color == AUTO && isTerminalColored());
    const QString failOn = parser.value(failOnOption);
    QStringList severities;
    for (const KTSeverity severity : SEVERITIES) {
        severities.append(KTCheckRules::name(severity));
        if (failOn == severities.constLast())
            options.failOn = severity;
    }
    if (!options.failOn && failOn != NEVER)
        return failChoice(QStringLiteral("fail-on"), failOn, severities + QStringList(NEVER));
    for (const QString &name : parser.values(ignoreOption)) {
        const KTRuleRow *const row = findRule(name);
        if (!row)
            return KTExitUsage;
        options.severities.ignore(row->rule);
    }
    for (const QString &name : parser.values(errorOption)) {
        const KTRuleRow *const row = findRule(name);
        if (!row)
            return KTExitUsage;
        options.severities.raiseToError(row->rule);
    }
    options.severities.setPedantic(parser.isSet(pedanticOption));
    options.isQuiet = parser.isSet(quietOption);
    const std::optional<QList<int>> maximum = commandLine.numbers(maximumOption);
    if (!maximum)
        return KTExitUsage;
    if (!maximum->isEmpty())
        options.maximum = std::max(0, maximum->constLast());

    QStringList names = commandLine.fileNames();
    for (const QString &listName : parser.values(filesFromOption)) {
        if (const auto code = readNames(listName, &names))
            return *code;
    }
    if (names.isEmpty() && !parser.isSet(filesFromOption))
        return KTCommandLine::failUsage(QStringLiteral("'check' needs a file"));

    const QtMessageHandler handler = qInstallMessageHandler(&ignoreMessage);
    const KTExitCode code = checkFiles(names, options);
    qInstallMessageHandler(handler);
    return code;
}
