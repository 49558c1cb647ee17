#include "KTBarcodeDefinitionList.h"

#include <KTArithmetic.h>
#include <KTStringLiteral.h>
#include <KTXMLElement.h>

#include <QDomElement>
#include <QHash>
#include <QRegion>
#include <QSet>
#include <QVector>

#include <algorithm>
#include <functional>

namespace {

constexpr KTStringLiteral BARCODE_TAG = "barcode";

constexpr qint64 MOST_PIECES = 4000000;

/** A list under change whose entries are found by value and by rectangle without walking it. */
class IndexedList
{
public:
    explicit IndexedList(const QList<KTBarcodeDefinition> &definitions);

    bool contains(const KTBarcodeDefinition &definition) const { return myPositions.contains(definition); }
    /** The first entry with the rectangle, or null; valid until the next change. */
    const KTBarcodeDefinition *first(const QRect &rect);
    void append(const KTBarcodeDefinition &definition);
    /** Removes every equal entry. */
    void removeAll(const KTBarcodeDefinition &definition);
    KTBarcodeDefinitionList toList() const;

private:
    struct Entry
    {
        KTBarcodeDefinition definition;
        bool isRemoved;
    };
    /** The positions of the entries with one rectangle; those before the first one are removed. */
    struct Place
    {
        QVector<int> positions;
        int first = 0;
    };

    static KTBarcodeDefinition key(const QRect &rect) { return KTBarcodeDefinition(rect, 0, QString()); }

    QVector<Entry> myEntries;
    QHash<KTBarcodeDefinition, QVector<int>> myPositions;
    QHash<KTBarcodeDefinition, Place> myPlaces;
};

IndexedList::IndexedList(const QList<KTBarcodeDefinition> &definitions)
{
    for (const KTBarcodeDefinition &definition : definitions)
        append(definition);
}

const KTBarcodeDefinition *IndexedList::first(const QRect &rect)
{
    const auto place = myPlaces.find(key(rect));
    if (place == myPlaces.end())
        return nullptr;
    while (place->first < place->positions.size()) {
        const Entry &entry = myEntries.at(place->positions.at(place->first));
        if (!entry.isRemoved)
            return &entry.definition;
        ++place->first;
    }
    return nullptr;
}

void IndexedList::append(const KTBarcodeDefinition &definition)
{
    const int position = KTArithmetic::sizeOf(myEntries);
    myEntries.append({definition, false});
    myPositions[definition].append(position);
    myPlaces[key(definition.rect())].positions.append(position);
}

void IndexedList::removeAll(const KTBarcodeDefinition &definition)
{
    for (const int position : myPositions.take(definition))
        myEntries[position].isRemoved = true;
}

KTBarcodeDefinitionList IndexedList::toList() const
{
    KTBarcodeDefinitionList list;
    for (const Entry &entry : myEntries) {
        if (!entry.isRemoved)
            list.append(entry.definition);
    }
    return list;
}

/** How a region is stored: in bands from top to bottom, each a row of rectangles of one height. */
struct Band
{
    int top;
    int bottom;
    qint64 width;
};

QVector<Band> bandsOf(const QRegion &region)
{
    QVector<Band> bands;
    for (const QRect &rect : region) {
        if (bands.isEmpty() || rect.top() != bands.last().top)
            bands.append({rect.top(), rect.bottom(), 0});
        ++bands.last().width;
    }
    return bands;
}

/** Into how many rectangles the edges of the other bands cut these. */
qint64 piecesOf(const QVector<Band> &bands, const QVector<Band> &others)
{
    QVector<qint64> edges;
    for (const Band &other : others)
        edges << other.top << qint64(other.bottom) + 1;
    qint64 pieces = 0;
    for (const Band &band : bands) {
        const auto first = std::upper_bound(edges.cbegin(), edges.cend(), band.top);
        const auto last = std::upper_bound(first, edges.cend(), band.bottom);
        pieces += band.width * (1 + (last - first));
    }
    return pieces;
}

/** How many rectangles the union has at most. */
qint64 mostPieces(const QRegion &first, const QRegion &second)
{
    // Two edges of each rectangle may cut each other one; for most unions that is few enough already.
    const qint64 crossings = 4 * qint64(first.rectCount()) * second.rectCount();
    if (crossings <= MOST_PIECES)
        return crossings;
    const QVector<Band> firstBands = bandsOf(first);
    const QVector<Band> secondBands = bandsOf(second);
    return piecesOf(firstBands, secondBands) + piecesOf(secondBands, firstBands);
}

/** The union; the rectangle around it when bars that cross would cut it into too many pieces to hold. */
QRegion united(const QRegion &first, const QRegion &second)
{
    return mostPieces(first, second) > MOST_PIECES ? QRegion(first.boundingRect() | second.boundingRect())
                                                   : first | second;
}

/** Halving keeps the number of regions that a rectangle is merged into logarithmic. */
QRegion united(const QList<KTBarcodeDefinition> &definitions, int begin, int end)
{
    if (end - begin > 1) {
        const int middle = begin + (end - begin) / 2;
        return united(united(definitions, begin, middle), united(definitions, middle, end));
    }
    return begin < end ? QRegion(definitions.at(begin).rect()) : QRegion();
}

} // namespace

KTBarcodeDefinitionList::~KTBarcodeDefinitionList() = default;

KTBarcodeDefinitionList KTBarcodeDefinitionList::createFromProductsXML(const QDomElement &element,
                                                                       const KTDistanceUnit &unit)
{
    return createFromProductsXML(KTXMLElement(element), unit);
}

KTBarcodeDefinitionList KTBarcodeDefinitionList::createFromProductsXML(const KTXMLElement &element,
                                                                       const KTDistanceUnit &unit)
{
    KTBarcodeDefinitionList list;
    for (KTXMLElement child = element.firstChildElement(BARCODE_TAG); !child.isNull();
         child = child.nextSiblingElement(BARCODE_TAG)) {
        list.append(createFromXTCI(child, unit));
    }
    return list;
}

KTBarcodeDefinitionList KTBarcodeDefinitionList::createFromXTCI(const QDomElement &element,
                                                                const KTDistanceUnit &unit)
{
    return createFromXTCI(KTXMLElement(element), unit);
}

KTBarcodeDefinitionList KTBarcodeDefinitionList::createFromXTCI(const KTXMLElement &element,
                                                                const KTDistanceUnit &unit)
{
    KTBarcodeDefinitionList list;
    if (element.tagName() == BARCODE_TAG) {
        const KTBarcodeDefinition definition = KTBarcodeDefinition::createFromProductsXML(element, unit);
        if (definition.isValid())
            list.append(definition);
    }
    return list;
}

KTBarcodeDefinition KTBarcodeDefinitionList::findDefinition(const QRect &rect) const
{
    const auto found = std::find_if(
        begin(), end(), [&rect](const KTBarcodeDefinition &definition) { return definition.rect() == rect; });
    return found == end() ? KTBarcodeDefinition() : *found;
}

KTBarcodeDefinitionList KTBarcodeDefinitionList::barcodesOnPage(int pageNr) const
{
    KTBarcodeDefinitionList list;
    for (const KTBarcodeDefinition &definition : *this) {
        if (definition.pageNr() == pageNr)
            list.append(definition);
    }
    return list;
}

QRegion KTBarcodeDefinitionList::occupiedRegion() const
{
    return united(*this, 0, KTArithmetic::sizeOf(*this));
}

void KTBarcodeDefinitionList::updateDefinitions(const KTBarcodeDefinitionList &other)
{
    IndexedList definitions(*this);
    // One that comes again is not merged again, though it may have been replaced meanwhile.
    QSet<KTBarcodeDefinition> done;
    for (const KTBarcodeDefinition &definition : other) {
        if (done.contains(definition))
            continue;
        done.insert(definition);
        if (definitions.contains(definition))
            continue;
        const KTBarcodeDefinition *const known = definitions.first(definition.rect());
        if (known && known->isValid())
            definitions.removeAll(*known);
        definitions.append(definition);
    }
    *this = definitions.toList();
}

bool KTBarcodeDefinitionList::operator<(const KTBarcodeDefinitionList &other) const
{
    if (isEmpty() || size() != other.size())
        return size() < other.size();
    return std::equal(begin(), end(), other.begin(), std::less<KTBarcodeDefinition>());
}
