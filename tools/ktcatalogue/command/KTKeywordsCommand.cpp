#include "KTKeywordsCommand.h"

#include "KTCommandLine.h"
#include "KTConsole.h"
#include "KTNearestWord.h"
#include "KTToolText.h"

#include <KTArithmetic.h>
#include <KTCatalogueFormat.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

const QString SEPARATOR = QStringLiteral(", ");
/** No keyword of any table. */
const QString UNKNOWN_WORD = QStringLiteral("?");

QString hex(qint64 value)
{
    return QStringLiteral("0x") + QString::number(value, 16);
}

/** Where a catalogue has the keywords; empty for a classification that no attribute carries. */
QString placeOf(const KTClassification &row, const QString &quote)
{
    const KTAttributeRow *const attribute = KTCatalogueFormat::attribute(row.id());
    return attribute ? QStringLiteral("%3%1%3 of %3%2%3")
                           .arg(attribute->name, KTCatalogueFormat::elementName(attribute->element), quote)
                     : QString();
}

/** True for the name of the class or of the attribute. */
bool isNamed(const KTClassification &row, const QString &name)
{
    const KTAttributeRow *const attribute = KTCatalogueFormat::attribute(row.id());
    return name == row.className() || (attribute && name == attribute->name);
}

/** What the text is read as, in words. */
QString resultOf(const KTClassification &row, const QString &text, const QString &quote)
{
    const qint64 value = row.decode(text);
    return value == 0 ? KTToolText::tr("nothing") : quote + row.written(value) + quote;
}

/** What happens to texts that are no keywords. */
QString defaults(const KTClassification &row, const QString &quote)
{
    const QString unknown = resultOf(row, UNKNOWN_WORD, quote);
    const QString empty = resultOf(row, QString(), quote);
    const qint64 value = row.decode(UNKNOWN_WORD);
    const QString written = value == 0 ? row.written(value) : QString();
    return (unknown == empty
                ? KTToolText::tr("An unknown word and an empty text become %1").arg(unknown)
                : KTToolText::tr("An unknown word becomes %1, an empty text %2").arg(unknown, empty))
        + (written.isEmpty() ? QString() : KTToolText::tr(", which is written as %1%2%1").arg(quote, written))
        + QLatin1Char('.');
}

/** Columns as wide as their widest text, two blanks apart. */
QString aligned(const QVector<QStringList> &lines)
{
    QVector<int> widths(lines.constFirst().size(), 0);
    for (const QStringList &line : lines) {
        for (int i = 0; i < widths.size(); ++i)
            widths[i] = std::max(widths.at(i), KTArithmetic::sizeOf(line.at(i)));
    }
    QString text;
    for (const QStringList &line : lines) {
        QString joined;
        for (int i = 0; i < widths.size(); ++i)
            joined += QStringLiteral("  ") + line.at(i).leftJustified(widths.at(i));
        while (joined.endsWith(QLatin1Char(' ')))
            joined.chop(1);
        text += joined + QLatin1Char('\n');
    }
    return text;
}

QString text(const QVector<const KTClassification *> &rows)
{
    QStringList texts;
    for (const KTClassification *const classification : rows) {
        const KTClassification &row = *classification;
        QVector<QStringList> lines {
            {KTToolText::tr("keyword"), KTToolText::tr("value"), KTToolText::tr("name"),
             KTToolText::tr("also read")}
        };
        for (const KTKeywordInfo &keyword : row.keywords())
            lines.append(
                {keyword.written, hex(keyword.value), keyword.displayName, keyword.aliases.join(SEPARATOR)});
        texts.append((row.className() + QStringLiteral("  ") + placeOf(row, QString())).trimmed()
                     + QLatin1Char('\n') + aligned(lines) + QStringLiteral("  ")
                     + defaults(row, QStringLiteral("'")) + QLatin1Char('\n'));
    }
    return texts.join(QLatin1Char('\n'));
}

QJsonObject readingJson(const KTClassification &row, const QString &text)
{
    const qint64 value = row.decode(text);
    return {
        {QStringLiteral("value"),   value                 },
        {QStringLiteral("written"), row.written(value)    },
        {QStringLiteral("name"),    row.displayName(value)}
    };
}

QString json(const QVector<const KTClassification *> &rows)
{
    QJsonArray tables;
    for (const KTClassification *const classification : rows) {
        const KTClassification &row = *classification;
        QJsonArray keywords;
        for (const KTKeywordInfo &keyword : row.keywords())
            keywords.append(QJsonObject {
                {QStringLiteral("keyword"), keyword.written                            },
                {QStringLiteral("aliases"), QJsonArray::fromStringList(keyword.aliases)},
                {QStringLiteral("value"),   keyword.value                              },
                {QStringLiteral("name"),    keyword.displayName                        }
            });
        const QJsonObject unknownWord = readingJson(row, UNKNOWN_WORD);
        const QJsonObject emptyText = readingJson(row, QString());
        const KTAttributeRow *const attribute = KTCatalogueFormat::attribute(row.id());
        const QString element = attribute ? KTCatalogueFormat::elementName(attribute->element) : QString();
        const QString attributeName = attribute ? attribute->name.toString() : QString();
        tables.append(QJsonObject {
            {QStringLiteral("class"),       row.className()},
            {QStringLiteral("element"),     element        },
            {QStringLiteral("attribute"),   attributeName  },
            {QStringLiteral("keywords"),    keywords       },
            {QStringLiteral("unknownWord"), unknownWord    },
            {QStringLiteral("emptyText"),   emptyText      }
        });
    }
    const QJsonObject object {
        {QStringLiteral("format"),  1     },
        {QStringLiteral("classes"), tables}
    };
    return QString::fromUtf8(QJsonDocument(object).toJson());
}

/** A page of its own: docs/keywords.md. */
QString markdown(const QVector<const KTClassification *> &rows)
{
    const QString tick = QStringLiteral("`");
    const auto ticked = [&tick](const QStringList &words) {
        return words.isEmpty() ? QString() : tick + words.join(tick + SEPARATOR + tick) + tick;
    };
    QString page = QStringLiteral(
        "# Keywords\n\n"
        "What the classifications read and write, as `ktcatalogue keywords --format markdown` prints it. "
        "Attributes hold one keyword or several, separated by `,`; letter case and blanks around them do not "
        "matter. Words in the last column are read, but never written.\n");
    for (const KTClassification *const classification : rows) {
        const KTClassification &row = *classification;
        page += QStringLiteral("\n## %1\n\n").arg(row.className());
        const QString place = placeOf(row, tick);
        page += (place.isEmpty() ? QString() : QStringLiteral("The attribute %1. ").arg(place))
            + defaults(row, tick)
            + QStringLiteral("\n\n| Keyword | Value | Name | Also read |\n|---|---|---|---|\n");
        for (const KTKeywordInfo &keyword : row.keywords())
            page += QStringLiteral("| %1 | %2 | %3 | %4 |\n")
                        .arg(ticked({keyword.written}), hex(keyword.value), keyword.displayName,
                             ticked(keyword.aliases));
    }
    return page;
}

struct FormatRow
{
    const char *name;
    QString (*format)(const QVector<const KTClassification *> &rows);
};

constexpr FormatRow FORMATS[] = {
    {"text",     &text    },
    {"json",     &json    },
    {"markdown", &markdown},
};

KTExitCode failClass(const QString &name)
{
    QStringList names;
    for (const KTClassification &row : KTClassification::all())
        names.append(row.className());
    const QString nearest = KTNearestWord::find(name, names);
    return KTConsole::failUsage(KTToolText::tr("unknown class '%1', ").arg(name)
                                + (nearest.isNull() ? KTToolText::tr("there are ") + names.join(SEPARATOR)
                                                    : KTToolText::tr("did you mean '%1'?").arg(nearest)));
}

} // namespace

KTExitCode KTKeywordsCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("keywords"),
        KTToolText::tr(
            "Shows the keyword tables of the classifications: what is written, what it stands for, "
            "what else is read, and what becomes of other texts."),
        QStringLiteral("KTOrientation"), KTCommandLine::Files::None);
    commandLine.parser().addPositionalArgument(
        QStringLiteral("CLASS"),
        KTToolText::tr("Only this classification, named by its class or its attribute: KTOrientation or "
                       "orientation."),
        QStringLiteral("[CLASS]"));
    QStringList formats;
    for (const FormatRow &row : FORMATS)
        formats.append(QString::fromLatin1(row.name));
    commandLine.addFormats(formats);
    if (const auto code = commandLine.parse(arguments))
        return *code;

    const QStringList operands = commandLine.parser().positionalArguments().mid(1);
    if (operands.size() > 1)
        return KTConsole::failUsage(KTToolText::tr("'keywords' takes one class"));
    QVector<const KTClassification *> rows;
    for (const KTClassification &row : KTClassification::all()) {
        if (operands.isEmpty() || isNamed(row, operands.constFirst()))
            rows.append(&row);
    }
    if (rows.isEmpty())
        return failClass(operands.constFirst());
    const std::optional<QString> format = commandLine.format();
    if (!format)
        return KTExitUsage;
    return KTConsole::print(FORMATS[formats.indexOf(*format)].format(rows));
}
