#pragma once

#include "KTExitCode.h"

#include <QStringList>

#include <optional>

/** In which language display names are shown: --language, or what the environment says. */
namespace KTLanguage {

/**
 * Takes the option out of the arguments, wherever it stands before "--", and installs the language. Without
 * it the environment decides: the first of LC_ALL, LC_MESSAGES and LANG that is set, before which the
 * languages of LANGUAGE come, unless it is "C". A language that there is none for, or
 * none at all ("C"), leaves the texts as they stand in the sources: the program's own in English, and display
 * names of classifications, which are the product model's, in German.
 *
 * An exit code means that the value was wrong, which is reported.
 */
std::optional<KTExitCode> install(QStringList *arguments);

} // namespace KTLanguage
