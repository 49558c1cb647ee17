#pragma once

#include "KTExitCode.h"

#include <QStringList>

/** Finds saved orders that can no longer be ordered. */
namespace KTOrdersCommand {
KTExitCode run(const QStringList &arguments);
}
