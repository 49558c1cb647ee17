#pragma once

#include "KTPageCountOrganization.h"

#include <KTDistance.h>

#include <QSharedData>
#include <QString>

class KTXMLElement;
class QDomElement;

/** The data that copies of a KTSpineConfig share; see there for the operations of the same name. */
class KTPRODUCTBASE_EXPORT KTSpineConfigImpl : public QSharedData
{
public:
    KTSpineConfigImpl() = default;
    KTSpineConfigImpl(const KTPageCountOrganization &pageOrganization, int packagesPerBlock,
                      const KTDistance &baseWidth, const KTDistance &blockWidth,
                      const KTDistance &additionalWidth);
    KTSpineConfigImpl(const KTSpineConfigImpl &other) = default;
    KTSpineConfigImpl &operator=(const KTSpineConfigImpl &other) = delete;
    virtual ~KTSpineConfigImpl();

    /**
     * Reads the organisation from the element itself, see KTPageCountOrganization::createFromProductsXML(),
     * and the rest from its child "composition": the unit of its widths "units" (default "mm", for an empty
     * text as well), and its child "spine" with "packages_per_block", "base_width", "block_width" and
     * "additional_width" (default 0). Missing elements read as if every attribute were missing; an unknown
     * unit, a blank text included, counts as the layout unit, with a warning for each width.
     */
    [[nodiscard]] static KTSpineConfigImpl createFromProductsXML(const QDomElement &element);
    [[nodiscard]] static KTSpineConfigImpl createFromProductsXML(const KTXMLElement &element);

    bool isValid() const;
    int additionalPagePackageBlocks(unsigned int pages) const;
    /** The width of the complete blocks alone. The misspelling is part of the API. */
    KTDistance additionalWithForPages(unsigned int pages) const;
    KTDistance spineWidth(unsigned int pages) const;
    int spineMaxFontHeigth(unsigned int pages, const QString &fontFamily) const;
    KTDistance additionalSpineWidth() const { return myAdditionalWidth; }
    int coverReduceSize() const;

    [[nodiscard]] QString dump() const;

    bool operator==(const KTSpineConfigImpl &other) const;
    bool operator!=(const KTSpineConfigImpl &other) const { return !(*this == other); }

private:
    KTPageCountOrganization myPageOrganization;
    int myPackagesPerBlock = 0;
    KTDistance myBaseWidth;
    KTDistance myBlockWidth;
    KTDistance myAdditionalWidth;
};
