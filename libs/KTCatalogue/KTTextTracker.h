#pragma once

#include "KTFilePosition.h"

/**
 * Follows a file's text, which it is shown in UTF-8, and knows the place in the file as it is.
 *
 * A line ends with a line feed, a carriage return, or both. Not part of the library's interface.
 */
class KTTextTracker
{
public:
    KTTextTracker() = default;
    KTTextTracker(const KTFilePosition &position, KTCharacterWidth width)
        : myPosition(position)
        , myWidth(width)
    {
    }

    const KTFilePosition &position() const { return myPosition; }
    /** The parts of a line end must come together. */
    void advance(const char *begin, const char *end);

private:
    KTFilePosition myPosition;
    KTCharacterWidth myWidth = KTCharacterWidth::Utf8;
};
