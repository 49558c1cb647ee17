#include "KTCatalogueFormat.h"

#include <QHash>

#include <algorithm>

namespace {

using Kind = KTElementKind;
using Id = KTAttributeId;
using Row = KTAttributeRow;
using Type = KTAttributeType;
using Classification = KTClassificationId;

constexpr std::array<KTElementRow, KTCatalogueFormat::ELEMENT_COUNT> ELEMENTS {
    {
     {Kind::Catalogue, u"catalogue", Kind::Unread, true},
     {Kind::Article, u"article", Kind::Catalogue, false},
     {Kind::Forms, u"forms", Kind::Article, true},
     {Kind::Form, u"form", Kind::Forms, false},
     {Kind::Composition, u"composition", Kind::Article, true},
     {Kind::Spine, u"spine", Kind::Composition, true},
     {Kind::Page, u"page", Kind::Article, false},
     {Kind::Barcodes, u"barcodes", Kind::Article, true},
     {Kind::Barcode, u"barcode", Kind::Barcodes, false},
     }
};

// One function for each type, which asks for what a row of this type needs.
constexpr Row text(Id id, Kind element, QStringView name, const char *defaultValue, const char *meaning)
{
    return {id, element, name, Type::Text, Classification::COUNT, defaultValue, "", meaning};
}

constexpr Row keywords(Id id, Kind element, QStringView name, Classification classification,
                       const char *meaning)
{
    return {id, element, name, Type::Keywords, classification, std::monostate(), "", meaning};
}

constexpr Row integer(Id id, Kind element, QStringView name, int defaultValue, const char *defaultMeaning,
                      const char *meaning)
{
    return {id, element, name, Type::Integer, Classification::COUNT, defaultValue, defaultMeaning, meaning};
}

/** Page counts, whose defaults depend on each other. */
constexpr Row pageCount(Id id, QStringView name, const char *defaultMeaning, const char *meaning)
{
    return {
        id,     Kind::Article, name, Type::Integer, Classification::COUNT, std::monostate(), defaultMeaning,
        meaning};
}

constexpr Row length(Id id, Kind element, QStringView name, double defaultValue, const char *defaultMeaning,
                     const char *meaning)
{
    return {id, element, name, Type::Length, Classification::COUNT, defaultValue, defaultMeaning, meaning};
}

constexpr Row boolean(Id id, Kind element, QStringView name, const char *defaultMeaning, const char *meaning)
{
    return {id, element, name, Type::Boolean, Classification::COUNT, false, defaultMeaning, meaning};
}

constexpr Row unit(Id id, Kind element, const char *meaning)
{
    return {id, element, u"units", Type::Unit, Classification::DistanceUnit, "mm", "", meaning};
}

constexpr Row color(Id id, Kind element, QStringView name, const char *defaultMeaning, const char *meaning)
{
    return {id, element, name, Type::Color, Classification::COUNT, std::monostate(), defaultMeaning, meaning};
}

// clang-format off
constexpr std::array<Row, KTCatalogueFormat::ATTRIBUTE_COUNT> ATTRIBUTES {{
    integer(Id::ArticleArtId, Kind::Article, u"art_id", 0, "`id` counts", "The article's number, a positive integer of 32 bits."),
    integer(Id::ArticleId, Kind::Article, u"id", 0, "no number", "The number where `art_id` is missing or not positive."),
    text(Id::ArticleName, Kind::Article, u"name", "", "The name that `ktcatalogue` shows."),
    keywords(Id::ArticleClass, Kind::Article, u"article_class", Classification::ArticleClass, "What kind of article it is."),
    keywords(Id::ArticleArrangement, Kind::Article, u"arrangement", Classification::ProductArrangement, "The family it is arranged as."),
    keywords(Id::ArticleSpaceMagnitude, Kind::Article, u"space_magnitude", Classification::SpaceMagnitude, "The size class of its page."),
    keywords(Id::ArticleOrientation, Kind::Article, u"orientation", Classification::Orientation, "The format of its page."),
    keywords(Id::ArticleCoverType, Kind::Article, u"cover_type", Classification::CoverType, "How it is bound, or what object it is."),
    keywords(Id::ArticleBinding, Kind::Article, u"binding", Classification::PageBinding, "How its pages are bound."),
    keywords(Id::ArticlePaper, Kind::Article, u"paper", Classification::PaperType, "The paper of a print product."),
    keywords(Id::ArticlePhotoPaper, Kind::Article, u"photo_paper", Classification::FotoPaperType, "The surface of a photo print."),
    keywords(Id::ArticleMaterial, Kind::Article, u"material", Classification::MaterialType, "The material class of a gift."),
    keywords(Id::ArticleContentType, Kind::Article, u"content_type", Classification::DlpType, "The kind of downloadable content."),
    keywords(Id::ArticleSpotColors, Kind::Article, u"spot_colors", Classification::SpotColor, "The finishings that are possible."),
    text(Id::ArticleProductName, Kind::Article, u"productname", "ALB9_30", "The code of the product type; an album code is shortened to its family."),
    text(Id::ArticlePriceClass, Kind::Article, u"price_class", "", "The code under which the price list bills it; an empty one is free."),
    integer(Id::ArticleShippingGroup, Kind::Article, u"shipping_group", -1, "no shipping group", "The number of the shipping group; 0 ships together with other groups."),
    pageCount(Id::ArticlePages, u"pages", "1", "The least page count."),
    pageCount(Id::ArticleMaxPages, u"max_pages", "that of `pages`; 29 more for a picture box", "The highest page count."),
    pageCount(Id::ArticlePageStep, u"page_step", "0; 1 for a picture box", "The pages of one package; 0 means that the count does not step."),
    pageCount(Id::ArticlePieces, u"pieces", "1", "Multiplies `pages` and `max_pages`, but not `page_step`; a picture box has no pieces."),
    text(Id::FormKey, Kind::Form, u"key", "", "The key used in orders, such as `alcolor`."),
    text(Id::FormValue, Kind::Form, u"value", "", "The value used in orders, such as `black`."),
    text(Id::FormKeyName, Kind::Form, u"key_name", "", "The display name of the key."),
    text(Id::FormValueName, Kind::Form, u"value_name", "", "The display name of the value."),
    text(Id::FormEditorName, Kind::Form, u"editor_name", "", "The name of the editor that offers the option."),
    text(Id::FormName, Kind::Form, u"name", "", "A further name; kept, but not used."),
    text(Id::FormPreview, Kind::Form, u"preview", "", "A reference to a preview image."),
    color(Id::FormColor, Kind::Form, u"color", "no colour: the option has no swatch", "The colour of the swatch: `#RGB`, `#RRGGBB`, `#AARRGGBB` or an SVG colour name."),
    boolean(Id::FormPreselected, Kind::Form, u"preselected", "", "Whether the option is the default choice. Of several for one key, the last wins."),
    boolean(Id::FormNotAccountable, Kind::Form, u"not_accountable", "the option is charged", "Whether the option is free of charge."),
    unit(Id::CompositionUnits, Kind::Composition, "The unit of the spine's lengths: `mm`, `cm`, `inch`, `pt` or `layoutunit` (0.1 mm). An empty text counts as a missing one."),
    integer(Id::SpinePackagesPerBlock, Kind::Spine, u"packages_per_block", 0, "the spine never grows", "How many packages of pages make one block."),
    length(Id::SpineBaseWidth, Kind::Spine, u"base_width", 0, "", "The width at the least page count."),
    length(Id::SpineBlockWidth, Kind::Spine, u"block_width", 0, "", "What each complete block adds."),
    length(Id::SpineAdditionalWidth, Kind::Spine, u"additional_width", 0, "", "Added twice, once per side."),
    keywords(Id::PageType, Kind::Page, u"type", Classification::PageType, "The kind of page."),
    keywords(Id::PageAlignment, Kind::Page, u"alignment", Classification::PageAlignment, "Where it lies."),
    unit(Id::PageUnits, Kind::Page, "The unit of all its lengths, as above."),
    length(Id::PageWidth, Kind::Page, u"width", 0, "", "The usable width, without bleed."),
    length(Id::PageHeight, Kind::Page, u"height", 0, "", "The usable height, without bleed."),
    length(Id::PageBleedTop, Kind::Page, u"bleed_top", 0, "", "The bleed above."),
    length(Id::PageBleedBottom, Kind::Page, u"bleed_bottom", 0, "", "The bleed below."),
    length(Id::PageBleedLeft, Kind::Page, u"bleed_left", 0, "", "The bleed on the left side."),
    length(Id::PageBleedRight, Kind::Page, u"bleed_right", 0, "", "The bleed on the right side."),
    length(Id::PageSlipcaseWidth, Kind::Page, u"slipcase_width", 0, "", "The usable width of the slipcase cover. Without this attribute there is no slipcase."),
    length(Id::PageSlipcaseHeight, Kind::Page, u"slipcase_height", 0, "", "The usable height of the slipcase cover."),
    unit(Id::BarcodesUnits, Kind::Barcodes, "The unit of the positions and sizes, as above."),
    integer(Id::BarcodePageNr, Kind::Barcode, u"pageNr", 0, "the cover", "The page on which it stands."),
    length(Id::BarcodePositionX, Kind::Barcode, u"position_x", 1, "", "Its left edge."),
    length(Id::BarcodePositionY, Kind::Barcode, u"position_y", 1, "", "Its lower edge."),
    length(Id::BarcodeWidth, Kind::Barcode, u"width", 1, "", "Its width."),
    length(Id::BarcodeHeight, Kind::Barcode, u"height", 1, "", "Its height."),
    text(Id::BarcodeImage, Kind::Barcode, u"image", "dummy-barcode.png", "The placeholder image, a file below `icons/picshelf` of the resources."),
}};
// clang-format on

constexpr bool areInOrder()
{
    for (std::size_t i = 0; i < ELEMENTS.size(); ++i) {
        if (ELEMENTS[i].kind != static_cast<Kind>(i + 1) || ELEMENTS[i].parent >= ELEMENTS[i].kind)
            return false;
    }
    for (std::size_t i = 0; i < ATTRIBUTES.size(); ++i) {
        const bool isClassified = ATTRIBUTES[i].type == Type::Keywords || ATTRIBUTES[i].type == Type::Unit;
        if (ATTRIBUTES[i].id != static_cast<Id>(i) || ATTRIBUTES[i].element == Kind::Unread
            || isClassified != (ATTRIBUTES[i].classification != Classification::COUNT))
            return false;
    }
    return true;
}
static_assert(areInOrder(), "a row is missing, or out of its place");

} // namespace

QString KTAttributeRow::defaultText() const
{
    struct Written
    {
        QString operator()(std::monostate) const { return QString(); }
        QString operator()(int number) const { return QString::number(number); }
        QString operator()(double number) const { return QString::number(number); }
        QString operator()(bool isTrue) const
        {
            return isTrue ? QStringLiteral("true") : QStringLiteral("false");
        }
        QString operator()(const char *text) const { return QString::fromLatin1(text); }
    };
    if (type == KTAttributeType::Keywords) {
        const KTClassification &keywords = KTClassification::of(classification);
        const qint64 value = keywords.decode(QString());
        return value == 0 ? QStringLiteral("nothing") : keywords.written(value);
    }
    QStringList parts {std::visit(Written(), defaultValue), QString::fromLatin1(defaultMeaning)};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(": "));
}

const std::array<KTElementRow, KTCatalogueFormat::ELEMENT_COUNT> &KTCatalogueFormat::elements()
{
    return ELEMENTS;
}

const std::array<KTAttributeRow, KTCatalogueFormat::ATTRIBUTE_COUNT> &KTCatalogueFormat::attributes()
{
    return ATTRIBUTES;
}

const KTElementRow *KTCatalogueFormat::element(Kind parent, QStringView name)
{
    const KTElementRow *const row = element(name);
    return row && row->parent == parent ? row : nullptr;
}

const KTElementRow *KTCatalogueFormat::element(QStringView name)
{
    for (const KTElementRow &row : ELEMENTS) {
        if (row.name == name)
            return &row;
    }
    return nullptr;
}

QString KTCatalogueFormat::elementName(Kind kind)
{
    return kind == Kind::Unread ? QString() : ELEMENTS[static_cast<std::size_t>(kind) - 1].name.toString();
}

QStringList KTCatalogueFormat::elementNames(Kind parent)
{
    QStringList names;
    for (const KTElementRow &row : ELEMENTS) {
        if (row.parent == parent)
            names.append(row.name.toString());
    }
    return names;
}

const KTAttributeRow &KTCatalogueFormat::attribute(Id id)
{
    return ATTRIBUTES[static_cast<std::size_t>(id)];
}

const KTAttributeRow *KTCatalogueFormat::attribute(Kind element, QStringView name)
{
    using Index = std::array<QHash<QStringView, const Row *>, ELEMENT_COUNT + 1>;
    static const Index index = [] {
        Index created;
        for (const Row &row : ATTRIBUTES)
            created[static_cast<std::size_t>(row.element)].insert(row.name, &row);
        return created;
    }();
    return index[static_cast<std::size_t>(element)].value(name, nullptr);
}

const KTAttributeRow *KTCatalogueFormat::attribute(Classification classification)
{
    const auto *const row
        = std::find_if(ATTRIBUTES.begin(), ATTRIBUTES.end(), [classification](const Row &one) {
              return one.type == Type::Keywords && one.classification == classification;
          });
    return row == ATTRIBUTES.end() ? nullptr : row;
}

QString KTCatalogueFormat::attributeName(KTAttributeId id)
{
    // Made once, because the readers ask for names as texts again and again.
    static const auto *const myNames = [] {
        auto *const names = new std::array<QString, ATTRIBUTE_COUNT>;
        for (const KTAttributeRow &row : attributes())
            (*names)[static_cast<std::size_t>(row.id)] = row.name.toString();
        return names;
    }();
    return myNames->at(static_cast<std::size_t>(id));
}

QStringList KTCatalogueFormat::attributeNames(Kind element)
{
    QStringList names;
    for (const Row &row : ATTRIBUTES) {
        if (row.element == element)
            names.append(row.name.toString());
    }
    return names;
}
