#pragma once

#include "KTBarcodeDefinition.h"

#include <QList>
#include <QRegion>

#include <utility>

/** The production barcodes of a product, in the order they were read or merged. */
class KTPRODUCTBASE_EXPORT KTBarcodeDefinitionList : public QList<KTBarcodeDefinition>
{
public:
    using QList<KTBarcodeDefinition>::QList;
    KTBarcodeDefinitionList() = default;
    /** Invalid entries are kept. */
    KTBarcodeDefinitionList(const QList<KTBarcodeDefinition> &definitions)
        : QList<KTBarcodeDefinition>(definitions)
    {
    }
    KTBarcodeDefinitionList(QList<KTBarcodeDefinition> &&definitions) noexcept
        : QList<KTBarcodeDefinition>(std::move(definitions))
    {
    }
    KTBarcodeDefinitionList(const KTBarcodeDefinitionList &other) = default;
    KTBarcodeDefinitionList(KTBarcodeDefinitionList &&other) noexcept = default;
    KTBarcodeDefinitionList &operator=(const KTBarcodeDefinitionList &other) = default;
    KTBarcodeDefinitionList &operator=(KTBarcodeDefinitionList &&other) noexcept = default;
    virtual ~KTBarcodeDefinitionList();

    /** Reads each child "barcode", see KTBarcodeDefinition; invalid ones are left out. */
    [[nodiscard]] static KTBarcodeDefinitionList createFromProductsXML(const QDomElement &element,
                                                                       const KTDistanceUnit &unit);
    [[nodiscard]] static KTBarcodeDefinitionList createFromProductsXML(const KTXMLElement &element,
                                                                       const KTDistanceUnit &unit);
    /** Reads the element itself, if it is a "barcode" and valid. */
    [[nodiscard]] static KTBarcodeDefinitionList createFromXTCI(const QDomElement &element,
                                                                const KTDistanceUnit &unit);
    [[nodiscard]] static KTBarcodeDefinitionList createFromXTCI(const KTXMLElement &element,
                                                                const KTDistanceUnit &unit);

    /** The first entry with exactly this rectangle, an invalid one when there is none. */
    KTBarcodeDefinition findDefinition(const QRect &rect) const;
    KTBarcodeDefinitionList barcodesOnPage(int pageNr) const;
    /**
     * The area of all entries, on whichever page. Where it is cut into millions of pieces, as by thousands of
     * long bars that cross or that stand side by side in as many heights, which no product has, the result
     * may hold rectangles around several entries instead.
     */
    QRegion occupiedRegion() const;

    /**
     * Appends the entries of the other list that are not here yet. Each replaces the first entry with the
     * same rectangle, and whatever equals that; only an invalid first entry stays.
     */
    void updateDefinitions(const KTBarcodeDefinitionList &other);

    /**
     * A shorter list is less; of two lists of the same size, not empty, this one is less when each of its
     * entries is less than the other's at its place. No order either, see there: do not sort by it.
     * The inherited other comparisons know nothing of it.
     */
    bool operator<(const KTBarcodeDefinitionList &other) const;
};

Q_DECLARE_METATYPE(KTBarcodeDefinitionList)
