#pragma once

#include <KTArithmetic.h>
#include <KTStringLiteral.h>

#include <QPair>
#include <QString>
#include <QStringView>
#include <QVarLengthArray>

#include <algorithm>

/** What the text forms of article variants have in common; not part of the library's interface. */
namespace KTVariantPairs {

constexpr QChar COMPOUND_SEPARATOR = u';';
constexpr QChar ORDER_TXT_SEPARATOR = u';';
/** One pair of the order text and of the MCF form. */
constexpr KTStringLiteral PAIR_TEMPLATE = "%1:%2";
/** All that the template adds to a key without a place marker and its value. */
constexpr QChar PAIR_SEPARATOR = u':';
constexpr QChar PLACE_MARKER = u'%';

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
    const KTSize markers = withKey.count(PLACE_MARKER);
    if (markers > MOST_REPEATS && qint64(markers) * value.size() > MOST_REPEATED)
        return pairTemplate.arg(key, value);
    return withKey.arg(value);
}

/** The first part of a compound text that is not empty; the rest begins behind it. Empty at the end. */
inline QStringView takePart(QStringView *rest)
{
    while (!rest->isEmpty()) {
        const auto *const separator = std::find(rest->begin(), rest->end(), COMPOUND_SEPARATOR);
        const QStringView part(rest->begin(), separator);
        *rest = separator == rest->end() ? QStringView() : QStringView(separator + 1, rest->end());
        if (!part.isEmpty())
            return part;
    }
    return QStringView();
}

/** Calls the function with each part of a compound key and its value part, unless they differ in number. */
template <typename Function>
void forEachPart(QStringView key, QStringView value, Function function)
{
    QVarLengthArray<QPair<QStringView, QStringView>, 8> parts;
    for (;;) {
        const QPair<QStringView, QStringView> part(takePart(&key), takePart(&value));
        if (part.first.isEmpty() != part.second.isEmpty())
            return;
        if (part.first.isEmpty())
            break;
        parts.append(part);
    }
    for (const auto &part : qAsConst(parts))
        function(part.first, part.second);
}

/** The part as a text of its own; one that is all of the whole shares it. */
inline QString partText(QStringView part, const QString &whole)
{
    return part.size() == whole.size() ? whole : part.toString();
}

/** How much a pair adds to a text at most, whole or expanded; more only where a "%" in its key is filled. */
inline qint64 writtenSize(QStringView key, QStringView value)
{
    return qint64(key.size()) + value.size() + 2;
}

/** Pairs joined by a separator. */
class JoinedPairs
{
public:
    /** The size is that of all pairs; what exceeds it allocates again. */
    JoinedPairs(QChar separator, qint64 size)
        : mySeparator(separator)
    {
        if (size > 0)
            myText.reserve(KTArithmetic::saturated(size));
    }

    void append(QStringView key, QStringView value)
    {
        const KTSize size = myText.size();
        if (std::find(key.begin(), key.end(), PLACE_MARKER) != key.end()) {
            if (size > 0)
                myText.append(mySeparator);
            myText.append(filled(PAIR_TEMPLATE, key.toString(), value.toString()));
            return;
        }
        // Much cheaper than filling the template, which gives the same.
        myText.resize(KTArithmetic::saturated(size + writtenSize(key, value) - (size > 0 ? 0 : 1)));
        QChar *end = myText.data() + size;
        if (size > 0)
            *end++ = mySeparator;
        end = std::copy(key.begin(), key.end(), end);
        *end++ = PAIR_SEPARATOR;
        std::copy(value.begin(), value.end(), end);
    }

    /** Null without a pair. */
    QString text() const { return myText.isEmpty() ? QString() : myText; }

private:
    QString myText;
    QChar mySeparator;
};

} // namespace KTVariantPairs
