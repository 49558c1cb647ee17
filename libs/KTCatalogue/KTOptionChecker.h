#pragma once

#include "KTElementCursor.h"

#include <QHash>
#include <QPair>
#include <QStringView>

/**
 * Finds options that are skipped, that an order cannot tell apart, or that do not survive being written. Not
 * part of the library's interface.
 */
class KTOptionChecker
{
public:
    /** Forgets the options of the former article. */
    void begin();
    void check(KTElementCursor *cursor);
    /** Checks the options together, when all of them are known. */
    void end(KTElementCursor *cursor) const;

private:
    struct Preselection
    {
        int count = 0;
        /** The last one. */
        int element = 0;
        int attribute = KTElementCursor::NO_ATTRIBUTE;
    };

    /** The lines of the options, and the preselections by their keys; the texts are the article's. */
    QHash<QPair<QStringView, QStringView>, int> myLines;
    QHash<QStringView, Preselection> myPreselections;
};
