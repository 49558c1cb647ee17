#include "KTFindingWriter.h"

#include "KTFileName.h"
#include "KTTerminalText.h"
#include "KTToolText.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cerrno>
#include <cstdio>

namespace {

const QString TEXT_FORMAT = QStringLiteral("text");
const QString JSON_FORMAT = QStringLiteral("json");
const QString SARIF_FORMAT = QStringLiteral("sarif");

const QLatin1String BOLD("\033[1m");
const QLatin1String NORMAL("\033[0m");

QLatin1String color(KTSeverity severity)
{
    switch (severity) {
    case KTSeverity::Error:
        return QLatin1String("\033[1;31m");
    case KTSeverity::Warning:
        return QLatin1String("\033[1;35m");
    case KTSeverity::Hint:
        break;
    }
    return QLatin1String("\033[1;36m");
}

/** On one line, everything visible that a terminal would obey. */
QString json(const QJsonObject &object)
{
    return KTTerminalText::escapedJson(
        QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}

QJsonObject json(const KTFindingCounts &counts)
{
    return {
        {QStringLiteral("errors"),     counts.errors    },
        {QStringLiteral("warnings"),   counts.warnings  },
        {QStringLiteral("hints"),      counts.hints     },
        {QStringLiteral("unreadable"), counts.unreadable},
    };
}

class TextWriter : public KTFindingWriter
{
public:
    explicit TextWriter(bool isColored)
        : myIsColored(isColored)
    {
    }

    void write(const KTFinding &finding) override
    {
        const QString place = KTTerminalText::escaped(finding.file)
            + (finding.range.begin.line == 0
                   ? QStringLiteral(":")
                   : QStringLiteral(":%1:%2:").arg(finding.range.begin.line).arg(finding.range.begin.column));
        const QString severity = KTCheckRules::name(finding.severity) + QLatin1Char(':');
        const QString rest = KTTerminalText::escaped(finding.message)
            + QStringLiteral(" [%1]\n").arg(KTCheckRules::name(finding.rule));
        print(myIsColored ? BOLD + place + NORMAL + QLatin1Char(' ') + color(finding.severity) + severity
                      + NORMAL + QLatin1Char(' ') + rest
                          : place + QLatin1Char(' ') + severity + QLatin1Char(' ') + rest);
    }

    void end(const KTFindingCounts &) override { }

private:
    bool myIsColored;
};

/** A document with a long list; the entries are written as they come. */
class DocumentWriter : public KTFindingWriter
{
public:
    void write(const KTFinding &finding) override
    {
        print(myIsFirst ? QStringLiteral("\n") : QStringLiteral(",\n"));
        myIsFirst = false;
        print(json(toJSON(finding)));
    }

protected:
    virtual QJsonObject toJSON(const KTFinding &finding) const = 0;

private:
    bool myIsFirst = true;
};

class JsonWriter : public DocumentWriter
{
public:
    void begin() override { print(QStringLiteral("{\"format\":1,\"findings\":[")); }

    void end(const KTFindingCounts &counts) override
    {
        print(QStringLiteral("\n],\n\"total\":%1}\n").arg(json(json(counts))));
    }

protected:
    QJsonObject toJSON(const KTFinding &finding) const override
    {
        return {
            {QStringLiteral("rule"),      KTCheckRules::name(finding.rule)    },
            {QStringLiteral("severity"),  KTCheckRules::name(finding.severity)},
            {QStringLiteral("file"),      KTFileName::escaped(finding.file)   },
            {QStringLiteral("line"),      finding.range.begin.line            },
            {QStringLiteral("column"),    finding.range.begin.column          },
            {QStringLiteral("article"),   finding.articleId                   },
            {QStringLiteral("element"),   finding.element                     },
            {QStringLiteral("attribute"), finding.attribute                   },
            {QStringLiteral("message"),   finding.message                     },
        };
    }
};

/** The Static Analysis Results Interchange Format 2.1.0, in which the rules stand once before the results. */
class SarifWriter : public DocumentWriter
{
public:
    void begin() override
    {
        QJsonArray rules;
        for (int i = 0; i < KTCheckRules::COUNT; ++i)
            rules.append(toJSON(KTCheckRules::at(i)));
        const QJsonObject driver {
            {QStringLiteral("name"),    QCoreApplication::applicationName()   },
            {QStringLiteral("version"), QCoreApplication::applicationVersion()},
            {QStringLiteral("rules"),   rules                                 },
        };
        print(QStringLiteral(
                  "{\"$schema\":\"https://json.schemastore.org/sarif-2.1.0.json\",\"version\":\"2.1.0\","
                  "\"runs\":[{\"tool\":%1,\n\"columnKind\":\"unicodeCodePoints\",\"results\":[")
                  .arg(json(QJsonObject {
                      {QStringLiteral("driver"), driver}
        })));
    }

    void end(const KTFindingCounts &counts) override
    {
        print(QStringLiteral("\n],\n\"invocations\":[{\"executionSuccessful\":%1}]}]}\n")
                  .arg(counts.unreadable == 0 ? QStringLiteral("true") : QStringLiteral("false")));
    }

protected:
    QJsonObject toJSON(const KTFinding &finding) const override
    {
        const QByteArray uri = KTFileName::toBytes(finding.file).toPercentEncoding("/");
        QJsonObject physical {
            {QStringLiteral("artifactLocation"),
             QJsonObject {{QStringLiteral("uri"), QString::fromLatin1(uri)}}}
        };
        if (finding.range.begin.line > 0)
            physical.insert(QStringLiteral("region"), region(finding.range));
        QJsonObject location {
            {QStringLiteral("physicalLocation"), physical}
        };
        if (!finding.element.isEmpty())
            location.insert(QStringLiteral("logicalLocations"), QJsonArray {logical(finding)});
        return {
            {QStringLiteral("ruleId"),    KTCheckRules::name(finding.rule)                       },
            {QStringLiteral("ruleIndex"), static_cast<int>(finding.rule)                         },
            {QStringLiteral("level"),     level(finding.severity)                                },
            {QStringLiteral("message"),   QJsonObject {{QStringLiteral("text"), finding.message}}},
            {QStringLiteral("locations"), QJsonArray {location}                                  },
        };
    }

private:
    static QString level(KTSeverity severity)
    {
        return severity == KTSeverity::Hint ? QStringLiteral("note") : KTCheckRules::name(severity);
    }

    static QJsonObject toJSON(const KTRuleRow &row)
    {
        const auto text = [](const char *words) {
            return QJsonObject {
                {QStringLiteral("text"), QString::fromLatin1(words)}
            };
        };
        return {
            {QStringLiteral("id"),                   QString::fromLatin1(row.name)},
            {QStringLiteral("shortDescription"),     text(row.summary)            },
            {QStringLiteral("fullDescription"),      text(row.explanation)        },
            {QStringLiteral("defaultConfiguration"),
             QJsonObject {{QStringLiteral("level"), level(row.severity)}}         },
        };
    }

    /** Without an end where only a place is known, as in a file that is cut off. */
    static QJsonObject region(const KTFileRange &range)
    {
        QJsonObject region {
            {QStringLiteral("startLine"),   range.begin.line  },
            {QStringLiteral("startColumn"), range.begin.column},
        };
        if (range.length() > 0) {
            region.insert(QStringLiteral("endLine"), range.end.line);
            region.insert(QStringLiteral("endColumn"), range.end.column);
        }
        return region;
    }

    /** Such as "article 7301/form@color". */
    static QJsonObject logical(const KTFinding &finding)
    {
        QString name = finding.element;
        if (finding.articleId != 0)
            name.prepend(QStringLiteral("article %1/").arg(finding.articleId));
        if (!finding.attribute.isEmpty())
            name += QLatin1Char('@') + finding.attribute;
        return {
            {QStringLiteral("fullyQualifiedName"), name}
        };
    }
};

} // namespace

void KTFindingCounts::add(KTSeverity severity)
{
    switch (severity) {
    case KTSeverity::Error:
        ++errors;
        break;
    case KTSeverity::Warning:
        ++warnings;
        break;
    case KTSeverity::Hint:
        ++hints;
        break;
    }
}

void KTFindingCounts::add(const KTFindingCounts &other)
{
    errors += other.errors;
    warnings += other.warnings;
    hints += other.hints;
    unreadable += other.unreadable;
}

QString KTFindingCounts::toText() const
{
    QStringList parts;
    if (errors > 0)
        parts.append((errors == 1 ? KTToolText::tr("%1 error") : KTToolText::tr("%1 errors")).arg(errors));
    if (warnings > 0)
        parts.append(
            (warnings == 1 ? KTToolText::tr("%1 warning") : KTToolText::tr("%1 warnings")).arg(warnings));
    if (hints > 0)
        parts.append((hints == 1 ? KTToolText::tr("%1 hint") : KTToolText::tr("%1 hints")).arg(hints));
    return parts.isEmpty() ? KTToolText::tr("nothing found") : parts.join(QStringLiteral(", "));
}

std::unique_ptr<KTFindingWriter> KTFindingWriter::create(const QString &format, bool color)
{
    if (format == TEXT_FORMAT)
        return std::make_unique<TextWriter>(color);
    if (format == JSON_FORMAT)
        return std::make_unique<JsonWriter>();
    if (format == SARIF_FORMAT)
        return std::make_unique<SarifWriter>();
    return nullptr;
}

QStringList KTFindingWriter::formats()
{
    return {TEXT_FORMAT, JSON_FORMAT, SARIF_FORMAT};
}

KTFindingWriter::KTFindingWriter()
    : myIsComplete(myOutput.open(stdout, QIODevice::WriteOnly))
{
}

KTFindingWriter::~KTFindingWriter() = default;

bool KTFindingWriter::flush()
{
    if (myIsComplete && !myOutput.flush())
        fail();
    return myIsComplete;
}

void KTFindingWriter::print(const QString &text)
{
    const QByteArray bytes = KTFileName::toBytes(text);
    if (myIsComplete && myOutput.write(bytes) != bytes.size())
        fail();
}

void KTFindingWriter::fail()
{
    myIsReaderGone = errno == EPIPE;
    myIsComplete = false;
}
