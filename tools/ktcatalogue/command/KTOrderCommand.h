#pragma once

#include "KTExitCode.h"

#include <QStringList>

/** Writes the order text of a choice. */
namespace KTOrderCommand {
KTExitCode run(const QStringList &arguments);
}
