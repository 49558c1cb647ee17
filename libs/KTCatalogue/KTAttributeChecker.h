#pragma once

#include "KTElementCursor.h"

#include <KTPageCountOrganization.h>

#include <QHash>
#include <QPair>
#include <QString>

/**
 * Finds attributes that nothing reads, and texts that the library replaces by a default. Not part of the
 * library's interface.
 *
 * What the library makes of a text is asked from the library itself. Texts that cannot be wrong, such as a
 * number of a few digits, are recognised beforehand, and the answers about keywords are kept for the next
 * articles, so that asking takes no longer than reading the file.
 */
class KTAttributeChecker
{
public:
    /** Checks each attribute of the element by itself; the page counts are those of its article. */
    void check(KTElementCursor *cursor, const KTPageCountOrganization &pageCounts);

private:
    void checkRead(KTElementCursor *cursor, int attribute, const KTAttributeRow &row,
                   const KTPageCountOrganization &pageCounts);
    void checkKeywords(KTElementCursor *cursor, int attribute, const KTAttributeRow &row);
    const QString &shared(QStringView text);

    QString myShared;
    QHash<QPair<const KTAttributeRow *, QString>, QString> myKeywordMessages;
};
