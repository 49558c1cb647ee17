#pragma once

#include <KTOrderCheck.h>

#include <QJsonObject>
#include <QString>

/** A saved order that can no longer be ordered as it was saved, for people and for programs. */
namespace KTOrderText {

/** Lines that begin with "file:line: article 7301", the last one with what comes nearest. */
QString lines(const QString &fileName, const KTSavedOrder &order, const KTOrderVerdict &verdict);
/** A row of a table of Markdown: line, article, reasons, the nearest. */
QString tableRow(const KTSavedOrder &order, const KTOrderVerdict &verdict);
QJsonObject toJSON(const KTSavedOrder &order, const KTOrderVerdict &verdict);

} // namespace KTOrderText
