#pragma once

#include "KTPageCountOrganization.h"
#include "ktproductbase_export.h"

#include <KTDistance.h>

#include <QExplicitlySharedDataPointer>
#include <QMetaType>
#include <QString>

class KTSpineConfigImpl;
class KTXMLElement;
class QDebug;
class QDomElement;

/**
 * How wide the spine of a bound product is: it grows by a block of width for every so many page packages.
 *
 * A configuration never changes, and copies share it. A moved-from one may only be assigned to or destroyed.
 */
class KTPRODUCTBASE_EXPORT KTSpineConfig
{
public:
    /** No page counts, no widths: not valid. */
    KTSpineConfig();
    /**
     * The packages are counted against the organisation; 0 packages per block mean that the spine never
     * grows. The additional width is there twice, once per side.
     */
    KTSpineConfig(const KTPageCountOrganization &pageOrganization, int packagesPerBlock,
                  const KTDistance &baseWidth, const KTDistance &blockWidth,
                  const KTDistance &additionalWidth);
    KTSpineConfig(const KTSpineConfig &other);
    KTSpineConfig(KTSpineConfig &&other) noexcept;
    KTSpineConfig &operator=(const KTSpineConfig &other);
    KTSpineConfig &operator=(KTSpineConfig &&other) noexcept;
    ~KTSpineConfig();

    /** See KTSpineConfigImpl::createFromProductsXML(). */
    [[nodiscard]] static KTSpineConfig createFromProductsXML(const QDomElement &element);
    [[nodiscard]] static KTSpineConfig createFromProductsXML(const KTXMLElement &element);

    /** True when the organisation is. */
    bool isValid() const;
    /** The complete blocks that the page count adds; it is not limited to the organisation's maximum. */
    int additionalPagePackageBlocks(unsigned int pages) const;
    /** Base width, blocks and the additional width of both sides. */
    KTDistance spineWidth(unsigned int pages) const;
    /**
     * The largest default font size whose line fits across the printable part of the bare spine, which is
     * without additional width. The smallest one where none fits, 0 where there are no default sizes. An
     * empty family stands for the default one. Lines are measured by KTFontCreator, so the size is the same
     * on every monitor; without a QGuiApplication the answer is the smallest one, with a warning. The
     * misspelling is part of the API.
     */
    int spineMaxFontHeigth(unsigned int pages, const QString &fontFamily) const;
    KTDistance additionalSpineWidth() const;
    /** The additional width of one side in whole layout units, truncated. */
    int coverReduceSize() const;

    /** The organisation's dump(), the packages per block, and the three widths in layout units. */
    [[nodiscard]] QString dump() const;

    /**
     * True when all fields are equal. Base and block width may differ by rounding; the additional width
     * must be the same number.
     */
    bool operator==(const KTSpineConfig &other) const;
    bool operator!=(const KTSpineConfig &other) const { return !(*this == other); }

private:
    explicit KTSpineConfig(KTSpineConfigImpl *impl);

    QExplicitlySharedDataPointer<KTSpineConfigImpl> myImpl;
};

Q_DECLARE_TYPEINFO(KTSpineConfig, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTSpineConfig)
/** Writes dump() without quotes. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTSpineConfig &config);
