#pragma once

#include "KTEnumToStringTable.h"
#include "KTStringLiteral.h"

#include <cstddef>
#include <type_traits>

/** One row of a classification's keyword table: what is written or read, and what it stands for. */
template <typename ENUM>
struct KTKeywordRow
{
    KTStringLiteral keyword;
    ENUM value;
};

/** What is done with a table of keyword rows. */
namespace KTKeywordRows {

/** Inserts the rows in their order, which decides what is written for a value with several keywords. */
template <typename ENUM, std::size_t N>
void insert(KTEnumToStringTable<ENUM> *table, const KTKeywordRow<ENUM> (&rows)[N])
{
    for (const KTKeywordRow<ENUM> &row : rows)
        table->insert(row.keyword, row.value);
}

/** The bits that have a keyword of their own, to prove at compile time that none was forgotten. */
template <typename ENUM, std::size_t N>
constexpr std::underlying_type_t<ENUM> bits(const KTKeywordRow<ENUM> (&rows)[N])
{
    std::underlying_type_t<ENUM> bits = 0;
    for (const KTKeywordRow<ENUM> &row : rows) {
        if ((row.value & (row.value - 1)) == 0)
            bits |= row.value;
    }
    return bits;
}

} // namespace KTKeywordRows
