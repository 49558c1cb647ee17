#include "KTCheckCommand.h"
#include "KTConsole.h"
#include "KTDiffCommand.h"
#include "KTFileName.h"
#include "KTKeywordsCommand.h"
#include "KTLanguage.h"
#include "KTOrderCommand.h"
#include "KTOrdersCommand.h"
#include "KTPreviewCommand.h"
#include "KTReportCommand.h"
#include "KTSchemaCommand.h"
#include "KTShowCommand.h"
#include "KTToolText.h"

#include <KTNearestWord.h>
#include <KTProductBaseVersion.h>

#include <QGuiApplication>

#include <algorithm>
#include <memory>
#include <optional>

namespace {

/** The one that draws text, for which Qt wants more than a QCoreApplication. */
constexpr char DRAWING_COMMAND[] = "preview";
constexpr char PLATFORM_VARIABLE[] = "QT_QPA_PLATFORM";

struct CommandRow
{
    const char *name;
    const char *description;
    KTExitCode (*run)(const QStringList &arguments);
};

constexpr CommandRow COMMANDS[] = {
    {"show",          QT_TRANSLATE_NOOP("KTToolText", "Shows what the library makes of each article."),
     &KTShowCommand::run    },
    {"check",         QT_TRANSLATE_NOOP("KTToolText", "Finds what the library passes over in silence."),
     &KTCheckCommand::run   },
    {"diff",          QT_TRANSLATE_NOOP("KTToolText", "Tells what a new catalogue changes for customers."),
     &KTDiffCommand::run    },
    {"order",         QT_TRANSLATE_NOOP("KTToolText", "Writes order text, MCF and production form of a choice."),
     &KTOrderCommand::run   },
    {"orders",        QT_TRANSLATE_NOOP("KTToolText", "Finds saved orders that can no longer be ordered."),
     &KTOrdersCommand::run  },
    {DRAWING_COMMAND, QT_TRANSLATE_NOOP("KTToolText", "Draws the cover of an article to scale."),
     &KTPreviewCommand::run },
    {"report",        QT_TRANSLATE_NOOP("KTToolText", "Writes the catalogue as a page to look at."),
     &KTReportCommand::run  },
    {"keywords",      QT_TRANSLATE_NOOP("KTToolText", "Shows the keyword tables of the classifications."),
     &KTKeywordsCommand::run},
    {"schema",        QT_TRANSLATE_NOOP("KTToolText", "Writes a schema of the format, for editors."),
     &KTSchemaCommand::run  },
};

QString help()
{
    QString text
        = KTToolText::tr("Usage: %1 COMMAND [FILE] [OPTIONS]\n"
                         "Makes a catalogue of printed photo products visible.\n\n"
                         "Options:\n"
                         "  -h, --help             Displays this help.\n"
                         "  -v, --version          Displays the versions of the library and of Qt.\n"
                         "  --language <LANGUAGE>  All texts in German (de) or English (en), with\n"
                         "                         any command; by default as the environment says.\n\n"
                         "Commands (each has a --help of its own):\n")
              .arg(QCoreApplication::applicationName());
    for (const CommandRow &row : COMMANDS)
        text += QStringLiteral("  %1 %2\n")
                    .arg(QString::fromLatin1(row.name).leftJustified(14), KTToolText::tr(row.description));
    return text
        + KTToolText::tr("\nExample:\n  %1 show examples/catalogue.xml --article 7301\n")
              .arg(QCoreApplication::applicationName());
}

KTExitCode run(const QStringList &arguments)
{
    const QString command = arguments.value(0);
    if (command == QLatin1String("-h") || command == QLatin1String("--help"))
        return KTConsole::print(help());
    if (command == QLatin1String("-v") || command == QLatin1String("--version")) {
        return KTConsole::print(QStringLiteral("%1 (KTProductBase) %2, Qt %3\n")
                                    .arg(QCoreApplication::applicationName(),
                                         QCoreApplication::applicationVersion(),
                                         QString::fromLatin1(qVersion())));
    }
    QStringList names;
    for (const CommandRow &row : COMMANDS) {
        names.append(QString::fromLatin1(row.name));
        if (command == names.constLast())
            return row.run(arguments);
    }
    if (arguments.isEmpty())
        return KTConsole::failUsage(KTToolText::tr("a command is missing"));
    const QString nearest = KTNearestWord::find(command, names);
    return KTConsole::failUsage(
        KTToolText::tr("unknown command '%1'").arg(command)
        + (nearest.isNull() ? QString() : KTToolText::tr(", did you mean '%1'?").arg(nearest)));
}

/** What the library logs is for the user too, one line each. */
void printMessage(QtMsgType, const QMessageLogContext &, const QString &text)
{
    KTConsole::note(QStringLiteral("ktcatalogue: %1").arg(text));
}

void printIfFatal(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (type == QtFatalMsg)
        printMessage(type, context, text);
}

/** Drawing needs Qt's fonts, but no display. */
std::unique_ptr<QCoreApplication> createApplication(int &argc, char *argv[])
{
    // An option may stand before the command.
    const auto isDrawing = [](const char *argument) { return qstrcmp(argument, DRAWING_COMMAND) == 0; };
    if (std::none_of(argv, argv + argc, isDrawing))
        return std::make_unique<QCoreApplication>(argc, argv);
    if (!qEnvironmentVariableIsSet(PLATFORM_VARIABLE))
        qputenv(PLATFORM_VARIABLE, "offscreen");
    return std::make_unique<QGuiApplication>(argc, argv);
}

} // namespace

int main(int argc, char *argv[])
{
    // Until then Qt only remarks on the desktop that it does not find.
    qInstallMessageHandler(&printIfFatal);
    const std::unique_ptr<QCoreApplication> application = createApplication(argc, argv);
    qInstallMessageHandler(&printMessage);
    QCoreApplication::setApplicationName(QStringLiteral("ktcatalogue"));
    QCoreApplication::setApplicationVersion(QStringLiteral(KTPRODUCTBASE_VERSION_STRING));
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(KTFileName::fromBytes(argv[i]));
    const std::optional<KTExitCode> failure = KTLanguage::install(&arguments);
    return failure ? *failure : run(arguments);
}
