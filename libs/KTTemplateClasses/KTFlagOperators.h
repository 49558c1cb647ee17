#pragma once

#include <type_traits>

// NOLINTBEGIN(bugprone-macro-parentheses): the argument is a type.
/**
 * Bit operators that stay within a flag enumeration: without them `a | b` is a number, which nothing that
 * expects the enumeration or its class takes. Put it behind the enumeration, in the same namespace:
 *
 *     enum KTExampleEnum : qint32 { KTExampleRed = 1, KTExampleBlue = 2 };
 *     KT_DECLARE_FLAG_OPERATORS(KTExampleEnum)
 */
#define KT_DECLARE_FLAG_OPERATORS(ENUM)                                                                      \
    constexpr ENUM operator|(ENUM first, ENUM second)                                                        \
    {                                                                                                        \
        using Number = std::underlying_type_t<ENUM>;                                                         \
        return static_cast<ENUM>(static_cast<Number>(first) | static_cast<Number>(second));                  \
    }                                                                                                        \
    constexpr ENUM operator&(ENUM first, ENUM second)                                                        \
    {                                                                                                        \
        using Number = std::underlying_type_t<ENUM>;                                                         \
        return static_cast<ENUM>(static_cast<Number>(first) & static_cast<Number>(second));                  \
    }                                                                                                        \
    constexpr ENUM operator^(ENUM first, ENUM second)                                                        \
    {                                                                                                        \
        using Number = std::underlying_type_t<ENUM>;                                                         \
        return static_cast<ENUM>(static_cast<Number>(first) ^ static_cast<Number>(second));                  \
    }                                                                                                        \
    constexpr ENUM operator~(ENUM value)                                                                     \
    {                                                                                                        \
        return static_cast<ENUM>(~static_cast<std::underlying_type_t<ENUM>>(value));                         \
    }                                                                                                        \
    constexpr ENUM &operator|=(ENUM &first, ENUM second)                                                     \
    {                                                                                                        \
        return first = first | second;                                                                       \
    }                                                                                                        \
    constexpr ENUM &operator&=(ENUM &first, ENUM second)                                                     \
    {                                                                                                        \
        return first = first & second;                                                                       \
    }                                                                                                        \
    constexpr ENUM &operator^=(ENUM &first, ENUM second)                                                     \
    {                                                                                                        \
        return first = first ^ second;                                                                       \
    }
// NOLINTEND(bugprone-macro-parentheses)
