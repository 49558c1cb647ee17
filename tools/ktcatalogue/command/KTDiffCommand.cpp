#include "KTDiffCommand.h"

#include "KTCommandLine.h"
#include "KTComparedCatalogue.h"
#include "KTConsole.h"
#include "KTDifferenceWriter.h"
#include "KTFileName.h"
#include "KTLogSilence.h"
#include "KTRuleOptions.h"
#include "KTToolText.h"

#include <KTCatalogueComparison.h>
#include <KTCatalogueText.h>
#include <KTOrderImpact.h>

#include <QFile>
#include <QSet>

#include <algorithm>
#include <numeric>

namespace {

const QString FAIL_ON = QStringLiteral("fail-on");
const QString ARTICLE = QStringLiteral("article");
const QString SUMMARY = QStringLiteral("summary");
const QString ORDERS = QStringLiteral("orders");
const QString LIST_ORDERS = QStringLiteral("list-orders");
const QString QUIET = QStringLiteral("quiet");

const QString NEVER = QStringLiteral("never");

constexpr KTDifferenceKind KINDS[]
    = {KTDifferenceKind::Breaking, KTDifferenceKind::Charge, KTDifferenceKind::Production,
       KTDifferenceKind::Offer, KTDifferenceKind::Text};

struct Options
{
    QString format;
    /** Nothing when differences do not matter for the exit code. */
    std::optional<KTDifferenceKind> failOn;
    QSet<int> ignored;
    std::optional<int> articleId;
    bool isSummary = false;
    bool isQuiet = false;
    /** Empty without one. */
    QString ordersName;
    int maximumOrders = 0;
};

const KTOptionRow OPTIONS[] = {
    optionRow(FAIL_ON, "KIND", "breaking",
              QT_TRANSLATE_NOOP(
                  "KTToolText",
                  "The least kind for exit code 1: breaking (the default), charge, production, offer, "
                  "text or never.")),
    optionRow(KTRuleOptions::IGNORE, "RULE", "",
              QT_TRANSLATE_NOOP("KTToolText", "Leaves out a rule, or several, separated by commas.")),
    optionRow(ARTICLE, "ID", "", QT_TRANSLATE_NOOP("KTToolText", "Only the article with this number.")),
    optionRow(SUMMARY, "", "",
              QT_TRANSLATE_NOOP("KTToolText", "Only how many differences there are of each rule.")),
    optionRow(
        ORDERS, "ORDERS", "",
        QT_TRANSLATE_NOOP(
            "KTToolText",
            "Counts the saved orders that each breaking or charge difference hits; - for standard input.")),
    optionRow(LIST_ORDERS, "N", "20",
              QT_TRANSLATE_NOOP("KTToolText",
                                "Lists the first N orders that can no longer be ordered. 20 by default.")),
    optionRow(QUIET, "", "", QT_TRANSLATE_NOOP("KTToolText", "No summary on standard error.")),
    optionRow(KTRuleOptions::LIST_RULES, "", "", QT_TRANSLATE_NOOP("KTToolText", "Lists the rules.")),
    optionRow(KTRuleOptions::EXPLAIN, "RULE", "", QT_TRANSLATE_NOOP("KTToolText", "Explains a rule.")),
};

KTRuleOptions ruleOptions()
{
    QVector<KTRuleOptions::Rule> rules;
    for (int i = 0; i < KTDifferenceRules::COUNT; ++i) {
        const KTDifferenceRuleRow &row = KTDifferenceRules::at(i);
        rules.append({QString::fromLatin1(row.name), KTDifferenceRules::name(row.kind),
                      KTCatalogueText::tr(row.summary), KTCatalogueText::tr(row.explanation)});
    }
    return KTRuleOptions(rules);
}

/** What is to be done; an exit code for wrong usage, which is reported. */
std::optional<KTExitCode> readOptions(const KTCommandLine &commandLine, Options *options)
{
    const QCommandLineParser &parser = commandLine.parser();
    const std::optional<QString> format = commandLine.format();
    if (!format)
        return KTExitUsage;
    options->format = *format;
    const QString failOn = parser.value(FAIL_ON);
    options->failOn = KTDifferenceRules::findKind(failOn);
    if (!options->failOn && failOn != NEVER) {
        QStringList words;
        for (const KTDifferenceKind kind : KINDS)
            words.append(KTDifferenceRules::name(kind));
        return KTCommandLine::failChoice(FAIL_ON, failOn, words << NEVER);
    }
    const std::optional<QVector<int>> ignored = ruleOptions().numbers(parser, KTRuleOptions::IGNORE);
    if (!ignored)
        return KTExitUsage;
    for (const int number : *ignored)
        options->ignored.insert(number);
    if (parser.isSet(ARTICLE)) {
        options->articleId = KTCommandLine::number(parser, ARTICLE, 1);
        if (!options->articleId)
            return KTExitUsage;
    }
    options->isSummary = parser.isSet(SUMMARY);
    options->isQuiet = parser.isSet(QUIET);
    options->ordersName = parser.value(ORDERS);
    if (parser.isSet(LIST_ORDERS) && !parser.isSet(ORDERS))
        return KTConsole::failUsage(KTToolText::tr("--%1 needs --%2").arg(LIST_ORDERS, ORDERS));
    const std::optional<int> maximum = KTCommandLine::number(parser, LIST_ORDERS, 0);
    if (!maximum)
        return KTExitUsage;
    options->maximumOrders = *maximum;
    return std::nullopt;
}

/** Two catalogues, both readable, and what is asked about them. */
class Comparison
{
public:
    Comparison(KTComparedCatalogue *older, KTComparedCatalogue *newer, const Options &options)
        : myOlder(older)
        , myNewer(newer)
        , myOptions(options)
        , myWriter(
              KTDifferenceWriter::create({options.format, older->name(), newer->name(), options.isSummary}))
    {
    }

    KTExitCode run()
    {
        if (const auto code = myOptions.ordersName.isEmpty() ? compare() : compareWithOrders())
            return *code;
        QFile output;
        if (!output.open(stdout, QIODevice::WriteOnly) || !myWriter->deliver(&output) || !output.flush())
            return KTConsole::failToWrite();
        if (!myOptions.isQuiet)
            KTConsole::note(QStringLiteral("%1 -> %2: %3")
                                .arg(myOlder->name(), myNewer->name(), myWriter->counts().toText()));
        return myIsFailed ? KTExitFindings : KTExitSuccess;
    }

private:
    using Receiver = std::function<void(const KTDifference &)>;

    /** Hands out what is not ignored; an exit code when a file is no longer what it was. */
    std::optional<KTExitCode> forEach(const Receiver &receiver)
    {
        KTCatalogueComparison comparison(myOlder->index(), myNewer->index());
        const bool isComplete = comparison.run([&](const QVector<KTDifference> &differences) {
            for (const KTDifference &difference : differences) {
                if (myOptions.ignored.contains(static_cast<int>(difference.rule)))
                    continue;
                const KTDifferenceKind kind = KTDifferenceRules::row(difference.rule).kind;
                myIsFailed = myIsFailed || (myOptions.failOn && kind >= *myOptions.failOn);
                receiver(difference);
            }
        });
        return isComplete ? std::nullopt : failure();
    }

    std::optional<KTExitCode> failure() const
    {
        const std::optional<KTExitCode> code = myOlder->reportFailure();
        return code ? code : myNewer->reportFailure();
    }

    std::optional<KTExitCode> compare()
    {
        return forEach([this](const KTDifference &difference) { myWriter->write(difference); });
    }

    /** Keeps the differences that orders are counted for, because those that hit most of them come first. */
    std::optional<KTExitCode> compareWithOrders()
    {
        QVector<KTDifference> kept;
        if (const auto code = forEach([&](const KTDifference &difference) {
                if (KTDifferenceRules::row(difference.rule).kind >= KTDifferenceKind::Charge)
                    kept.append(difference);
                else
                    myWriter->write(difference);
            }))
            return code;
        KTOrderImpact impact([this](int id) { return myOlder->index()->article(id); },
                             [this](int id) { return myNewer->index()->article(id); }, kept);
        if (const auto code = readOrders(&impact))
            return code;
        QVector<int> order(kept.size());
        std::iota(order.begin(), order.end(), 0);
        std::stable_sort(order.begin(), order.end(), [&](int first, int second) {
            return impact.hits(first).value_or(0) > impact.hits(second).value_or(0);
        });
        for (const int index : order)
            myWriter->write(kept.at(index), impact.hits(index));
        return std::nullopt;
    }

    std::optional<KTExitCode> readOrders(KTOrderImpact *impact)
    {
        const QString &name = myOptions.ordersName;
        QFile file;
        const QString error = KTFileName::open(&file, name);
        if (!error.isEmpty())
            return KTConsole::fail(KTExitUnreadable, QStringLiteral("%1: error: %2").arg(name, error));
        KTSavedOrders orders(&file);
        KTSavedOrder order;
        KTOrderCounts counts;
        counts.fileName = name;
        KTProgressLine progress(!myOptions.isQuiet);
        for (auto item = orders.next(&order); item != KTSavedOrders::Item::End; item = orders.next(&order)) {
            if (item == KTSavedOrders::Item::Error)
                return KTConsole::fail(KTExitUnreadable,
                                       QStringLiteral("%1: error: %2").arg(name, orders.error()));
            if (item == KTSavedOrders::Item::Malformed) {
                ++counts.malformed;
                continue;
            }
            if (myOptions.articleId && order.articleId != *myOptions.articleId)
                continue;
            const KTOrderImpact::Outcome outcome = impact->add(order);
            if (outcome.isBroken() && counts.listed < myOptions.maximumOrders) {
                ++counts.listed;
                myWriter->writeBroken(name, order, outcome.verdict);
            }
            if (progress.isDue())
                progress.show(KTToolText::tr("%1: %2 orders").arg(name, QString::number(impact->orders())));
        }
        progress.clear();
        counts.orders = impact->orders();
        counts.refusedBefore = impact->refusedBefore();
        counts.broken = impact->broken();
        myWriter->setOrders(counts);
        return failure();
    }

    KTComparedCatalogue *myOlder;
    KTComparedCatalogue *myNewer;
    const Options &myOptions;
    const std::unique_ptr<KTDifferenceWriter> myWriter;
    bool myIsFailed = false;
};

KTExitCode compareFiles(const QString &olderName, const QString &newerName, const Options &options)
{
    KTComparedCatalogue older(olderName, options.articleId);
    KTComparedCatalogue newer(newerName, options.articleId);
    const std::optional<KTExitCode> olderFailure = older.reportFailure();
    const std::optional<KTExitCode> newerFailure = newer.reportFailure();
    if (olderFailure || newerFailure)
        return olderFailure ? *olderFailure : *newerFailure;
    if (options.articleId && older.index()->size() == 0 && newer.index()->size() == 0)
        return KTConsole::fail(KTExitUnanswerable,
                               KTToolText::tr("there is no article %1 in %2 nor in %3")
                                   .arg(QString::number(*options.articleId), olderName, newerName));
    return Comparison(&older, &newer, options).run();
}

} // namespace

KTExitCode KTDiffCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("diff"),
        KTToolText::tr("Compares two catalogues as the application reads them and tells what changes for "
                       "customers, orders and production. Exits with 0 when nothing was found, 1 for "
                       "differences of the kind of --fail-on or a graver one, 2 for files that are not "
                       "readable."),
        QStringLiteral("examples/catalogue.xml examples/catalogue-next.xml --orders examples/orders.tsv"),
        KTCommandLine::Files::None);
    commandLine.parser().addPositionalArgument(
        QStringLiteral("OLD"), KTToolText::tr("The catalogue as it was; - for standard input."));
    commandLine.parser().addPositionalArgument(
        QStringLiteral("NEW"), KTToolText::tr("The catalogue as it is to be; - for standard input."));
    commandLine.addFormats(KTDifferenceWriter::formats());
    commandLine.addOptions(OPTIONS);
    if (const auto code = commandLine.parse(arguments))
        return *code;

    const QCommandLineParser &parser = commandLine.parser();
    if (const auto code = ruleOptions().answer(parser))
        return *code;
    Options options;
    if (const auto code = readOptions(commandLine, &options))
        return *code;
    const QStringList names = commandLine.fileNames();
    if (names.size() != 2)
        return KTConsole::failUsage(KTToolText::tr("'diff' needs two files, OLD and NEW"));
    const QStringList inputs = names + QStringList {options.ordersName};
    if (std::count_if(inputs.begin(), inputs.end(), &KTFileName::isStandardInput) > 1)
        return KTConsole::failUsage(KTToolText::tr("standard input can be read only once"));

    const KTLogSilence silence;
    return compareFiles(names.constFirst(), names.constLast(), options);
}
