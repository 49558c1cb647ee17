#pragma once

#include "ktproductbase_export.h"

#include <KTQtTypes.h>

#include <QHash>
#include <QMetaType>
#include <QString>
#include <QStringList>

class QDebug;
class QDomElement;
class QJsonArray;

/**
 * The options chosen for an article: a map from variant key to value, such as "alcolor" to "black".
 *
 * A key may bundle several keys separated by ";", with as many values in its value ("giftboxcolor;boxstyle"
 * to "black;wood"). The order text and the production form expand such a compound pair; the MCF form keeps
 * it. Malformed input is skipped pair by pair. The writers visit the pairs in the map's own order, which is
 * not sorted and may differ between runs.
 */
class KTPRODUCTBASE_EXPORT KTArticleVariants
{
public:
    /** No options. */
    KTArticleVariants() = default;
    /** Reads one pair from the attributes "key" and "value"; a missing attribute counts as an empty text. */
    KTArticleVariants(const QDomElement &element);
    /**
     * Reads form parameters, texts like "form_parameter-alcolor:black". An entry that is not exactly one key
     * and one value, split at ":", is skipped; a later one replaces an earlier value of the same key.
     */
    KTArticleVariants(const QJsonArray &array);
    /** The one pair, unless its key or its value is empty. */
    KTArticleVariants(const QString &key, const QString &value);
    /** Reads one pair, its key and value separated by ":", "|" or "+"; any other text gives no options. */
    KTArticleVariants(const QString &keywordString);
    KTArticleVariants(const KTArticleVariants &other) = default;
    KTArticleVariants(KTArticleVariants &&other) noexcept = default;
    KTArticleVariants &operator=(const KTArticleVariants &other) = default;
    KTArticleVariants &operator=(KTArticleVariants &&other) noexcept = default;
    virtual ~KTArticleVariants();

    /**
     * Reads pairs separated by ",", each as the keyword string's. Gives back what toMCF() wrote, except pairs
     * with a "," or a key/value separator inside a key or value, or a "%" and a digit inside a key.
     */
    [[nodiscard]] static KTArticleVariants createFromMCF(const QString &text);
    /** The pair that stands for a black gift box. */
    [[nodiscard]] static KTArticleVariants blackCFBGiftBox();

    /** @name Well-known keys and values */
    /** @{ */
    static QString coverColorKeyName();
    static QString coverFotoKeyName();
    static QString pictureBoxKeyName();
    static QString flyLeafKeyColorName();
    static QString cfbGiftBoxColorKeyName();
    static QString blackCFBGiftBoxValue();
    /** @} */

    /** True when there is at least one pair. */
    bool isValid() const { return !myVariants.isEmpty(); }
    /** Sets the value of the key; both may be empty. */
    void insert(const QString &key, const QString &value);
    /** Sets every pair of the other options. */
    void insert(const KTArticleVariants &other);
    QString value(const QString &key, const QString &defaultValue) const;
    /** Sorted by UTF-16 code units. */
    QStringList keys() const;
    /** In the map's own order, which is not that of keys(). */
    QStringList values() const;
    bool hasCoverColor() const;
    bool hasFlyLeafColor() const;
    /**
     * True when each pair of the other options is among these. A missing key counts as one with an empty
     * value, so that an option switched off need not be listed.
     */
    bool contains(const KTArticleVariants &other) const;
    /**
     * True when a pair of these is among the other options, with a missing key as in contains(); also when
     * either side is empty, since no options match everything.
     */
    bool containsAtLeastOne(const KTArticleVariants &other) const;
    /** Qt's hash of the map, seed 0; it does not depend on the order of the pairs. */
    uint hash() const;

    /** Pairs like "alcolor:black" joined by ","; a pair with an empty key or value is left out. */
    [[nodiscard]] QString toMCF() const;
    /** The expanded pairs like "alcolor:black" joined by ";"; what cannot be expanded is left out. */
    [[nodiscard]] QString toOrderTxt() const;
    /** The options for production: each pair expanded, what cannot be expanded left out. */
    [[nodiscard]] KTArticleVariants toXTCI() const;
    /**
     * Expands one pair and inserts the result here. Empty parts are dropped; nothing is inserted unless the
     * key has as many parts as the value, at least one.
     */
    void splitForProduction(const QString &key, const QString &value);

    bool operator==(const KTArticleVariants &other) const { return myVariants == other.myVariants; }
    bool operator!=(const KTArticleVariants &other) const { return !(*this == other); }

private:
    QHash<QString, QString> myVariants;
};

Q_DECLARE_METATYPE(KTArticleVariants)

inline KTHashValue qHash(const KTArticleVariants &variants, KTHashValue seed = 0)
{
    return variants.hash() ^ seed;
}

/** Writes one string, the pairs like "alcolor = black" joined by "; " in the order of their keys. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTArticleVariants &variants);
