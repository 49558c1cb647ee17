#include "KTCheckText.h"

#include "KTCatalogueText.h"
#include "KTNearestWord.h"

#include <KTArithmetic.h>

#include <algorithm>

QString KTCheckText::shortened(const QString &text)
{
    return text.size() <= MAX_WORD_LENGTH ? text : text.left(MAX_WORD_LENGTH) + QStringLiteral("[...]");
}

QString KTCheckText::quoted(const QString &text)
{
    return QStringLiteral("'%1'").arg(shortened(text));
}

QString KTCheckText::suggestion(const QString &word, const QStringList &candidates)
{
    if (word.size() > MAX_WORD_LENGTH)
        return QString();
    // A word that is changed as a whole was not meant.
    const QString nearest
        = KTNearestWord::find(word, candidates, std::clamp(KTArithmetic::sizeOf(word) - 1, 0, 2));
    return nearest.isEmpty() ? QString() : KTCatalogueText::tr("; did you mean '%1'?").arg(nearest);
}

QString KTCheckText::defaultOf(const KTAttributeRow &row)
{
    return row.defaultText().replace(QLatin1Char('`'), QLatin1Char('\''));
}

QString KTCheckText::text(const KTPageCountOrganization &pageCounts)
{
    return KTCatalogueText::tr("%1 to %2, step %3")
        .arg(pageCounts.minPages())
        .arg(pageCounts.maxPages())
        .arg(pageCounts.pageIncrement());
}
