#pragma once

#include "ktcore_export.h"

#include <QLocale>

/**
 * The display texts in other languages than German, in which they stand in the sources.
 *
 * The texts come from the folder "translations" of the resources (see KTDirectoryConfig).
 */
namespace KTTranslation {

/**
 * Lets the application show the display texts in the language of the locale: true where they are there, which
 * they always are in German; else false, and nothing changes.
 *
 * Call it in the application's thread, once there is an application object, and before the first display text
 * is asked for: tables of names are built on first use, and what they hold by then stays as it is. A language
 * installed later takes the place of the former one.
 */
KTCORE_EXPORT bool install(const QLocale &locale);

} // namespace KTTranslation
