#pragma once

#include "KTExitCode.h"

#include <QStringList>

/** Shows what the library makes of the articles. */
namespace KTShowCommand {
KTExitCode run(const QStringList &arguments);
}
