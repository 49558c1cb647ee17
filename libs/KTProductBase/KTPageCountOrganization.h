#pragma once

#include "ktproductbase_export.h"

#include <KTIntRange.h>

#include <QMetaType>
#include <QString>

class KTXMLElement;
class QDebug;
class QDomElement;

/**
 * Which page counts a product can have: from a minimum to a maximum, both included, in steps of one package.
 *
 * An increment of 0 means that the count does not step. Any three numbers can be held, and each question has
 * an answer for them: it is computed in 64 bits, and what leaves the range of int saturates. Divisions
 * truncate toward zero.
 */
class KTPRODUCTBASE_EXPORT KTPageCountOrganization
{
public:
    /** Minimum, maximum and increment 0: not valid. */
    KTPageCountOrganization() = default;
    KTPageCountOrganization(const KTIntRange &range, int pageIncrement);
    KTPageCountOrganization(const KTPageCountOrganization &other) = default;
    KTPageCountOrganization(KTPageCountOrganization &&other) noexcept = default;
    KTPageCountOrganization &operator=(const KTPageCountOrganization &other) = default;
    KTPageCountOrganization &operator=(KTPageCountOrganization &&other) noexcept = default;
    virtual ~KTPageCountOrganization();

    /**
     * Reads the page counts of a piece, "pages" (default 1) to "max_pages" (default: those of "pages"), both
     * multiplied by "pieces" (default 1), and the increment "page_step" (default 0), which is taken as it is.
     */
    [[nodiscard]] static KTPageCountOrganization createFromProductsXML(const QDomElement &element);
    [[nodiscard]] static KTPageCountOrganization createFromProductsXML(const KTXMLElement &element);
    /**
     * Reads "pages" (default 1), "max_pages" (default: 29 more) and "page_step" (default 1): a span
     * of 30 counts, one picture a step. A box never comes in pieces.
     */
    [[nodiscard]] static KTPageCountOrganization
    createFromProductsXMLForPictureBox(const QDomElement &element);
    [[nodiscard]] static KTPageCountOrganization
    createFromProductsXMLForPictureBox(const KTXMLElement &element);
    /** The cover and 24 doors. */
    [[nodiscard]] static KTPageCountOrganization createForAdventCalendarWithDoorBackPrint();

    int minPages() const { return myRange.min(); }
    int maxPages() const { return myRange.max(); }
    int pageIncrement() const { return myPageIncrement; }
    KTIntRange range() const { return myRange; }

    /** A copy; a fixed one can only have the minimum. */
    [[nodiscard]] KTPageCountOrganization clone(bool fixed) const;
    /**
     * The same with its minimum raised to the first step at or above the pages, even beyond the maximum.
     * Pages above the maximum raise it to the maximum only, and without an increment no others raise it.
     */
    [[nodiscard]] KTPageCountOrganization adaptedTo(int pages) const;

    /**
     * The page count for a wish: outside the range its nearer end, inside the first step at or above the
     * wish, which exceeds the maximum when the last step is not complete. Inside a range without an
     * increment it is the minimum.
     */
    int constrain(int pages) const;
    int pagesWithNExtraPackages(int n) const;
    /** The complete packages from the minimum to the pages; 0 up to the minimum or without an increment. */
    int countPackages(int pages) const;
    /** The number of page counts in the range, 1 without an increment. */
    int numberOfPackages() const;

    /** True for a single page count other than 0, or a range with a positive increment. */
    bool isValid() const;
    /** True when it is valid and the steps end exactly at the maximum. */
    bool isConsistent() const;
    /** True for a step in the range; without an increment for any count in it, unlike constrain(). */
    bool isValidPageCount(int pages) const;
    bool inRange(int pages) const { return myRange.contains(pages); }
    /** True when the minimum is below 2. */
    bool isOnePageProduct() const;

    /** "min: %1; max: %2; increment: %3". */
    [[nodiscard]] QString dump() const;

    /** Moves the range down, unless its minimum would be below 1; returns the result. */
    KTPageCountOrganization operator-=(int pages);
    bool operator==(const KTPageCountOrganization &other) const;
    bool operator!=(const KTPageCountOrganization &other) const { return !(*this == other); }

private:
    int firstStepFrom(int pages) const;

    KTIntRange myRange;
    int myPageIncrement = 0;
};

Q_DECLARE_METATYPE(KTPageCountOrganization)
/** Writes dump() without quotes. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTPageCountOrganization &organization);
