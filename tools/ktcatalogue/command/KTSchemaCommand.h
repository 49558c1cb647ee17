#pragma once

#include "KTExitCode.h"

#include <QStringList>

/** Writes the schema of the catalogue format. */
namespace KTSchemaCommand {
KTExitCode run(const QStringList &arguments);
}
