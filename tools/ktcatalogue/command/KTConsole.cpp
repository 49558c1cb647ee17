#include "KTConsole.h"

#include "KTFileName.h"
#include "KTSpool.h"
#include "KTTerminalText.h"
#include "KTToolText.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <unistd.h>

namespace {

constexpr qint64 FIRST_MILLISECONDS = 1000;
constexpr qint64 STEP_MILLISECONDS = 200;
const char ERASE_LINE[] = "\r\033[K";

void write(const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

} // namespace

void KTConsole::note(const QString &message)
{
    write(KTFileName::toBytes(KTTerminalText::escaped(message)) + '\n');
}

KTExitCode KTConsole::fail(KTExitCode code, const QString &message)
{
    note(message);
    return code;
}

KTExitCode KTConsole::failUsage(const QString &message)
{
    const QString name = QCoreApplication::applicationName();
    return fail(KTExitUsage, KTToolText::tr("%1: %2; see '%1 --help'").arg(name, message));
}

KTExitCode KTConsole::print(const QString &text)
{
    KTSpool spool;
    spool.write(text);
    return deliver(&spool);
}

KTExitCode KTConsole::deliver(KTSpool *spool)
{
    QFile output;
    if (output.open(stdout, QIODevice::WriteOnly) && spool->deliver(&output) && output.flush())
        return KTExitSuccess;
    return failToWrite();
}

KTExitCode KTConsole::failToWrite()
{
    return fail(KTExitUnwritable, KTToolText::tr("the output cannot be written"));
}

bool KTConsole::isColored()
{
    return isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR")
        && qgetenv("TERM") != QByteArrayLiteral("dumb");
}

KTProgressLine::KTProgressLine(bool isWanted)
    : myIsWanted(isWanted && isatty(STDERR_FILENO) != 0)
    , myNext(FIRST_MILLISECONDS)
{
    myTimer.start();
}

void KTProgressLine::show(const QString &text)
{
    write(ERASE_LINE + KTFileName::toBytes(KTTerminalText::escaped(text)));
    myIsShown = true;
    myNext = myTimer.elapsed() + STEP_MILLISECONDS;
}

void KTProgressLine::clear()
{
    if (myIsShown)
        write(ERASE_LINE);
    myIsShown = false;
}
