#pragma once

#include "KTExitCode.h"

#include <QStringList>

/** Finds what the library's readers pass over in silence. */
namespace KTCheckCommand {
KTExitCode run(const QStringList &arguments);
}
