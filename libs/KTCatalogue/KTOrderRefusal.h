#pragma once

#include "ktcatalogue_export.h"

#include <QString>
#include <QStringList>
#include <QVector>

/** Why an article cannot be ordered in some way, and what comes nearest. */
struct KTCATALOGUE_EXPORT KTOrderRefusal
{
    enum class Reason {
        /** The article has no option with the key. */
        UnknownKey,
        /** The article does not offer the value for the key. */
        UnknownValue,
        /** The article cannot have so many pages. */
        PageCount,
    };

    Reason reason;
    /** What was asked for. */
    QString key;
    QString value;
    int pages = 0;
    /** The keys that there are, or the values of the key; not for page counts. */
    QStringList offered;
    /** The one that is most like the wish; null when none is like it. */
    QString nearest;
    /** The valid page counts below and above the wish, or the only one; empty where none is, and for options.
     */
    QVector<int> nearestPages;

    /** A predicate in English, "does not offer 'rde' for 'alcolor'; offered: ...", without a full stop. */
    [[nodiscard]] QString toString() const;
};
