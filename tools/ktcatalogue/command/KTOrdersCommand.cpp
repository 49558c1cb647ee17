#include "KTOrdersCommand.h"

#include "KTCommandLine.h"
#include "KTComparedCatalogue.h"
#include "KTConsole.h"
#include "KTFileName.h"
#include "KTLogSilence.h"
#include "KTOrderText.h"
#include "KTSpool.h"
#include "KTTerminalText.h"
#include "KTToolText.h"

#include <KTOrderCheck.h>

#include <QFile>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace {

using KTTerminalText::compactJson;

const QString TEXT_FORMAT = QStringLiteral("text");
const QString JSON_FORMAT = QStringLiteral("json");

using Reason = KTOrderProblem::Reason;

constexpr int REASON_COUNT = static_cast<int>(Reason::COUNT);

/** How many orders there are, by what becomes of them. */
struct Counts
{
    qint64 orders = 0;
    /** Lines that are no orders. */
    qint64 malformed = 0;
    qint64 refused = 0;
    /** Orders with the problem, each of which may have several. */
    std::array<qint64, REASON_COUNT> reasons {};

    void add(const KTOrderVerdict &verdict)
    {
        ++orders;
        refused += verdict.problems.isEmpty() ? 0 : 1;
        std::array<bool, REASON_COUNT> isCounted {};
        for (const KTOrderProblem &problem : verdict.problems) {
            const auto reason = static_cast<std::size_t>(problem.reason);
            if (!isCounted.at(reason))
                ++reasons.at(reason);
            isCounted.at(reason) = true;
        }
    }
};

/** Puts together what there is to say, which waits until it is certain that there is an answer. */
class Output
{
public:
    Output(const QString &fileName, const QString &format)
        : myFileName(fileName)
        , myIsJson(format == JSON_FORMAT)
    {
        if (myIsJson)
            mySpool.write(QStringLiteral("{\"format\":1,\"orders\":["));
    }

    void write(const KTSavedOrder &order, const KTOrderVerdict &verdict)
    {
        if (myIsJson)
            writeEntry(KTOrderText::toJSON(order, verdict));
        else
            mySpool.write(KTFileName::toBytes(KTOrderText::lines(myFileName, order, verdict)));
    }

    void writeMalformed(qint64 line, const QString &error)
    {
        if (myIsJson)
            writeEntry({
                {QStringLiteral("line"),  line },
                {QStringLiteral("error"), error},
            });
        else
            mySpool.write(KTFileName::toBytes(
                QStringLiteral("%1:%2: error: %3\n")
                    .arg(KTTerminalText::escaped(myFileName), QString::number(line), error)));
    }

    KTExitCode end(const Counts &counts)
    {
        QJsonObject reasons;
        QString text;
        for (int i = 0; i < REASON_COUNT; ++i) {
            const qint64 count = counts.reasons.at(static_cast<std::size_t>(i));
            const QString name = KTOrderProblem::name(static_cast<Reason>(i));
            reasons.insert(name, count);
            if (count > 0)
                text += QStringLiteral("  %1 %2\n").arg(count, 8).arg(name);
        }
        if (myIsJson) {
            const QString total = compactJson({
                {QStringLiteral("orders"),    counts.orders   },
                {QStringLiteral("refused"),   counts.refused  },
                {QStringLiteral("malformed"), counts.malformed},
                {QStringLiteral("reasons"),   reasons         },
            });
            mySpool.write(QStringLiteral("\n],\n\"total\":") + total + QStringLiteral("}\n"));
        } else {
            QString total = KTToolText::tr("%1 of %2 orders can no longer be ordered as saved")
                                .arg(counts.refused)
                                .arg(counts.orders);
            if (counts.malformed > 0)
                total += KTToolText::tr("; lines that are no orders: %1").arg(counts.malformed);
            mySpool.write(total + QLatin1Char('\n') + text);
        }
        return KTConsole::deliver(&mySpool);
    }

private:
    void writeEntry(const QJsonObject &object)
    {
        mySpool.write((myIsEmpty ? QStringLiteral("\n") : QStringLiteral(",\n")) + compactJson(object));
        myIsEmpty = false;
    }

    QString myFileName;
    bool myIsJson;
    bool myIsEmpty = true;
    KTSpool mySpool;
};

KTExitCode checkOrders(const QString &catalogueName, const QString &ordersName, const QString &format)
{
    KTComparedCatalogue catalogue(catalogueName);
    if (const auto failure = catalogue.reportFailure())
        return *failure;
    QFile file;
    const QString error = KTFileName::open(&file, ordersName);
    if (!error.isEmpty())
        return KTConsole::fail(KTExitUnreadable, QStringLiteral("%1: error: %2").arg(ordersName, error));

    KTOrderCheck check([&](int articleId) { return catalogue.index()->article(articleId); });
    KTSavedOrders orders(&file);
    KTSavedOrder order;
    Counts counts;
    Output output(ordersName, format);
    KTProgressLine progress(true);
    for (auto item = orders.next(&order); item != KTSavedOrders::Item::End; item = orders.next(&order)) {
        if (item == KTSavedOrders::Item::Error)
            return KTConsole::fail(KTExitUnreadable,
                                   QStringLiteral("%1: error: %2").arg(ordersName, orders.error()));
        if (item == KTSavedOrders::Item::Malformed) {
            ++counts.malformed;
            output.writeMalformed(order.line, orders.error());
            continue;
        }
        const KTOrderVerdict verdict = check.check(order);
        counts.add(verdict);
        if (!verdict.problems.isEmpty())
            output.write(order, verdict);
        if (progress.isDue())
            progress.show(KTToolText::tr("%1: %2 orders").arg(ordersName, QString::number(counts.orders)));
    }
    progress.clear();
    if (const auto failure = catalogue.reportFailure())
        return *failure;
    const KTExitCode code = output.end(counts);
    return code == KTExitSuccess && counts.refused + counts.malformed > 0 ? KTExitFindings : code;
}

} // namespace

KTExitCode KTOrdersCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("orders"),
        KTToolText::tr("Reads saved orders, one a line (article, page count, which may be empty, and MCF, "
                       "separated by tabs), and finds those that can no longer be ordered as they were "
                       "saved: why, and what comes nearest. Exits with 0 when there is none, 1 when there "
                       "are some, 2 for files that are not readable."),
        QStringLiteral("examples/catalogue-next.xml examples/orders.tsv"), KTCommandLine::Files::None);
    commandLine.parser().addPositionalArgument(QStringLiteral("CATALOGUE"),
                                               KTToolText::tr("The catalogue; - for standard input."));
    commandLine.parser().addPositionalArgument(QStringLiteral("ORDERS"),
                                               KTToolText::tr("The saved orders; - for standard input."));
    commandLine.addFormats({TEXT_FORMAT, JSON_FORMAT});
    if (const auto code = commandLine.parse(arguments))
        return *code;
    const std::optional<QString> format = commandLine.format();
    if (!format)
        return KTExitUsage;
    const QStringList names = commandLine.fileNames();
    if (names.size() != 2)
        return KTConsole::failUsage(KTToolText::tr("'orders' needs two files, CATALOGUE and ORDERS"));
    if (std::count_if(names.begin(), names.end(), &KTFileName::isStandardInput) > 1)
        return KTConsole::failUsage(KTToolText::tr("standard input can be read only once"));

    const KTLogSilence silence;
    return checkOrders(names.constFirst(), names.constLast(), *format);
}
