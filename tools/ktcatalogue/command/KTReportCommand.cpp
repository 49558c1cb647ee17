#include "KTReportCommand.h"

#include "KTCommandLine.h"
#include "KTConsole.h"
#include "KTFileName.h"
#include "KTLogSilence.h"
#include "KTMakingTime.h"
#include "KTReportSource.h"
#include "KTReportWriter.h"
#include "KTToolText.h"

#include <KTClassification.h>
#include <KTNearestWord.h>

#include <QFile>
#include <QSet>

#include <algorithm>

namespace {

const QString ARTICLE = QStringLiteral("article");
const QString CLASS = QStringLiteral("class");
const QString ONLY_FINDINGS = QStringLiteral("only-findings");
const QString AGAINST = QStringLiteral("against");
const QString OUTPUT = QStringLiteral("output");
const QString STANDARD_OUTPUT = QStringLiteral("-");

const KTOptionRow OPTIONS[] = {
    optionRow(
        ARTICLE, "ID", "",
        QT_TRANSLATE_NOOP("KTToolText", "Only the article with this number; may be given several times.")),
    optionRow(
        CLASS, "KEYWORD", "",
        QT_TRANSLATE_NOOP("KTToolText",
                          "Only articles of this class, such as book, or of several, separated by commas.")),
    optionRow(ONLY_FINDINGS, "", "",
              QT_TRANSLATE_NOOP("KTToolText", "Only articles in which check finds something.")),
    optionRow(
        AGAINST, "OLD", "",
        QT_TRANSLATE_NOOP("KTToolText",
                          "Says beside each article what has changed since this catalogue; - for standard "
                          "input.")),
};

struct Options
{
    QString output;
    QString olderName;
    /** Empty for all of them. */
    QSet<int> articleIds;
    std::optional<KTArticleClass> only;
    bool isOnlyFindings = false;
};

/** The classes asked for; an exit code for a word that is none, which is reported. */
std::optional<KTExitCode> readClass(const QString &text, std::optional<KTArticleClass> *only)
{
    const KTClassification &classification = KTClassification::of(KTClassificationId::ArticleClass);
    const QStringList unknown = classification.unknownEntries(text);
    *only = KTArticleClass(text);
    if (unknown.isEmpty() && !text.trimmed().isEmpty())
        return std::nullopt;
    const QString word = unknown.isEmpty() ? text : unknown.constFirst();
    const QString nearest = KTNearestWord::find(word, classification.readableKeywords());
    return KTConsole::failUsage(
        KTToolText::tr("'%1' is no class of articles").arg(word)
        + (nearest.isEmpty() ? QString() : KTToolText::tr(", did you mean '%1'?").arg(nearest)));
}

/** What is to be written, and where; an exit code for wrong usage, which is reported. */
std::optional<KTExitCode> readOptions(const KTCommandLine &commandLine, Options *options)
{
    const QCommandLineParser &parser = commandLine.parser();
    options->output = parser.value(OUTPUT);
    if (options->output.isEmpty())
        return KTConsole::failUsage(KTToolText::tr("'report' needs -o OUT"));
    for (const QString &text : parser.values(ARTICLE)) {
        bool ok = false;
        options->articleIds.insert(text.toInt(&ok));
        if (!ok)
            return KTConsole::failUsage(KTToolText::tr("'%1' is no number for --%2").arg(text, ARTICLE));
    }
    options->isOnlyFindings = parser.isSet(ONLY_FINDINGS);
    options->olderName = parser.value(AGAINST);
    if (parser.isSet(AGAINST) && options->olderName.isEmpty())
        return KTConsole::failUsage(KTToolText::tr("--%1 needs the name of a catalogue").arg(AGAINST));
    if (KTFileName::isStandardInput(options->olderName)
        && KTFileName::isStandardInput(commandLine.fileName()))
        return KTConsole::failUsage(KTToolText::tr("standard input can be read only once"));
    return parser.isSet(CLASS) ? readClass(parser.value(CLASS), &options->only) : std::nullopt;
}

/** A catalogue, readable so far, and the report that is made of it. */
class Report
{
public:
    Report(const KTCommandLine &commandLine, const Options &options)
        : myCommandLine(commandLine)
        , myOptions(options)
        , mySource(commandLine.fileName(), options.olderName)
        , myMissing(options.articleIds)
    {
    }

    KTExitCode run()
    {
        for (const QString &input : {myCommandLine.fileName(), myOptions.olderName}) {
            if (KTFileName::areSame(myOptions.output, input))
                return failToWrite(KTToolText::tr("it is the catalogue"));
        }
        if (const auto code = mySource.prepare())
            return *code;
        if (const auto code = collect())
            return *code;
        if (const auto code = reportMissing())
            return *code;
        if (myOptions.output == STANDARD_OUTPUT) {
            QFile output;
            if (!output.open(stdout, QIODevice::WriteOnly))
                return KTConsole::failToWrite();
            const bool isWritten = write(&output) && output.flush();
            return myFailure ? *myFailure : isWritten ? KTExitSuccess : KTConsole::failToWrite();
        }
        const QString error
            = KTFileName::replaceFile(myOptions.output, [this](QFile *file) { return write(file); });
        if (myFailure)
            return *myFailure;
        return error.isEmpty() ? KTExitSuccess : failToWrite(error);
    }

private:
    KTExitCode failToWrite(const QString &reason) const
    {
        return KTConsole::fail(KTExitUnwritable,
                               QStringLiteral("%1: error: %2").arg(myOptions.output, reason));
    }

    bool isWhole() const
    {
        return myOptions.articleIds.isEmpty() && !myOptions.only && !myOptions.isOnlyFindings;
    }

    bool isWanted(const KTArticle &article) const
    {
        return (myOptions.articleIds.isEmpty() || myOptions.articleIds.contains(article.articleId().id()))
            && (!myOptions.only || article.articleClass().matches(myOptions.only->value()));
    }

    /** Reads the catalogue once for what stands before the articles. */
    std::optional<KTExitCode> collect()
    {
        KTReportSource::Receiver receiver;
        receiver.isWanted = [this](const KTArticle &article) {
            myMissing.remove(article.articleId().id());
            return isWanted(article);
        };
        receiver.article = [this](const KTReportArticle &article) {
            if (!myOptions.isOnlyFindings || !article.findings.isEmpty())
                myContents.add(article, !myOptions.olderName.isEmpty());
        };
        if (myOptions.articleIds.isEmpty() && !myOptions.only)
            receiver.outside = [this](const KTFinding &finding) { myContents.addFinding(finding); };
        if (const auto code = mySource.forEachArticle(receiver))
            return code;
        // What is gone has no number or class to be asked for any more.
        if (!isWhole())
            return std::nullopt;
        return mySource.forEachRemoved(
            [this](const KTDifference &difference) { myContents.addRemoved(difference); });
    }

    std::optional<KTExitCode> reportMissing() const
    {
        QList<int> missing = myMissing.values();
        std::sort(missing.begin(), missing.end());
        std::optional<KTExitCode> code;
        for (const int articleId : qAsConst(missing))
            code = myCommandLine.failNoArticle(articleId);
        if (!code && myOptions.only && myContents.articles() == 0 && !myOptions.isOnlyFindings)
            code = KTConsole::fail(KTExitUnanswerable,
                                   KTToolText::tr("%1: there is no article of the class %2")
                                       .arg(myCommandLine.fileName(), myOptions.only->encodeCSV()));
        return code;
    }

    QStringList selection() const
    {
        QStringList words;
        if (!myOptions.articleIds.isEmpty()) {
            QList<int> numbers = myOptions.articleIds.values();
            std::sort(numbers.begin(), numbers.end());
            QStringList texts;
            for (const int number : qAsConst(numbers))
                texts.append(QString::number(number));
            words.append(KTToolText::tr("the articles %1").arg(texts.join(QStringLiteral(", "))));
        }
        if (myOptions.only)
            words.append(KTToolText::tr("articles of the class %1").arg(myOptions.only->encodeCSV()));
        if (myOptions.isOnlyFindings)
            words.append(KTToolText::tr("articles with findings"));
        return words;
    }

    bool write(QIODevice *device)
    {
        KTReportWriter writer(device,
                              {myCommandLine.fileName(), myOptions.olderName,
                               KTMakingTime::demanded().value_or(QDateTime::currentDateTimeUtc()),
                               selection()},
                              &myContents);
        writer.begin();
        KTReportSource::Receiver receiver;
        receiver.isWanted = [this](const KTArticle &article) { return isWanted(article); };
        receiver.article = [&](const KTReportArticle &article) {
            if (!myOptions.isOnlyFindings || !article.findings.isEmpty())
                writer.write(article);
        };
        myFailure = mySource.forEachArticle(receiver);
        return writer.end() && !myFailure;
    }

    const KTCommandLine &myCommandLine;
    const Options &myOptions;
    KTReportSource mySource;
    KTReportContents myContents;
    /** The articles asked for that have not been met. */
    QSet<int> myMissing;
    /** Why the writing had to end. */
    std::optional<KTExitCode> myFailure;
};

} // namespace

KTExitCode KTReportCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("report"),
        KTToolText::tr("Writes the catalogue as a page to look at in a browser, or to print: a table that "
                       "sorts and filters, and for each article its pages drawn to scale, its options, the "
                       "spine, the default choice, and what check finds."),
        QStringLiteral("examples/catalogue.xml -o catalogue.html"));
    commandLine.addOptions(OPTIONS);
    commandLine.parser().addOption({
        {QStringLiteral("o"), OUTPUT},
        KTToolText::tr(
            "Writes to OUT, a page of HTML that needs no other file; - for standard output. A file "
            "that is there is replaced once the page is complete."),
        QStringLiteral("OUT")
    });
    if (const auto code = commandLine.parse(arguments))
        return *code;
    Options options;
    if (const auto code = readOptions(commandLine, &options))
        return *code;

    const KTLogSilence silence;
    return Report(commandLine, options).run();
}
