#pragma once

#include "ktcore_export.h"

#include <QLocale>

/**
 * The library's texts in other languages than those in which they stand in the sources: German for the
 * display texts of the product model, English for what KT::Catalogue says of catalogues and orders.
 *
 * They come from the folder "translations" of the resources (see KTDirectoryConfig).
 */
namespace KTTranslation {

/**
 * Lets the application show all texts in the language of the locale, German or English: true where they are
 * there, else false, and nothing changes; false also from another thread than the application's.
 *
 * Call it in the application's thread, once there is an application object, and before the first display text
 * is asked for: tables of names are built on first use, and what they hold by then stays as it is. A language
 * installed later takes the place of the former one.
 */
KTCORE_EXPORT bool install(const QLocale &locale);

} // namespace KTTranslation
