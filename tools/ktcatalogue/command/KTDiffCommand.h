#pragma once

#include "KTExitCode.h"

#include <QStringList>

/** Compares two catalogues as the application reads them. */
namespace KTDiffCommand {
KTExitCode run(const QStringList &arguments);
}
