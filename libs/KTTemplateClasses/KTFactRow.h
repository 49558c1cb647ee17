#pragma once

#include "KTLookUpTable.h"

#include <QCoreApplication>
#include <QString>

#include <cstddef>

/** The plainest such row: a translatable text for the value. */
template <typename ENUM>
struct KTTextRow
{
    ENUM value;
    const char *text;
};

/** Look-ups in tables of facts: arrays of structures whose member "value" says what the row is about. */
namespace KTFactRows {

/** The row of exactly this value, or the fallback. */
template <typename ROW, std::size_t N, typename VALUE>
constexpr const ROW &find(const ROW (&rows)[N], VALUE value, const ROW &fallback)
{
    for (const ROW &row : rows) {
        if (row.value == value)
            return row;
    }
    return fallback;
}

/** A new table of the rows' texts, each translated now in the context; the caller owns it. */
template <typename KEY, typename ROW, std::size_t N>
[[nodiscard]] KTLookUpTable<KEY, QString> *createTextTable(const char *context, const ROW (&rows)[N])
{
    auto *const table = new KTLookUpTable<KEY, QString> {};
    for (const ROW &row : rows)
        table->map.insert(row.value, QCoreApplication::translate(context, row.text));
    return table;
}

} // namespace KTFactRows
