#pragma once

#include <KTBoundaries.h>

#include <QDebug>
#include <QString>

#include <algorithm>
#include <cstring>
#include <utility>

// Ends the process, as libFuzzer expects it, when a promise of the library is broken.
#define KT_REQUIRE(promise) ((promise) ? void() : KTFuzz::fail(__FILE__, __LINE__, #promise))

/** The fuzz targets, each asked for any bytes at all, and what they share. */
namespace KTFuzz {

/** An input, taken from its front; at its end there are zeros and empty lines. */
struct Bytes
{
    const char *begin;
    const char *end;

    template <typename NUMBER>
    NUMBER take()
    {
        // Byte by byte: g++ 12 was seen to drop the zero before a memcpy() whose size may be 0.
        char bytes[sizeof(NUMBER)] = {};
        for (char &byte : bytes) {
            if (begin != end)
                byte = *begin++;
        }
        NUMBER number;
        std::memcpy(&number, bytes, sizeof number);
        return number;
    }
    /** The place in a table of so many entries that the next byte chooses. */
    int takeIndex(int size) { return take<uchar>() % size; }
    /** Up to the end of the line, in UTF-8; after the byte ff, as raw UTF-16, which may be malformed. */
    QString takeLine();
};

/** Elements, built as the bytes say, through the readers of elements and the queries. */
void elements(Bytes input);
/** A number and two texts through the readers of texts, the writers, and the readers again. */
void texts(Bytes input);
/** A catalogue file, through the inspector. */
void catalogue(Bytes input);
/** Two catalogues, each with some edits, through the comparison. */
void diff(Bytes input);

// The first byte of an input chooses what is asked, so that each of them costs little.
constexpr std::pair<const char *, void (*)(Bytes)> TARGETS[] = {
    {"elements",  &elements },
    {"texts",     &texts    },
    {"catalogue", &catalogue},
    {"diff",      &diff     },
};

[[noreturn]] void fail(const char *file, int line, const char *promise);

/** Silences the log, and makes an application, which fonts need, that lives as long as the process. */
void setUp();

/** For answers of which only matters that they come. */
template <typename... ANSWER>
void use(const ANSWER &...)
{
}

template <typename T>
QString debugText(const T &value)
{
    QString text;
    QDebug(&text) << value;
    return text;
}

/** What every value type promises about its equality. */
template <typename T>
void checkEquality(const T &first, const T &second)
{
    KT_REQUIRE(T(first) == first && (first == second) == (second == first));
    KT_REQUIRE((first == second) != (first != second));
}
template <typename T>
void checkHash(const T &first, const T &second)
{
    checkEquality(first, second);
    KT_REQUIRE(!(first == second) || qHash(first, 1u) == qHash(second, 1u));
}

} // namespace KTFuzz
