#pragma once

#include "KTCatalogueFormat.h"

#include <KTPageCountOrganization.h>

#include <QString>
#include <QStringList>
#include <QStringView>

/** Words that the messages of several checks share. Not part of the library's interface. */
namespace KTCheckText {

/** Enough answers to keep for the texts that a catalogue repeats, and no more memory than a small one takes.
 */
constexpr int MAX_KEPT_ANSWERS = 1000;
/** A text that is longer is neither kept for the next articles nor searched for a likeness. */
constexpr int MAX_WORD_LENGTH = 64;

inline bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

/** Cut off where nobody would read on. */
QString shortened(const QString &text);
/** In quotes, shortened. */
QString quoted(const QString &text);
/** "; did you mean 'alcolor'?", or nothing. */
QString suggestion(const QString &word, const QStringList &candidates);
/** What a missing or unreadable text counts as. */
QString defaultOf(const KTAttributeRow &row);
/** "26 to 154, step 2". */
QString text(const KTPageCountOrganization &pageCounts);

} // namespace KTCheckText
