#include "KTTextTracker.h"

#include <algorithm>
#include <cstring>

namespace {

/** All bytes but the further ones of a character. */
qint64 countCharacters(const char *begin, const char *end)
{
    return std::count_if(begin, end, [](char byte) { return (byte & 0xc0) != 0x80; });
}

/** UTF-16 has two units for these. */
qint64 countLongCharacters(const char *begin, const char *end)
{
    return std::count_if(begin, end, [](char byte) { return (byte & 0xf8) == 0xf0; });
}

const char *find(const char *begin, const char *end, char byte)
{
    return begin == end
        ? nullptr
        : static_cast<const char *>(std::memchr(begin, byte, static_cast<std::size_t>(end - begin)));
}

} // namespace

void KTTextTracker::advance(const char *begin, const char *end)
{
    switch (myWidth) {
    case KTCharacterWidth::Utf8:
        myPosition.offset += end - begin;
        break;
    case KTCharacterWidth::SingleByte:
        myPosition.offset += countCharacters(begin, end);
        break;
    case KTCharacterWidth::Utf16:
        myPosition.offset += 2 * (countCharacters(begin, end) + countLongCharacters(begin, end));
        break;
    }
    const char *line = begin;
    if (!find(begin, end, '\r')) {
        while (const char *const feed = find(line, end, '\n')) {
            ++myPosition.line;
            myPosition.column = 1;
            line = feed + 1;
        }
    } else {
        for (const char *byte = begin; byte != end; ++byte) {
            if (*byte != '\r' && *byte != '\n')
                continue;
            const bool isSecond = *byte == '\n' && byte != begin && byte[-1] == '\r';
            myPosition.line += isSecond ? 0 : 1;
            myPosition.column = 1;
            line = byte + 1;
        }
    }
    myPosition.column += static_cast<int>(countCharacters(line, end));
}
