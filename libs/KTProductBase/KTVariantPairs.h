#pragma once

#include <KTStringLiteral.h>

#include <QString>
#include <QStringList>

/** What the text forms of article variants have in common; not part of the library's interface. */
namespace KTVariantPairs {

constexpr QChar COMPOUND_SEPARATOR = u';';
constexpr QChar ORDER_TXT_SEPARATOR = u';';
/** One pair of the order text and of the MCF form. */
constexpr KTStringLiteral PAIR_TEMPLATE = "%1:%2";

/**
 * The template with key and value filled in one after the other: a "%2" inside the key is filled as well.
 *
 * A key that would multiply a long value, which only a hostile one does, is left unfilled: the text has to
 * stay in proportion to its parts.
 */
inline QString filled(const QString &pairTemplate, const QString &key, const QString &value)
{
    constexpr int MOST_REPEATS = 100;
    constexpr qint64 MOST_REPEATED = 1000000;
    const QString withKey = pairTemplate.arg(key);
    const int markers = withKey.count(QLatin1Char('%'));
    if (markers > MOST_REPEATS && qint64(markers) * value.size() > MOST_REPEATED)
        return pairTemplate.arg(key, value);
    return withKey.arg(value);
}

/** Calls the function with each part of a compound key and its value part, unless they differ in number. */
template <typename Function>
void forEachPart(const QString &key, const QString &value, Function function)
{
    const QStringList keyParts = key.split(COMPOUND_SEPARATOR, Qt::SkipEmptyParts);
    const QStringList valueParts = value.split(COMPOUND_SEPARATOR, Qt::SkipEmptyParts);
    if (keyParts.size() != valueParts.size())
        return;
    for (int i = 0; i < keyParts.size(); ++i)
        function(keyParts.at(i), valueParts.at(i));
}

} // namespace KTVariantPairs
