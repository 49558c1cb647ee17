#pragma once

#include "KTStringLiteral.h"

/** One row of a classification's keyword table: what is written or read, and what it stands for. */
template <typename ENUM>
struct KTKeywordRow
{
    KTStringLiteral keyword;
    ENUM value;
};
