#include "KTCatalogueFormat.h"

#include <QCoreApplication>
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
     {Kind::Catalogue, u"catalogue", Kind::Unread, true,
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "The root. Its `article` children are the articles; other children are skipped.")},
     {Kind::Article, u"article", Kind::Catalogue, false,
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "What customers can order, and all that the application knows of it.")},
     {Kind::Forms, u"forms", Kind::Article, true,
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "The options on offer, one `form` each, in the order in which dialogs list them.")},
     {Kind::Form, u"form", Kind::Forms, false,
         QT_TRANSLATE_NOOP("KTCatalogueText", "One option. Without `key` or `value` it is skipped.")},
     {Kind::Composition, u"composition", Kind::Article, true,
         QT_TRANSLATE_NOOP("KTCatalogueText", "How the article is bound.")},
     {Kind::Spine, u"spine", Kind::Composition, true,
         QT_TRANSLATE_NOOP("KTCatalogueText", "How the spine grows with the page count.")},
     {Kind::Page, u"page", Kind::Article, false,
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "The size of one kind of page; an article has as many `page` children as it has kinds.")},
     {Kind::Barcodes, u"barcodes", Kind::Article, true,
         QT_TRANSLATE_NOOP("KTCatalogueText", "Where production barcodes stand.")},
     {Kind::Barcode, u"barcode", Kind::Barcodes, false,
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "A production barcode. Without an image name, or smaller than one layout unit, it is skipped.")},
     }
};

// One function for each type, which asks for what a row of this type needs.
constexpr Row text(Id id, Kind element, QStringView name, const char *defaultValue, const char *meaning)
{
    return {id, element, name, Type::Text, Classification::COUNT, defaultValue, "", meaning};
}

/** An attribute without which the element is skipped. */
constexpr Row needed(Id id, Kind element, QStringView name, const char *meaning)
{
    return {id, element, name, Type::Text, Classification::COUNT, "", "", meaning, true};
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
    integer(Id::ArticleArtId, Kind::Article, u"art_id", 0, QT_TRANSLATE_NOOP("KTCatalogueText", "`id` counts"), QT_TRANSLATE_NOOP("KTCatalogueText", "The article's number, a positive integer of 32 bits.")),
    integer(Id::ArticleId, Kind::Article, u"id", 0, QT_TRANSLATE_NOOP("KTCatalogueText", "no number"), QT_TRANSLATE_NOOP("KTCatalogueText", "The number where `art_id` is missing or not positive.")),
    text(Id::ArticleName, Kind::Article, u"name", "", QT_TRANSLATE_NOOP("KTCatalogueText", "The name that `ktcatalogue` shows.")),
    keywords(Id::ArticleClass, Kind::Article, u"article_class", Classification::ArticleClass, QT_TRANSLATE_NOOP("KTCatalogueText", "What kind of article it is.")),
    keywords(Id::ArticleArrangement, Kind::Article, u"arrangement", Classification::ProductArrangement, QT_TRANSLATE_NOOP("KTCatalogueText", "The family it is arranged as.")),
    keywords(Id::ArticleSpaceMagnitude, Kind::Article, u"space_magnitude", Classification::SpaceMagnitude, QT_TRANSLATE_NOOP("KTCatalogueText", "The size class of its page.")),
    keywords(Id::ArticleOrientation, Kind::Article, u"orientation", Classification::Orientation, QT_TRANSLATE_NOOP("KTCatalogueText", "The format of its page.")),
    keywords(Id::ArticleCoverType, Kind::Article, u"cover_type", Classification::CoverType, QT_TRANSLATE_NOOP("KTCatalogueText", "How it is bound, or what object it is.")),
    keywords(Id::ArticleBinding, Kind::Article, u"binding", Classification::PageBinding, QT_TRANSLATE_NOOP("KTCatalogueText", "How its pages are bound.")),
    keywords(Id::ArticlePaper, Kind::Article, u"paper", Classification::PaperType, QT_TRANSLATE_NOOP("KTCatalogueText", "The paper of a print product.")),
    keywords(Id::ArticlePhotoPaper, Kind::Article, u"photo_paper", Classification::FotoPaperType, QT_TRANSLATE_NOOP("KTCatalogueText", "The surface of a photo print.")),
    keywords(Id::ArticleMaterial, Kind::Article, u"material", Classification::MaterialType, QT_TRANSLATE_NOOP("KTCatalogueText", "The material class of a gift.")),
    keywords(Id::ArticleContentType, Kind::Article, u"content_type", Classification::DlpType, QT_TRANSLATE_NOOP("KTCatalogueText", "The kind of downloadable content.")),
    keywords(Id::ArticleSpotColors, Kind::Article, u"spot_colors", Classification::SpotColor, QT_TRANSLATE_NOOP("KTCatalogueText", "The finishings that are possible.")),
    text(Id::ArticleProductName, Kind::Article, u"productname", "ALB9_30", QT_TRANSLATE_NOOP("KTCatalogueText", "The code of the product type; an album code is shortened to its family.")),
    text(Id::ArticlePriceClass, Kind::Article, u"price_class", "", QT_TRANSLATE_NOOP("KTCatalogueText", "The code under which the price list bills it; an empty one is free.")),
    integer(Id::ArticleShippingGroup, Kind::Article, u"shipping_group", -1, QT_TRANSLATE_NOOP("KTCatalogueText", "no shipping group"), QT_TRANSLATE_NOOP("KTCatalogueText", "The number of the shipping group; 0 ships together with other groups.")),
    pageCount(Id::ArticlePages, u"pages", "1", QT_TRANSLATE_NOOP("KTCatalogueText", "The least page count.")),
    pageCount(Id::ArticleMaxPages, u"max_pages", QT_TRANSLATE_NOOP("KTCatalogueText", "that of `pages`; 29 more for a picture box"), QT_TRANSLATE_NOOP("KTCatalogueText", "The highest page count.")),
    pageCount(Id::ArticlePageStep, u"page_step", QT_TRANSLATE_NOOP("KTCatalogueText", "0; 1 for a picture box"), QT_TRANSLATE_NOOP("KTCatalogueText", "The pages of one package; 0 means that the count does not step.")),
    pageCount(Id::ArticlePieces, u"pieces", "1", QT_TRANSLATE_NOOP("KTCatalogueText", "Multiplies `pages` and `max_pages`, but not `page_step`; a picture box has no pieces.")),
    needed(Id::FormKey, Kind::Form, u"key", QT_TRANSLATE_NOOP("KTCatalogueText", "The key used in orders, such as `alcolor`.")),
    needed(Id::FormValue, Kind::Form, u"value", QT_TRANSLATE_NOOP("KTCatalogueText", "The value used in orders, such as `black`.")),
    text(Id::FormKeyName, Kind::Form, u"key_name", "", QT_TRANSLATE_NOOP("KTCatalogueText", "The display name of the key.")),
    text(Id::FormValueName, Kind::Form, u"value_name", "", QT_TRANSLATE_NOOP("KTCatalogueText", "The display name of the value.")),
    text(Id::FormEditorName, Kind::Form, u"editor_name", "", QT_TRANSLATE_NOOP("KTCatalogueText", "The name of the editor that offers the option.")),
    text(Id::FormName, Kind::Form, u"name", "", QT_TRANSLATE_NOOP("KTCatalogueText", "A further name; kept, but not used.")),
    text(Id::FormPreview, Kind::Form, u"preview", "", QT_TRANSLATE_NOOP("KTCatalogueText", "A reference to a preview image.")),
    color(Id::FormColor, Kind::Form, u"color", QT_TRANSLATE_NOOP("KTCatalogueText", "no colour: the option has no swatch"), QT_TRANSLATE_NOOP("KTCatalogueText", "The colour of the swatch: `#RGB`, `#RRGGBB`, `#AARRGGBB` or an SVG colour name.")),
    boolean(Id::FormPreselected, Kind::Form, u"preselected", "", QT_TRANSLATE_NOOP("KTCatalogueText", "Whether the option is the default choice. Of several for one key, the last wins.")),
    boolean(Id::FormNotAccountable, Kind::Form, u"not_accountable", QT_TRANSLATE_NOOP("KTCatalogueText", "the option is charged"), QT_TRANSLATE_NOOP("KTCatalogueText", "Whether the option is free of charge.")),
    unit(Id::CompositionUnits, Kind::Composition, QT_TRANSLATE_NOOP("KTCatalogueText", "The unit of the spine's lengths: `mm`, `cm`, `inch`, `pt` or `layoutunit` (0.1 mm). An empty text counts as a missing one.")),
    integer(Id::SpinePackagesPerBlock, Kind::Spine, u"packages_per_block", 0, QT_TRANSLATE_NOOP("KTCatalogueText", "the spine never grows"), QT_TRANSLATE_NOOP("KTCatalogueText", "How many packages of pages make one block.")),
    length(Id::SpineBaseWidth, Kind::Spine, u"base_width", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "The width at the least page count.")),
    length(Id::SpineBlockWidth, Kind::Spine, u"block_width", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "What each complete block adds.")),
    length(Id::SpineAdditionalWidth, Kind::Spine, u"additional_width", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "Added twice, once per side.")),
    keywords(Id::PageType, Kind::Page, u"type", Classification::PageType, QT_TRANSLATE_NOOP("KTCatalogueText", "The kind of page.")),
    keywords(Id::PageAlignment, Kind::Page, u"alignment", Classification::PageAlignment, QT_TRANSLATE_NOOP("KTCatalogueText", "Where it lies.")),
    unit(Id::PageUnits, Kind::Page, QT_TRANSLATE_NOOP("KTCatalogueText", "The unit of all its lengths.")),
    length(Id::PageWidth, Kind::Page, u"width", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "The usable width, without bleed.")),
    length(Id::PageHeight, Kind::Page, u"height", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "The usable height, without bleed.")),
    length(Id::PageBleedTop, Kind::Page, u"bleed_top", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "The bleed above.")),
    length(Id::PageBleedBottom, Kind::Page, u"bleed_bottom", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "The bleed below.")),
    length(Id::PageBleedLeft, Kind::Page, u"bleed_left", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "The bleed on the left side.")),
    length(Id::PageBleedRight, Kind::Page, u"bleed_right", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "The bleed on the right side.")),
    length(Id::PageSlipcaseWidth, Kind::Page, u"slipcase_width", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "The usable width of the slipcase cover. Without this attribute there is no slipcase.")),
    length(Id::PageSlipcaseHeight, Kind::Page, u"slipcase_height", 0, "", QT_TRANSLATE_NOOP("KTCatalogueText", "The usable height of the slipcase cover.")),
    unit(Id::BarcodesUnits, Kind::Barcodes, QT_TRANSLATE_NOOP("KTCatalogueText", "The unit of the positions and sizes.")),
    integer(Id::BarcodePageNr, Kind::Barcode, u"pageNr", 0, QT_TRANSLATE_NOOP("KTCatalogueText", "the cover"), QT_TRANSLATE_NOOP("KTCatalogueText", "The page on which it stands.")),
    length(Id::BarcodePositionX, Kind::Barcode, u"position_x", 1, "", QT_TRANSLATE_NOOP("KTCatalogueText", "Its left edge.")),
    length(Id::BarcodePositionY, Kind::Barcode, u"position_y", 1, "", QT_TRANSLATE_NOOP("KTCatalogueText", "Its lower edge.")),
    length(Id::BarcodeWidth, Kind::Barcode, u"width", 1, "", QT_TRANSLATE_NOOP("KTCatalogueText", "Its width.")),
    length(Id::BarcodeHeight, Kind::Barcode, u"height", 1, "", QT_TRANSLATE_NOOP("KTCatalogueText", "Its height.")),
    text(Id::BarcodeImage, Kind::Barcode, u"image", "dummy-barcode.png", QT_TRANSLATE_NOOP("KTCatalogueText", "The placeholder image, a file below `icons/picshelf` of the resources.")),
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

QString KTAttributeRow::writtenDefault() const
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
        return value == 0 ? QString() : keywords.written(value);
    }
    return std::visit(Written(), defaultValue);
}

QString KTAttributeRow::defaultText() const
{
    const QString written = writtenDefault();
    if (type == KTAttributeType::Keywords)
        return written.isNull() ? QStringLiteral("nothing") : written;
    QStringList parts {written, QString::fromLatin1(defaultMeaning)};
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
