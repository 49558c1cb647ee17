#pragma once

#include <QString>

#include <cstddef>

/**
 * A short constant text that becomes a QString without allocation and needs no initialisation at run time.
 *
 * The strings made of it share its data, and copying them counts no references; so an object of this type
 * must have static storage (declare it `constexpr` at file scope).
 */
class KTStringLiteral
{
public:
    /** The longest text that fits, in characters. */
    static constexpr int CAPACITY = 31;

    /** From an ASCII literal of at most CAPACITY characters; a longer one does not compile. */
    template <std::size_t N>
    constexpr KTStringLiteral(const char (&text)[N])
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
        : myData {Q_STATIC_STRING_DATA_HEADER_INITIALIZER(int(N) - 1), {}}
#else
        : myData {int(N) - 1, {}}
#endif
    {
        static_assert(N - 1 <= CAPACITY, "the text is longer than KTStringLiteral::CAPACITY");
        for (std::size_t i = 0; i < N; ++i)
            myData.data[i] = static_cast<unsigned char>(text[i]);
    }

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    operator QString() const
    {
        return QString(QStringDataPtr {myData.data_ptr()});
    }

private:
    QStaticStringData<CAPACITY> myData;
#else
    operator QString() const
    {
        // A string without a header never writes into its data.
        return QString(QStringPrivate(nullptr, const_cast<char16_t *>(myData.data), myData.size));
    }

private:
    struct
    {
        int size;
        char16_t data[CAPACITY + 1];
    } myData;
#endif
};
