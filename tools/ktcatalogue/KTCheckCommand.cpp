#include "KTCheckCommand.h"

#include "KTCommandLine.h"
#include "KTFileName.h"
#include "KTFindingWriter.h"
#include "KTProgressLine.h"

#include <KTCatalogueChecker.h>
#include <KTNearestWord.h>

#include <QFile>

#include <limits>
#include <unistd.h>

namespace {

const QString FILES_FROM = QStringLiteral("files-from");
const QString FAIL_ON = QStringLiteral("fail-on");
const QString IGNORE = QStringLiteral("ignore");
const QString ERROR = QStringLiteral("error");
const QString PEDANTIC = QStringLiteral("pedantic");
const QString MAX_FINDINGS = QStringLiteral("max-findings");
const QString QUIET = QStringLiteral("quiet");
const QString LIST_RULES = QStringLiteral("list-rules");
const QString EXPLAIN = QStringLiteral("explain");
const QString COLOR = QStringLiteral("color");

const QString NEVER = QStringLiteral("never");
const QString AUTO = QStringLiteral("auto");
const QString ALWAYS = QStringLiteral("always");
constexpr QChar SEPARATOR = u',';
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

struct OptionRow
{
    const QString &name;
    /** Empty for an option without a value. */
    const char *valueName;
    const char *defaultValue;
    const char *description;
};

const OptionRow OPTIONS[] = {
    {FILES_FROM,   "FILE",     "",        "Further files, named in FILE line by line; - for standard input."           },
    {FAIL_ON,      "SEVERITY", "warning",
     "The least severity for exit code 1: error, warning (the default), hint or never."                                },
    {IGNORE,       "RULE",     "",        "Leaves out a rule, or several, separated by commas."                        },
    {ERROR,        "RULE",     "",        "Takes the findings of a rule, or of several, as errors."                    },
    {PEDANTIC,     "",         "",        "Takes warnings as errors and hints as warnings."                            },
    {MAX_FINDINGS, "N",        "",        "Shows the first N findings; all of them are counted."                       },
    {QUIET,        "",         "",        "Neither summary nor progress on standard error."                            },
    {LIST_RULES,   "",         "",        "Lists the rules."                                                           },
    {EXPLAIN,      "RULE",     "",        "Explains a rule."                                                           },
    {COLOR,        "WHEN",     "auto",    "auto (the default: on a terminal, unless NO_COLOR is set), always or never."},
};

void addOptions(QCommandLineParser *parser)
{
    for (const OptionRow &row : OPTIONS) {
        QCommandLineOption option(row.name, QString::fromLatin1(row.description),
                                  QString::fromLatin1(row.valueName));
        if (*row.defaultValue)
            option.setDefaultValue(QString::fromLatin1(row.defaultValue));
        parser->addOption(option);
    }
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

/** The severity from which on findings count; an exit code for a word that is none. */
std::optional<KTExitCode> readFailOn(const QString &word, std::optional<KTSeverity> *failOn)
{
    QStringList words;
    for (const KTSeverity severity : SEVERITIES) {
        words.append(KTCheckRules::name(severity));
        if (word == words.constLast())
            *failOn = severity;
    }
    words.append(NEVER);
    return words.contains(word) ? std::nullopt
                                : std::make_optional(KTCommandLine::failChoice(FAIL_ON, word, words));
}

/** What is to be done; an exit code for wrong usage, which is reported. */
std::optional<KTExitCode> readOptions(const KTCommandLine &commandLine, Options *options)
{
    const QCommandLineParser &parser = commandLine.parser();
    const std::optional<QString> format = commandLine.format();
    if (!format)
        return KTExitUsage;
    options->format = *format;
    const QString color = parser.value(COLOR);
    const QStringList colors {AUTO, ALWAYS, NEVER};
    if (!colors.contains(color))
        return KTCommandLine::failChoice(COLOR, color, colors);
    options->isColored = color == ALWAYS || (color == AUTO && isTerminalColored());
    if (const auto code = readFailOn(parser.value(FAIL_ON), &options->failOn))
        return code;
    const QStringList ignored = parser.values(IGNORE).join(SEPARATOR).split(SEPARATOR, Qt::SkipEmptyParts);
    const QStringList errors = parser.values(ERROR).join(SEPARATOR).split(SEPARATOR, Qt::SkipEmptyParts);
    for (const QString &name : ignored + errors) {
        if (!findRule(name))
            return KTExitUsage;
    }
    for (const QString &name : ignored)
        options->severities.ignore(KTCheckRules::find(name)->rule);
    for (const QString &name : errors)
        options->severities.raiseToError(KTCheckRules::find(name)->rule);
    options->severities.setPedantic(parser.isSet(PEDANTIC));
    options->isQuiet = parser.isSet(QUIET);
    bool ok = true;
    if (parser.isSet(MAX_FINDINGS))
        options->maximum = parser.value(MAX_FINDINGS).toInt(&ok);
    if (!ok || options->maximum < 0) {
        return KTCommandLine::failUsage(
            QStringLiteral("'%1' is no number for --%2").arg(parser.value(MAX_FINDINGS), MAX_FINDINGS));
    }
    return std::nullopt;
}

/** The names in the file, one per line; an exit code when it cannot be read. */
std::optional<KTExitCode> readNames(const QString &listName, QStringList *names)
{
    QFile file;
    const QString error = KTFileName::open(&file, listName);
    if (!error.isEmpty())
        return KTCommandLine::fail(KTExitUnreadable, QStringLiteral("%1: error: %2").arg(listName, error));
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        if (!line.isEmpty())
            names->append(KTFileName::fromBytes(line));
    }
    return std::nullopt;
}

/** What the library logs about the texts that it is asked about, the findings say better. */
void ignoreMessage(QtMsgType, const QMessageLogContext &, const QString &) { }

/** False when the file is no catalogue, which is reported. */
bool checkFile(KTCatalogueChecker *checker, const QString &name)
{
    QFile file;
    const QString error = KTFileName::open(&file, name);
    if (error.isEmpty())
        return checker->check(name, &file);
    checker->reportUnreadable(name, error);
    return false;
}

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
        if (!checkFile(&checker, name))
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
    commandLine.addFormats(KTFindingWriter::formats());
    addOptions(&commandLine.parser());
    if (const auto code = commandLine.parse(arguments))
        return *code;

    const QCommandLineParser &parser = commandLine.parser();
    if (parser.isSet(LIST_RULES))
        return KTCommandLine::print(ruleList());
    if (parser.isSet(EXPLAIN)) {
        const KTRuleRow *const row = findRule(parser.value(EXPLAIN));
        return row ? KTCommandLine::print(explanation(*row)) : KTExitUsage;
    }

    Options options;
    if (const auto code = readOptions(commandLine, &options))
        return *code;
    QStringList names = commandLine.fileNames();
    for (const QString &listName : parser.values(FILES_FROM)) {
        if (const auto code = readNames(listName, &names))
            return *code;
    }
    if (names.isEmpty() && !parser.isSet(FILES_FROM))
        return KTCommandLine::failUsage(QStringLiteral("'check' needs a file"));

    const QtMessageHandler handler = qInstallMessageHandler(&ignoreMessage);
    const KTExitCode code = checkFiles(names, options);
    qInstallMessageHandler(handler);
    return code;
}
