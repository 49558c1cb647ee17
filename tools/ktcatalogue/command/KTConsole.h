#pragma once

#include "KTExitCode.h"

#include <QElapsedTimer>
#include <QString>

class KTSpool;

/** How the program speaks to its user. */
namespace KTConsole {

/** Prints one line to standard error. */
void note(const QString &message);
/** The same about what went wrong; returns the code. */
KTExitCode fail(KTExitCode code, const QString &message);
KTExitCode failUsage(const QString &message);
/** Prints to standard output; the exit code tells whether that worked. */
KTExitCode print(const QString &text);
KTExitCode deliver(KTSpool *spool);
/** Reports that standard output takes no more. */
KTExitCode failToWrite();

/** True when standard output is a terminal whose user wants colours, see no-color.org. */
bool isColored();

} // namespace KTConsole

/** One line on standard error about work that takes long; nothing at all when that is no terminal. */
class KTProgressLine
{
public:
    explicit KTProgressLine(bool isWanted);

    /** True when the line is due: after a second, and then some times in each second. */
    bool isDue() const { return myIsWanted && myTimer.elapsed() >= myNext; }
    void show(const QString &text);
    /** Makes room for other output. */
    void clear();

private:
    bool myIsWanted;
    bool myIsShown = false;
    QElapsedTimer myTimer;
    qint64 myNext;
};
