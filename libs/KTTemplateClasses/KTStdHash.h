#pragma once

#include <cstddef>
#include <functional>

// NOLINTBEGIN(bugprone-macro-parentheses): the argument is a type.
/**
 * Lets the unordered containers of the standard library take the class as a key: its hash is that of Qt's
 * containers, qHash() with seed 0. Put it behind qHash(), outside of any namespace.
 */
#define KT_DECLARE_STD_HASH(CLASS)                                                                           \
    template <>                                                                                              \
    struct std::hash<CLASS>                                                                                  \
    {                                                                                                        \
        std::size_t operator()(const CLASS &key) const noexcept { return qHash(key); }                       \
    };
// NOLINTEND(bugprone-macro-parentheses)
