#pragma once

#include "ktcatalogue_export.h"

#include <QString>
#include <QStringList>

/** For "did you mean". */
namespace KTNearestWord {

/** The candidate with the fewest edits (letters added, dropped or changed, case ignored); null beyond the
 * maximum. */
KTCATALOGUE_EXPORT QString find(const QString &word, const QStringList &candidates, int maximumEdits = 2);

} // namespace KTNearestWord
