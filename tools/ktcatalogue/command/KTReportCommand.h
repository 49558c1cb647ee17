#pragma once

#include "KTExitCode.h"

#include <QStringList>

/** Writes a catalogue as a page to look at. */
namespace KTReportCommand {
KTExitCode run(const QStringList &arguments);
}
