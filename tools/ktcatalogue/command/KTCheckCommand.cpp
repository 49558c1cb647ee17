#include "KTCheckCommand.h"

#include "KTCommandLine.h"
#include "KTConsole.h"
#include "KTFileName.h"
#include "KTFindingWriter.h"
#include "KTLogSilence.h"
#include "KTParallelCheck.h"
#include "KTRuleOptions.h"
#include "KTToolText.h"

#include <KTArithmetic.h>
#include <KTCatalogueChecker.h>
#include <KTCatalogueText.h>

#include <QFile>

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

namespace {

const QString FILES_FROM = QStringLiteral("files-from");
const QString FAIL_ON = QStringLiteral("fail-on");
const QString ERROR = QStringLiteral("error");
const QString PEDANTIC = QStringLiteral("pedantic");
const QString MAX_FINDINGS = QStringLiteral("max-findings");
const QString JOBS = QStringLiteral("j");
const QString QUIET = QStringLiteral("quiet");
const QString COLOR = QStringLiteral("color");

const QString NEVER = QStringLiteral("never");
const QString AUTO = QStringLiteral("auto");
const QString ALWAYS = QStringLiteral("always");
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
    /** How many files are checked at once. */
    int jobs = 1;
};

const KTOptionRow OPTIONS[] = {
    optionRow(
        FILES_FROM, "FILE", "",
        QT_TRANSLATE_NOOP("KTToolText", "Further files, named in FILE line by line; - for standard input.")),
    optionRow(FAIL_ON, "SEVERITY", "warning",
              QT_TRANSLATE_NOOP(
                  "KTToolText",
                  "The least severity for exit code 1: error, warning (the default), hint or never.")),
    optionRow(KTRuleOptions::IGNORE, "RULE", "",
              QT_TRANSLATE_NOOP("KTToolText", "Leaves out a rule, or several, separated by commas.")),
    optionRow(ERROR, "RULE", "",
              QT_TRANSLATE_NOOP("KTToolText", "Takes the findings of a rule, or of several, as errors.")),
    optionRow(PEDANTIC, "", "",
              QT_TRANSLATE_NOOP("KTToolText", "Takes warnings as errors and hints as warnings.")),
    optionRow(
        JOBS, "N", "1",
        QT_TRANSLATE_NOOP("KTToolText", "Checks N files at once; the output stays the same. 1 by default.")),
    optionRow(MAX_FINDINGS, "N", "",
              QT_TRANSLATE_NOOP("KTToolText", "Shows the first N findings; all of them are counted.")),
    optionRow(QUIET, "", "",
              QT_TRANSLATE_NOOP("KTToolText", "Neither summary nor progress on standard error.")),
    optionRow(KTRuleOptions::LIST_RULES, "", "", QT_TRANSLATE_NOOP("KTToolText", "Lists the rules.")),
    optionRow(KTRuleOptions::EXPLAIN, "RULE", "", QT_TRANSLATE_NOOP("KTToolText", "Explains a rule.")),
    optionRow(
        COLOR, "WHEN", "auto",
        QT_TRANSLATE_NOOP("KTToolText",
                          "auto (the default: on a terminal, unless NO_COLOR is set), always or never.")),
};

KTRuleOptions ruleOptions()
{
    QVector<KTRuleOptions::Rule> rules;
    for (int i = 0; i < KTCheckRules::COUNT; ++i) {
        const KTRuleRow &row = KTCheckRules::at(i);
        rules.append({QString::fromLatin1(row.name), KTCheckRules::name(row.severity),
                      KTCatalogueText::tr(row.summary), KTCatalogueText::tr(row.explanation)});
    }
    return KTRuleOptions(rules);
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
    options->isColored = color == ALWAYS || (color == AUTO && KTConsole::isColored());
    if (const auto code = readFailOn(parser.value(FAIL_ON), &options->failOn))
        return code;
    const KTRuleOptions rules = ruleOptions();
    const std::optional<QVector<int>> ignored = rules.numbers(parser, KTRuleOptions::IGNORE);
    const std::optional<QVector<int>> errors = ignored ? rules.numbers(parser, ERROR) : std::nullopt;
    if (!errors)
        return KTExitUsage;
    for (const int number : *ignored)
        options->severities.ignore(KTCheckRules::at(number).rule);
    for (const int number : *errors)
        options->severities.raiseToError(KTCheckRules::at(number).rule);
    options->severities.setPedantic(parser.isSet(PEDANTIC));
    options->isQuiet = parser.isSet(QUIET);
    if (parser.isSet(MAX_FINDINGS)) {
        const std::optional<int> maximum = KTCommandLine::number(parser, MAX_FINDINGS, 0);
        if (!maximum)
            return KTExitUsage;
        options->maximum = *maximum;
    }
    const std::optional<int> jobs = KTCommandLine::number(parser, JOBS, 1);
    if (!jobs)
        return KTExitUsage;
    options->jobs = *jobs;
    return std::nullopt;
}

/** The names in the file, one per line; an exit code when it cannot be read. */
std::optional<KTExitCode> readNames(const QString &listName, QStringList *names)
{
    QFile file;
    const QString error = KTFileName::open(&file, listName);
    if (!error.isEmpty())
        return KTConsole::fail(KTExitUnreadable, QStringLiteral("%1: error: %2").arg(listName, error));
    while (!file.atEnd()) {
        QByteArray line = file.readLine();
        while (line.endsWith('\n') || line.endsWith('\r'))
            line.chop(1);
        if (!line.isEmpty())
            names->append(KTFileName::fromBytes(line));
    }
    return std::nullopt;
}

/** Puts out the findings of all files as they come, and what there is to say about each file. */
class Output
{
public:
    explicit Output(const Options &options)
        : myOptions(options)
        , myWriter(KTFindingWriter::create(options.format, options.isColored))
        , myProgress(!options.isQuiet)
    {
        myWriter->begin();
    }

    KTProgressLine &progress() { return myProgress; }

    void write(const KTFinding &finding)
    {
        myCounts.add(finding.severity);
        myIsFailed = myIsFailed || (myOptions.failOn && finding.severity >= *myOptions.failOn);
        if (myWritten == myOptions.maximum)
            return;
        ++myWritten;
        myProgress.clear();
        myWriter->write(finding);
    }

    /** False when there is no use in going on, because nothing more can be written. */
    bool endFile(const QString &name, bool isReadable)
    {
        KTFindingCounts counts = std::exchange(myCounts, KTFindingCounts());
        if (!isReadable)
            ++counts.unreadable;
        myTotal.add(counts);
        myProgress.clear();
        if (!myWriter->flush())
            return false;
        if (!myOptions.isQuiet)
            KTConsole::note(QStringLiteral("%1: %2").arg(name, counts.toText()));
        return true;
    }

    KTExitCode end(int files)
    {
        myWriter->end(myTotal);
        // A reader that has seen enough needs no message.
        if (!myWriter->flush())
            return myWriter->isReaderGone() ? KTExitUnwritable : KTConsole::failToWrite();
        if (!myOptions.isQuiet) {
            QString text = KTToolText::tr("total: %1").arg(myTotal.toText());
            if (myWritten < myTotal.total())
                text += KTToolText::tr(", %1 of them not shown").arg(myTotal.total() - myWritten);
            if (myTotal.unreadable > 0)
                text += KTToolText::tr("; %1 of %2 files unreadable").arg(myTotal.unreadable).arg(files);
            KTConsole::note(text);
        }
        if (myTotal.unreadable > 0)
            return KTExitUnreadable;
        return myIsFailed ? KTExitFindings : KTExitSuccess;
    }

private:
    const Options &myOptions;
    const std::unique_ptr<KTFindingWriter> myWriter;
    KTProgressLine myProgress;
    /** Of the present file. */
    KTFindingCounts myCounts;
    KTFindingCounts myTotal;
    int myWritten = 0;
    bool myIsFailed = false;
};

void checkOneByOne(const QStringList &names, const Options &options, Output *output)
{
    QString name;
    KTCatalogueChecker checker([output](const KTFinding &finding) { output->write(finding); },
                               options.severities);
    checker.setListener([&](int articles) {
        if (output->progress().isDue())
            output->progress().show(KTToolText::tr("%1: %2 articles").arg(name, QString::number(articles)));
    });
    for (const QString &file : names) {
        name = file;
        if (!output->endFile(name, KTParallelCheck::checkFile(&checker, name)))
            return;
    }
}

void checkAtOnce(const QStringList &names, const Options &options, Output *output)
{
    KTParallelCheck check(names, options.severities, options.jobs);
    for (int i = 0; i < names.size(); ++i) {
        if (output->progress().isDue())
            output->progress().show(KTToolText::tr("%1 of %2 files").arg(i).arg(names.size()));
        const KTParallelCheck::Result result = check.take(i);
        for (const KTFinding &finding : result.findings)
            output->write(finding);
        if (!output->endFile(names.at(i), result.isReadable))
            return;
    }
}

KTExitCode checkFiles(const QStringList &names, const Options &options)
{
    Output output(options);
    // What can be read only once must be read in its turn.
    const bool hasStream = std::any_of(names.begin(), names.end(), &KTFileName::isStream);
    if (options.jobs == 1 || hasStream)
        checkOneByOne(names, options, &output);
    else
        checkAtOnce(names, options, &output);
    return output.end(KTArithmetic::sizeOf(names));
}

} // namespace

KTExitCode KTCheckCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("check"),
        KTToolText::tr("Finds what the application would pass over in silence: where it stands, and what the "
                       "application makes of it. Exits with 0 when nothing was found, 1 for findings, 2 for "
                       "files that are not readable."),
        QStringLiteral("examples/catalogue.xml --fail-on=error"), KTCommandLine::Files::Any);
    commandLine.addFormats(KTFindingWriter::formats());
    commandLine.addOptions(OPTIONS);
    if (const auto code = commandLine.parse(arguments))
        return *code;

    const QCommandLineParser &parser = commandLine.parser();
    if (const auto code = ruleOptions().answer(parser))
        return *code;

    Options options;
    if (const auto code = readOptions(commandLine, &options))
        return *code;
    QStringList names = commandLine.fileNames();
    for (const QString &listName : parser.values(FILES_FROM)) {
        if (const auto code = readNames(listName, &names))
            return *code;
    }
    if (names.isEmpty() && !parser.isSet(FILES_FROM))
        return KTConsole::failUsage(KTToolText::tr("'check' needs a file"));

    // What the library logs about the texts that it is asked about, the findings say better.
    const KTLogSilence silence;
    return checkFiles(names, options);
}
