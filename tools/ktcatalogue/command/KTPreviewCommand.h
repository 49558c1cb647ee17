#pragma once

#include "KTExitCode.h"

#include <QStringList>

/** The sub-command "preview"; it needs a QGuiApplication. */
namespace KTPreviewCommand {
KTExitCode run(const QStringList &arguments);
}
