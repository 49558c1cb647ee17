#pragma once

#include "KTExitCode.h"

#include <QStringList>

/** Shows the keyword tables of the classifications. */
namespace KTKeywordsCommand {
KTExitCode run(const QStringList &arguments);
}
