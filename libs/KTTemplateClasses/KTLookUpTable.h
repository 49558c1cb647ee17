#pragma once

#include <QMap>

#include <initializer_list>
#include <utility>

/**
 * An ordered map with defaults, for the translated texts of classification values.
 *
 * Its owner builds it once, sets the defaults, and from then on only reads it, from any thread.
 */
template <typename K, typename V>
class Q_DECL_EXPORT KTLookUpTable
{
public:
    /** No pairs; both defaults are value-initialised. */
    KTLookUpTable() = default;
    /** The pairs in the given order; a repeated key keeps its later value. Defaults as without pairs. */
    KTLookUpTable(std::initializer_list<std::pair<K, V>> pairs)
    {
        for (const std::pair<K, V> &pair : pairs)
            map.insert(pair.first, pair.second);
    }

    /** The value of the key, or defaultValue. */
    V valueOf(const K &key) const { return map.value(key, defaultValue); }
    /** The lowest key with exactly this value, or defaultKey. */
    K keyOf(const V &value) const { return map.key(value, defaultKey); }

    QMap<K, V> map;
    K defaultKey {};
    V defaultValue {};
};
