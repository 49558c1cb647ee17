#pragma once

#include <QtGlobal>

/** A place in a file. Lines and columns count from 1, columns in characters; the offset counts bytes from 0.
 */
struct KTFilePosition
{
    int line = 1;
    int column = 1;
    qint64 offset = 0;
};

/** From a place to the one behind the last character. */
struct KTFileRange
{
    KTFilePosition begin;
    KTFilePosition end;

    /** In bytes of the file as it is. */
    qint64 length() const { return end.offset - begin.offset; }
};

/** How many bytes a character takes in a file. */
enum class KTCharacterWidth {
    Utf8,
    SingleByte,
    Utf16,
};
