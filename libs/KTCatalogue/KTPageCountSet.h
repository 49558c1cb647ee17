#pragma once

#include <KTPageCountOrganization.h>

#include <QString>

#include <optional>

/**
 * The page counts that can be ordered, those that isValidPageCount() takes: a first one and further ones in
 * equal steps. Each question costs the same, however many there are. Not part of the library's interface.
 */
class KTPageCountSet
{
public:
    explicit KTPageCountSet(const KTPageCountOrganization &pageCounts);

    qint64 size() const { return mySize; }
    bool isEmpty() const { return mySize == 0; }
    bool contains(qint64 count) const;
    /** From 0 to below the size. */
    int at(qint64 index) const { return static_cast<int>(myFirst + index * myStep); }

    /** Those that are in both. */
    [[nodiscard]] KTPageCountSet intersected(const KTPageCountSet &other) const;
    /** The least count that the other set has not; none when it has all. */
    std::optional<int> firstNotIn(const KTPageCountSet &other) const;

    /** "26 to 154 step 2", "13", or "none". */
    [[nodiscard]] QString toText() const;

private:
    KTPageCountSet(qint64 first, qint64 last, qint64 step);

    qint64 last() const { return myFirst + (mySize - 1) * myStep; }

    qint64 myFirst;
    qint64 myStep;
    qint64 mySize;
};
