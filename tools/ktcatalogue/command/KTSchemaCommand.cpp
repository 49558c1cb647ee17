#include "KTSchemaCommand.h"

#include "KTCommandLine.h"
#include "KTConsole.h"
#include "KTFileName.h"
#include "KTToolText.h"

#include <KTCatalogueSchema.h>

#include <QBuffer>

namespace {

struct FormatRow
{
    const char *name;
    bool (*write)(QIODevice *device);
};

constexpr FormatRow FORMATS[] = {
    {"xsd", &KTCatalogueSchema::writeXSD    },
    {"rng", &KTCatalogueSchema::writeRelaxNG},
};

} // namespace

KTExitCode KTSchemaCommand::run(const QStringList &arguments)
{
    KTCommandLine commandLine(
        QStringLiteral("schema"),
        KTToolText::tr("Writes a schema of the catalogue format, with which editors complete and explain "
                       "elements, attributes and keywords: W3C XML Schema 1.0 (xsd) or RELAX NG (rng)."),
        QStringLiteral("--format rng -o ktcatalogue.rng"), KTCommandLine::Files::None);
    QStringList names;
    for (const FormatRow &row : FORMATS)
        names.append(QString::fromLatin1(row.name));
    const QCommandLineOption formatOption(
        QStringLiteral("format"),
        KTToolText::tr("One of %1; %2 by default.").arg(names.join(QStringLiteral(", ")), names.constFirst()),
        QStringLiteral("FORMAT"), names.constFirst());
    const QCommandLineOption outputOption(
        {QStringLiteral("o"), QStringLiteral("output")},
        KTToolText::tr("Writes to OUT instead of standard output. A file that is there is replaced."),
        QStringLiteral("OUT"));
    commandLine.parser().addOptions({formatOption, outputOption});
    if (const auto code = commandLine.parse(arguments))
        return *code;

    if (commandLine.parser().positionalArguments().size() > 1)
        return KTConsole::failUsage(KTToolText::tr("'schema' takes no file"));
    const QString format = commandLine.parser().value(formatOption);
    const auto index = names.indexOf(format);
    if (index < 0)
        return KTCommandLine::failChoice(QStringLiteral("format"), format, names);
    const bool isFile = commandLine.parser().isSet(outputOption);
    const QString output = commandLine.parser().value(outputOption);
    if (isFile && output.isEmpty())
        return KTConsole::failUsage(KTToolText::tr("'schema' needs a name behind -o"));

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    // A buffer takes everything.
    static_cast<void>(FORMATS[index].write(&buffer));
    if (!isFile)
        return KTConsole::print(QString::fromUtf8(buffer.data()));
    const QString error = KTFileName::replaceFile(output, buffer.data());
    return error.isEmpty()
        ? KTExitSuccess
        : KTConsole::fail(KTExitUnwritable, QStringLiteral("%1: error: %2").arg(output, error));
}
