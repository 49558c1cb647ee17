#pragma once

#include <KTBoundaries.h>

#include <QByteArray>
#include <QDebug>
#include <QString>

#include <utility>

// Ends the process, as libFuzzer expects it, when a promise of the library is broken.
#define KT_REQUIRE(promise) ((promise) ? void() : KTFuzz::fail(__FILE__, __LINE__, #promise))

/** The fuzz targets, each asked for any bytes at all, and what they share. */
namespace KTFuzz {

/** Elements, built as the bytes say, through every reader of elements and every query. */
void elements(const QByteArray &input);
/** Each of a few lines as a text through every reader of texts, the writers, and the readers again. */
void texts(const QByteArray &input);
/** A whole catalogue file, through the inspector. */
void catalogue(const QByteArray &input);

constexpr std::pair<const char *, void (*)(const QByteArray &)> TARGETS[] = {
    {"elements",  &elements },
    {"texts",     &texts    },
    {"catalogue", &catalogue},
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
