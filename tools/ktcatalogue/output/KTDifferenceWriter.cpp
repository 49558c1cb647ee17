#include "KTDifferenceWriter.h"

#include "KTFileName.h"
#include "KTMarkdownText.h"
#include "KTOrderText.h"
#include "KTTerminalText.h"
#include "KTToolText.h"

#include <QCoreApplication>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonObject>

#include <numeric>
#include <utility>

namespace {

using KTTerminalText::compactJson;

using Kind = KTDifferenceKind;
using Rule = KTDifferenceRule;

const QString TEXT_FORMAT = QStringLiteral("text");
const QString JSON_FORMAT = QStringLiteral("json");
const QString MARKDOWN_FORMAT = QStringLiteral("markdown");
const QString SARIF_FORMAT = QStringLiteral("sarif");

constexpr Kind KINDS_BY_GRAVITY[] = {Kind::Breaking, Kind::Charge, Kind::Production, Kind::Offer, Kind::Text};

std::size_t indexOf(Kind kind)
{
    return static_cast<std::size_t>(kind);
}

Kind kindOf(const KTDifference &difference)
{
    return KTDifferenceRules::row(difference.rule).kind;
}

QString countedOrders(qint64 count)
{
    return (count == 1 ? KTToolText::tr("%1 saved order") : KTToolText::tr("%1 saved orders")).arg(count);
}

/** "3 saved orders" */
QString hitText(qint64 hits)
{
    return hits == 0 ? KTToolText::tr("no saved order") : countedOrders(hits);
}

QString capitalized(const QString &word)
{
    return word.left(1).toUpper() + word.mid(1);
}

/** What became of the saved orders, as a sentence. */
QString sentence(const KTOrderCounts &orders)
{
    QString text = KTToolText::tr("%1 of %2 in %3 can no longer be ordered as saved")
                       .arg(QString::number(orders.broken), countedOrders(orders.orders), orders.fileName);
    if (orders.refusedBefore > 0)
        text += KTToolText::tr("; %1 could not before either").arg(orders.refusedBefore);
    if (orders.malformed > 0)
        text += KTToolText::tr("; lines that are no orders: %1").arg(orders.malformed);
    return text;
}

class TextWriter : public KTDifferenceWriter
{
public:
    explicit TextWriter(const Options &options)
        : KTDifferenceWriter(options)
    {
    }

protected:
    QString head() const override { return QString(); }
    QString tail() const override { return QString(); }

    QString kindHead(Kind kind) const override
    {
        QString text = QStringLiteral("%1 %2: %3\n")
                           .arg(QString::number(counts().of(kind)), KTDifferenceRules::name(kind),
                                KTDifferenceRules::summary(kind));
        if (!options().isSummary)
            return text;
        for (int i = 0; i < KTDifferenceRules::COUNT; ++i) {
            const KTDifferenceRuleRow &row = KTDifferenceRules::at(i);
            if (row.kind == kind && counts().of(row.rule) > 0)
                text += QStringLiteral("  %1 %2\n")
                            .arg(counts().of(row.rule), 6)
                            .arg(QString::fromLatin1(row.name));
        }
        return text;
    }

    QString kindTail(Kind) const override { return QStringLiteral("\n"); }

    QString ordersHead() const override
    {
        QString text = KTTerminalText::escaped(sentence(*orders()));
        if (orders()->listed < orders()->broken && orders()->listed > 0)
            text += KTToolText::tr("; the first of them (%1):").arg(orders()->listed);
        else
            text += orders()->listed > 0 ? QStringLiteral(":") : QStringLiteral(".");
        return text + QLatin1Char('\n');
    }

    QString entry(const KTDifference &difference, std::optional<qint64> hits,
                  bool isOfNextArticle) const override
    {
        QString text;
        if (isOfNextArticle)
            text = QStringLiteral("  %1 %2\n")
                       .arg(QString::number(difference.articleId),
                            KTTerminalText::escaped(difference.articleName));
        text += QStringLiteral("    %1 [%2]\n")
                    .arg(KTTerminalText::escaped(difference.message),
                         KTDifferenceRules::name(difference.rule));
        if (hits)
            text += KTToolText::tr("        hits %1\n").arg(hitText(*hits));
        QStringList places;
        if (difference.olderRange.begin.line > 0)
            places.append(place(options().olderName, difference.olderRange));
        if (difference.newerRange.begin.line > 0)
            places.append(place(options().newerName, difference.newerRange));
        return text + QStringLiteral("        %1\n").arg(places.join(QStringLiteral(" -> ")));
    }

    QString broken(const QString &fileName, const KTSavedOrder &order,
                   const KTOrderVerdict &verdict) const override
    {
        return KTOrderText::lines(fileName, order, verdict);
    }

private:
    static QString place(const QString &name, const KTFileRange &range)
    {
        return QStringLiteral("%1:%2:%3")
            .arg(KTTerminalText::escaped(name), QString::number(range.begin.line),
                 QString::number(range.begin.column));
    }
};

/** A page for a merge request: a table of the kinds, and the differences of each folded behind it. */
class MarkdownWriter : public KTDifferenceWriter
{
public:
    explicit MarkdownWriter(const Options &options)
        : KTDifferenceWriter(options)
    {
    }

protected:
    QString head() const override
    {
        const QString title = KTToolText::tr("### Catalogue changes: %1\n\n").arg(counts().toText());
        QString text = title
            + KTToolText::tr("From %1 to %2.\n")
                  .arg(KTMarkdownText::escaped(options().olderName),
                       KTMarkdownText::escaped(options().newerName));
        if (counts().total() == 0)
            return text;
        text += KTToolText::tr("\n| Kind | Changes | |\n| :--- | ---: | :--- |\n");
        for (const Kind kind : KINDS_BY_GRAVITY) {
            if (counts().of(kind) > 0)
                text += QStringLiteral("| %1 | %2 | %3 |\n")
                            .arg(KTDifferenceRules::name(kind), QString::number(counts().of(kind)),
                                 KTDifferenceRules::summary(kind));
        }
        return text;
    }

    QString tail() const override { return QString(); }

    QString kindHead(Kind kind) const override
    {
        const QString begin
            = QStringLiteral("\n<details>\n<summary><b>%1</b>: %2</summary>\n\n")
                  .arg(capitalized(KTDifferenceRules::name(kind)),
                       (counts().of(kind) == 1 ? KTToolText::tr("%1 change") : KTToolText::tr("%1 changes"))
                           .arg(counts().of(kind)));
        if (options().isSummary) {
            QString text = begin + KTToolText::tr("| Rule | Changes |\n| :--- | ---: |\n");
            for (int i = 0; i < KTDifferenceRules::COUNT; ++i) {
                const KTDifferenceRuleRow &row = KTDifferenceRules::at(i);
                if (row.kind == kind && counts().of(row.rule) > 0)
                    text += QStringLiteral("| `%1` | %2 |\n")
                                .arg(QString::fromLatin1(row.name))
                                .arg(counts().of(row.rule));
            }
            return text;
        }
        return begin
            + (hasHits(kind)
                   ? KTToolText::tr("| Article | Change | Saved orders | Rule | Old line | New line |\n"
                                    "| :--- | :--- | ---: | :--- | ---: | ---: |\n")
                   : KTToolText::tr("| Article | Change | Rule | Old line | New line |\n"
                                    "| :--- | :--- | :--- | ---: | ---: |\n"));
    }

    QString kindTail(Kind) const override { return QStringLiteral("\n</details>\n"); }

    QString ordersHead() const override
    {
        QString text
            = KTToolText::tr("\n**Saved orders:** %1.\n").arg(KTMarkdownText::escaped(sentence(*orders())));
        if (orders()->listed > 0)
            text += KTToolText::tr("\n<details>\n<summary>%1</summary>\n\n"
                                   "| Line | Article | Problem | Nearest |\n| ---: | ---: | :--- | :--- |\n")
                        .arg(orders()->listed < orders()->broken
                                 ? KTToolText::tr("The first %1 of them").arg(orders()->listed)
                                 : KTToolText::tr("These orders"));
        return text;
    }

    QString ordersTail() const override
    {
        return orders()->listed > 0 ? QStringLiteral("\n</details>\n") : QString();
    }

    QString entry(const KTDifference &difference, std::optional<qint64> hits, bool) const override
    {
        const QString line
            = QStringLiteral("| %1 %2 | %3 |")
                  .arg(QString::number(difference.articleId), KTMarkdownText::escaped(difference.articleName),
                       KTMarkdownText::escaped(capitalized(difference.message)));
        const QString orders = hasHits(kindOf(difference))
            ? QStringLiteral(" %1 |").arg(hits ? QString::number(*hits) : QString())
            : QString();
        return line + orders
            + QStringLiteral(" `%1` | %2 | %3 |\n")
                  .arg(KTDifferenceRules::name(difference.rule), lineText(difference.olderRange),
                       lineText(difference.newerRange));
    }

    QString broken(const QString &, const KTSavedOrder &order, const KTOrderVerdict &verdict) const override
    {
        return KTOrderText::tableRow(order, verdict);
    }

private:
    bool hasHits(Kind kind) const { return orders() && kind >= Kind::Charge; }

    static QString lineText(const KTFileRange &range)
    {
        return range.begin.line > 0 ? QString::number(range.begin.line) : QString();
    }
};

class JsonWriter : public KTDifferenceWriter
{
public:
    explicit JsonWriter(const Options &options)
        : KTDifferenceWriter(options)
    {
    }

protected:
    QString head() const override
    {
        QString names = compactJson({
            {QStringLiteral("old"), KTFileName::escaped(options().olderName)},
            {QStringLiteral("new"), KTFileName::escaped(options().newerName)},
        });
        names.chop(1);
        return QStringLiteral("{\"format\":1,") + names.mid(1) + QStringLiteral(",\"differences\":[");
    }

    QString separator() const override { return QStringLiteral(","); }

    QString tail() const override
    {
        QJsonObject kinds;
        for (const Kind kind : KINDS_BY_GRAVITY)
            kinds.insert(KTDifferenceRules::name(kind), counts().of(kind));
        QJsonObject rules;
        for (int i = 0; i < KTDifferenceRules::COUNT; ++i) {
            const KTDifferenceRuleRow &row = KTDifferenceRules::at(i);
            if (counts().of(row.rule) > 0)
                rules.insert(QString::fromLatin1(row.name), counts().of(row.rule));
        }
        return QStringLiteral("%1\n\"total\":%2,\n\"rules\":%3}\n")
            .arg(orders() ? QString() : QStringLiteral("\n],"), compactJson(kinds), compactJson(rules));
    }

    QString ordersHead() const override
    {
        QString counts = compactJson({
            {QStringLiteral("file"),          KTFileName::escaped(orders()->fileName)},
            {QStringLiteral("orders"),        orders()->orders                       },
            {QStringLiteral("malformed"),     orders()->malformed                    },
            {QStringLiteral("refusedBefore"), orders()->refusedBefore                },
            {QStringLiteral("broken"),        orders()->broken                       },
        });
        counts.chop(1);
        return QStringLiteral("\n],\n\"savedOrders\":") + counts + QStringLiteral(",\"list\":[");
    }

    QString ordersTail() const override { return QStringLiteral("\n]},"); }

    QString entry(const KTDifference &difference, std::optional<qint64> hits, bool) const override
    {
        QJsonObject object {
            {QStringLiteral("rule"),    KTDifferenceRules::name(difference.rule)   },
            {QStringLiteral("kind"),    KTDifferenceRules::name(kindOf(difference))},
            {QStringLiteral("article"), difference.articleId                       },
            {QStringLiteral("name"),    difference.articleName                     },
            {QStringLiteral("subject"), difference.subject                         },
            {QStringLiteral("message"), difference.message                         },
            {QStringLiteral("before"),  difference.before                          },
            {QStringLiteral("after"),   difference.after                           },
            {QStringLiteral("old"),     place(difference.olderRange)               },
            {QStringLiteral("new"),     place(difference.newerRange)               },
        };
        if (hits)
            object.insert(QStringLiteral("savedOrders"), *hits);
        return QLatin1Char('\n') + compactJson(object);
    }

    QString broken(const QString &, const KTSavedOrder &order, const KTOrderVerdict &verdict) const override
    {
        return QLatin1Char('\n') + compactJson(KTOrderText::toJSON(order, verdict));
    }

private:
    static QJsonObject place(const KTFileRange &range)
    {
        return {
            {QStringLiteral("line"),   range.begin.line  },
            {QStringLiteral("column"), range.begin.column},
        };
    }
};

/** The Static Analysis Results Interchange Format 2.1.0; each result stands in the new file. */
class SarifWriter : public KTDifferenceWriter
{
public:
    explicit SarifWriter(const Options &options)
        : KTDifferenceWriter(options)
    {
    }

protected:
    QString head() const override
    {
        QJsonArray rules;
        for (int i = 0; i < KTDifferenceRules::COUNT; ++i)
            rules.append(toJSON(KTDifferenceRules::at(i)));
        const QJsonObject driver {
            {QStringLiteral("name"),    QCoreApplication::applicationName()   },
            {QStringLiteral("version"), QCoreApplication::applicationVersion()},
            {QStringLiteral("rules"),   rules                                 },
        };
        return QStringLiteral("{\"$schema\":\"https://json.schemastore.org/sarif-2.1.0.json\","
                              "\"version\":\"2.1.0\",\"runs\":[{\"tool\":")
            + compactJson({
                {QStringLiteral("driver"), driver}
        })
            + QStringLiteral(",\n\"columnKind\":\"unicodeCodePoints\",\"results\":[");
    }

    QString separator() const override { return QStringLiteral(","); }

    QString tail() const override
    {
        return QStringLiteral("\n],\n\"invocations\":[{\"executionSuccessful\":true}]}]}\n");
    }

    QString entry(const KTDifference &difference, std::optional<qint64> hits, bool) const override
    {
        const auto message = [](const QString &text) {
            return QJsonObject {
                {QStringLiteral("text"), text}
            };
        };
        QString text
            = KTToolText::tr("article %1: %2").arg(QString::number(difference.articleId), difference.message);
        if (hits)
            text += KTToolText::tr("; hits %1").arg(hitText(*hits));
        QJsonObject newer = location(options().newerName, difference.newerRange);
        newer.insert(
            QStringLiteral("logicalLocations"),
            QJsonArray {QJsonObject {{QStringLiteral("fullyQualifiedName"),
                                      QStringLiteral("article %1/%2")
                                          .arg(QString::number(difference.articleId), difference.subject)}}});
        QJsonObject result {
            {QStringLiteral("ruleId"),    KTDifferenceRules::name(difference.rule)},
            {QStringLiteral("ruleIndex"), static_cast<int>(difference.rule)       },
            {QStringLiteral("level"),     level(kindOf(difference))               },
            {QStringLiteral("message"),   message(text)                           },
            {QStringLiteral("locations"), QJsonArray {newer}                      },
        };
        if (difference.olderRange.begin.line > 0) {
            QJsonObject older = location(options().olderName, difference.olderRange);
            older.insert(QStringLiteral("message"), message(KTToolText::tr("as it was")));
            result.insert(QStringLiteral("relatedLocations"), QJsonArray {older});
        }
        return QLatin1Char('\n') + compactJson(result);
    }

    /** A document about the catalogue has no place for orders. */
    QString broken(const QString &, const KTSavedOrder &, const KTOrderVerdict &) const override
    {
        return QString();
    }

private:
    static QString level(Kind kind)
    {
        switch (kind) {
        case Kind::Breaking:
            return QStringLiteral("error");
        case Kind::Charge:
        case Kind::Production:
            return QStringLiteral("warning");
        case Kind::Offer:
        case Kind::Text:
            break;
        }
        return QStringLiteral("note");
    }

    static QJsonObject toJSON(const KTDifferenceRuleRow &row)
    {
        const auto text = [](const char *words) {
            return QJsonObject {
                {QStringLiteral("text"), QString::fromLatin1(words)}
            };
        };
        return {
            {QStringLiteral("id"),                   QString::fromLatin1(row.name)    },
            {QStringLiteral("shortDescription"),     text(row.summary)                },
            {QStringLiteral("fullDescription"),      text(row.explanation)            },
            {QStringLiteral("defaultConfiguration"),
             QJsonObject {{QStringLiteral("level"), level(row.kind)}}                 },
            {QStringLiteral("properties"),
             QJsonObject {{QStringLiteral("kind"), KTDifferenceRules::name(row.kind)}}},
        };
    }

    static QJsonObject location(const QString &name, const KTFileRange &range)
    {
        const QByteArray uri = KTFileName::toBytes(name).toPercentEncoding("/");
        QJsonObject physical {
            {QStringLiteral("artifactLocation"),
             QJsonObject {{QStringLiteral("uri"), QString::fromLatin1(uri)}}}
        };
        if (range.begin.line > 0)
            physical.insert(QStringLiteral("region"),
                            QJsonObject {
                                {QStringLiteral("startLine"),   range.begin.line  },
                                {QStringLiteral("startColumn"), range.begin.column},
                                {QStringLiteral("endLine"),     range.end.line    },
                                {QStringLiteral("endColumn"),   range.end.column  },
            });
        return {
            {QStringLiteral("physicalLocation"), physical}
        };
    }
};

} // namespace

void KTDifferenceCounts::add(KTDifferenceRule rule)
{
    ++rules[static_cast<std::size_t>(rule)];
    ++kinds[indexOf(KTDifferenceRules::row(rule).kind)];
}

int KTDifferenceCounts::total() const
{
    return std::accumulate(kinds.begin(), kinds.end(), 0);
}

QString KTDifferenceCounts::toText() const
{
    QStringList parts;
    for (const Kind kind : KINDS_BY_GRAVITY) {
        if (of(kind) > 0)
            parts.append(QStringLiteral("%1 %2").arg(of(kind)).arg(KTDifferenceRules::name(kind)));
    }
    return parts.isEmpty() ? KTToolText::tr("no difference") : parts.join(QStringLiteral(", "));
}

std::unique_ptr<KTDifferenceWriter> KTDifferenceWriter::create(const Options &options)
{
    if (options.format == TEXT_FORMAT)
        return std::make_unique<TextWriter>(options);
    if (options.format == JSON_FORMAT)
        return std::make_unique<JsonWriter>(options);
    if (options.format == MARKDOWN_FORMAT)
        return std::make_unique<MarkdownWriter>(options);
    if (options.format == SARIF_FORMAT)
        return std::make_unique<SarifWriter>(options);
    return nullptr;
}

QStringList KTDifferenceWriter::formats()
{
    return {TEXT_FORMAT, JSON_FORMAT, MARKDOWN_FORMAT, SARIF_FORMAT};
}

KTDifferenceWriter::KTDifferenceWriter(const Options &options)
    : myOptions(options)
{
}

KTDifferenceWriter::~KTDifferenceWriter() = default;

void KTDifferenceWriter::write(const KTDifference &difference, std::optional<qint64> hits)
{
    myCounts.add(difference.rule);
    if (myOptions.isSummary)
        return;
    Part &part = myParts[indexOf(kindOf(difference))];
    const QString text = entry(difference, hits, part.lastArticle != difference.articleId);
    part.spool.write(KTFileName::toBytes(part.isEmpty ? text : separator() + text));
    part.isEmpty = false;
    part.lastArticle = difference.articleId;
}

void KTDifferenceWriter::writeBroken(const QString &fileName, const KTSavedOrder &order,
                                     const KTOrderVerdict &verdict)
{
    const QString text = broken(fileName, order, verdict);
    if (text.isEmpty())
        return;
    myBroken.spool.write(KTFileName::toBytes(myBroken.isEmpty ? text : separator() + text));
    myBroken.isEmpty = false;
}

bool KTDifferenceWriter::deliver(QIODevice *device)
{
    const auto print = [device](const QString &text) {
        const QByteArray bytes = KTFileName::toBytes(text);
        return device->write(bytes) == bytes.size();
    };
    bool isWritten = print(head());
    bool isFirst = true;
    for (const Kind kind : KINDS_BY_GRAVITY) {
        Part &part = myParts[indexOf(kind)];
        if (myCounts.of(kind) == 0)
            continue;
        if (!part.isEmpty && !std::exchange(isFirst, false))
            isWritten = isWritten && print(separator());
        isWritten = isWritten && print(kindHead(kind)) && part.spool.deliver(device) && print(kindTail(kind));
    }
    if (myOrders)
        isWritten = isWritten && print(ordersHead()) && myBroken.spool.deliver(device) && print(ordersTail());
    return isWritten && print(tail());
}
