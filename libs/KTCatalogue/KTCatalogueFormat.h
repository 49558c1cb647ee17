#pragma once

#include "KTClassification.h"
#include "ktcatalogue_export.h"

#include <QStringList>
#include <QStringView>

#include <array>
#include <variant>

/** The elements that the library reads. */
enum class KTElementKind {
    /** None of them. */
    Unread,
    Catalogue,
    Article,
    Forms,
    Form,
    Composition,
    Spine,
    Page,
    Barcodes,
    Barcode,
    COUNT,
};

/** The attributes that the library reads, by their elements. */
enum class KTAttributeId {
    ArticleArtId,
    ArticleId,
    ArticleName,
    ArticleClass,
    ArticleArrangement,
    ArticleSpaceMagnitude,
    ArticleOrientation,
    ArticleCoverType,
    ArticleBinding,
    ArticlePaper,
    ArticlePhotoPaper,
    ArticleMaterial,
    ArticleContentType,
    ArticleSpotColors,
    ArticleProductName,
    ArticlePriceClass,
    ArticleShippingGroup,
    ArticlePages,
    ArticleMaxPages,
    ArticlePageStep,
    ArticlePieces,
    FormKey,
    FormValue,
    FormKeyName,
    FormValueName,
    FormEditorName,
    FormName,
    FormPreview,
    FormColor,
    FormPreselected,
    FormNotAccountable,
    CompositionUnits,
    SpinePackagesPerBlock,
    SpineBaseWidth,
    SpineBlockWidth,
    SpineAdditionalWidth,
    PageType,
    PageAlignment,
    PageUnits,
    PageWidth,
    PageHeight,
    PageBleedTop,
    PageBleedBottom,
    PageBleedLeft,
    PageBleedRight,
    PageSlipcaseWidth,
    PageSlipcaseHeight,
    BarcodesUnits,
    BarcodePageNr,
    BarcodePositionX,
    BarcodePositionY,
    BarcodeWidth,
    BarcodeHeight,
    BarcodeImage,
    COUNT,
};

/** How an attribute's text is read. */
enum class KTAttributeType {
    Text,
    /** Of a classification, several separated by ",". */
    Keywords,
    /** A whole number of 32 bits. */
    Integer,
    /** A length in the units of the element or of its parent. */
    Length,
    Boolean,
    Unit,
    Color,
};

/** An element that the library reads. */
struct KTElementRow
{
    KTElementKind kind;
    QStringView name;
    KTElementKind parent;
    /** Whether the library reads only the first one in its parent. */
    bool isSingle;
    /** What the element holds, in sentences of Markdown. */
    const char *meaning;
};

/** An attribute that the library reads. */
struct KTAttributeRow
{
    /** What a missing or unreadable text counts as; none where that depends on other attributes. */
    using Default = std::variant<std::monostate, int, double, bool, const char *>;

    KTAttributeId id;
    KTElementKind element;
    QStringView name;
    KTAttributeType type;
    /** What the keywords belong to; COUNT for attributes of other types. */
    KTClassificationId classification;
    /** Of keywords it is that of the classification, and none stands here. */
    Default defaultValue;
    /** What the default means, or what it depends on; empty where it speaks for itself. */
    const char *defaultMeaning;
    /** What the attribute says, in a sentence of Markdown. */
    const char *meaning;
    /** Whether the library skips an element without it. */
    bool isNeeded = false;
    /** The first version of the library that reads it. */
    const char *since = "1.0";

    /**
     * The default as it would be written, without its meaning; empty for the empty text, and null for
     * keywords without a default and where it depends on other attributes.
     */
    KTCATALOGUE_EXPORT QString writtenDefault() const;
    /**
     * The default as it would be written, with its meaning: "0: the spine never grows". Keywords without a
     * default give "nothing".
     */
    KTCATALOGUE_EXPORT QString defaultText() const;
};

/** What the library reads from a catalogue: the one table of elements and of attributes. */
class KTCATALOGUE_EXPORT KTCatalogueFormat
{
public:
    static constexpr std::size_t ELEMENT_COUNT = static_cast<std::size_t>(KTElementKind::COUNT) - 1;
    static constexpr std::size_t ATTRIBUTE_COUNT = static_cast<std::size_t>(KTAttributeId::COUNT);

    /** In the order of their kinds; there is no row for Unread. */
    static const std::array<KTElementRow, ELEMENT_COUNT> &elements();
    /** In the order of their ids. */
    static const std::array<KTAttributeRow, ATTRIBUTE_COUNT> &attributes();

    /** The element with the name in the parent; null when nothing reads it there. */
    static const KTElementRow *element(KTElementKind parent, QStringView name);
    /** The element with the name, wherever it is read; null for an unknown name. */
    static const KTElementRow *element(QStringView name);
    /** Empty for Unread. */
    static QString elementName(KTElementKind kind);
    /** The names of the elements that are read in the parent. */
    static QStringList elementNames(KTElementKind parent);

    static const KTAttributeRow &attribute(KTAttributeId id);
    /** The attribute of the element; null when nothing reads it. */
    static const KTAttributeRow *attribute(KTElementKind element, QStringView name);
    /** The attribute that carries the classification; null for one that none carries. */
    static const KTAttributeRow *attribute(KTClassificationId classification);
    static QString attributeName(KTAttributeId id);
    static QStringList attributeNames(KTElementKind element);
};
