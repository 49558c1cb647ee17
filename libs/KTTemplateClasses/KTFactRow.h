#pragma once

#include "KTLookUpTable.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

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

/** The row whose member "name" is the name; null for a name that none has. */
template <typename ROW, std::size_t N>
const ROW *findNamed(const ROW (&rows)[N], const QString &name)
{
    for (const ROW &row : rows) {
        if (name == QLatin1String(row.name))
            return &row;
    }
    return nullptr;
}

/** The rows' names, in their order. */
template <typename ROW, std::size_t N>
QStringList namesOf(const ROW (&rows)[N])
{
    QStringList names;
    for (const ROW &row : rows)
        names.append(QString::fromLatin1(row.name));
    return names;
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
