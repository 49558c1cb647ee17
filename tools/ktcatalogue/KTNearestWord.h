#pragma once

#include <QString>
#include <QStringList>

/** For "did you mean". */
namespace KTNearestWord {

/** The candidate with the fewest edits (letters added, dropped or changed, case ignored); null beyond the
 * maximum. */
QString find(const QString &word, const QStringList &candidates, int maximumEdits = 2);

} // namespace KTNearestWord
