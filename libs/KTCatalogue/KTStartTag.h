#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string_view>

/** Takes apart what the XML parser has found to be a start tag, or the beginning of one, in UTF-8. */
namespace KTStartTag {

/** Where an attribute stands; what is not there yet is at the end of the text. */
struct Attribute
{
    const char *nameBegin;
    const char *nameEnd;
    /** Behind the opening quote, and at the closing one. */
    const char *valueBegin;
    const char *valueEnd;

    std::string_view name() const { return {nameBegin, static_cast<std::size_t>(nameEnd - nameBegin)}; }
};

inline bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

/** Behind the name that begins here. */
inline const char *endOfName(const char *begin, const char *end)
{
    return std::find_if(begin, end,
                        [](char byte) { return isBlank(byte) || byte == '=' || byte == '/' || byte == '>'; });
}

inline std::string_view name(const char *begin, const char *end)
{
    return {begin, static_cast<std::size_t>(endOfName(begin, end) - begin)};
}

/** Calls the function with each attribute of the tag, which begins with "<", until it gives false. */
template <typename Function>
void forEachAttribute(const char *begin, const char *end, Function function)
{
    const auto isQuote = [](char byte) { return byte == '"' || byte == '\''; };
    const char *at = endOfName(begin + 1, end);
    for (;;) {
        at = std::find_if_not(at, end, isBlank);
        if (at == end || *at == '/' || *at == '>')
            return;
        Attribute attribute {at, endOfName(at, end), end, end};
        const char *const quote = std::find_if(attribute.nameEnd, end, isQuote);
        if (quote != end) {
            attribute.valueBegin = quote + 1;
            const auto *const closing = static_cast<const char *>(std::memchr(
                attribute.valueBegin, *quote, static_cast<std::size_t>(end - attribute.valueBegin)));
            attribute.valueEnd = closing ? closing : end;
        }
        if (!function(attribute))
            return;
        at = attribute.valueEnd == end ? end : attribute.valueEnd + 1;
    }
}

} // namespace KTStartTag
