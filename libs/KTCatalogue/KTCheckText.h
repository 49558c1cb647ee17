#pragma once

#include "KTCatalogueFormat.h"

#include <KTPageCountOrganization.h>

#include <QString>
#include <QStringList>
#include <QStringView>

/** Words that the messages of several checks share. Not part of the library's interface. */
namespace KTCheckText {

/** A text that is longer is neither kept for the next articles nor searched for a likeness. */
constexpr int MAX_WORD_LENGTH = 64;

/** In quotes, shortened where nobody would read on. */
QString quoted(const QString &text);
/** "; did you mean 'alcolor'?", or nothing. */
QString suggestion(const QString &word, const QStringList &candidates);
/** What a missing or unreadable text counts as. */
QString defaultOf(const KTAttributeRow &row);
/** "26 to 154, step 2". */
QString text(const KTPageCountOrganization &pageCounts);

} // namespace KTCheckText
