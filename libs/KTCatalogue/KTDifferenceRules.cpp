#include "KTDifferenceRules.h"

#include "KTCatalogueText.h"

#include <KTFactRow.h>

#include <iterator>

namespace {

using Kind = KTDifferenceKind;
using Reach = KTDifferenceReach;
using Rule = KTDifferenceRule;

/** A function, because clang-format cannot line up rows of texts that take several lines. */
constexpr KTDifferenceRuleRow rule(Rule rule, const char *name, Kind kind, Reach reach, const char *summary,
                                   const char *explanation)
{
    return {rule, name, kind, reach, summary, explanation};
}

constexpr KTDifferenceRuleRow RULES[] = {
    rule(
        Rule::ArticleRemoved, "article-removed", Kind::Breaking, Reach::All,
        QT_TRANSLATE_NOOP("KTCatalogueText", "an article is gone"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "Saved projects and orders name the article by its number and find nothing. Keep it until nobody "
            "uses it any more.")),
    rule(
        Rule::ArticleClassChanged, "article-class-changed", Kind::Breaking, Reach::All,
        QT_TRANSLATE_NOOP("KTCatalogueText", "a number stands for another class of article"),
        QT_TRANSLATE_NOOP("KTCatalogueText",
                          "A saved book opens as something else. Give the new product a number of its own.")),
    rule(
        Rule::ArrangementChanged, "arrangement-changed", Kind::Breaking, Reach::All,
        QT_TRANSLATE_NOOP("KTCatalogueText", "an article has another arrangement"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "The editor lays out a saved project in another way. Give the new product a number of its own.")),
    rule(Rule::OptionKeyRemoved, "option-key-removed", Kind::Breaking, Reach::WithKey,
         QT_TRANSLATE_NOOP("KTCatalogueText", "all options of a key are gone"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "Saved choices of the key are refused. Where the key was renamed, saved orders must be, too.")),
    rule(Rule::OptionRemoved, "option-removed", Kind::Breaking, Reach::WithOption,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an option is gone, its key has others"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "Saved orders with the option are refused. Letters and case of key and value count.")),
    rule(
        Rule::PageCountsRemoved, "page-counts-removed", Kind::Breaking, Reach::WithPages,
        QT_TRANSLATE_NOOP("KTCatalogueText", "page counts are gone"),
        QT_TRANSLATE_NOOP("KTCatalogueText",
                          "A saved project with such a count can only be ordered with more pages or fewer.")),
    rule(Rule::PageCountsInvalid, "page-counts-invalid", Kind::Breaking, Reach::All,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the page counts are no longer valid"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "The range is inverted, has no step or a negative one, and the application offers "
                           "the least count "
                           "at best. 'check' tells what is wrong with it.")),
    rule(Rule::PageTypeRemoved, "page-type-removed", Kind::Breaking, Reach::All,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the size of a page type is gone"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "A saved project has such pages, and the application no longer knows how large they are.")),
    rule(
        Rule::PriceClassChanged, "price-class-changed", Kind::Charge, Reach::All,
        QT_TRANSLATE_NOOP("KTCatalogueText", "an article is billed under another price class"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "Saved orders cost what the price list says of the new code. Codes that begin with 0 are free.")),
    rule(
        Rule::ShippingGroupChanged, "shipping-group-changed", Kind::Charge, Reach::All,
        QT_TRANSLATE_NOOP("KTCatalogueText", "an article is shipped with another group"),
        QT_TRANSLATE_NOOP("KTCatalogueText",
                          "What it is shipped with, and what that costs, changes for saved orders as well.")),
    rule(Rule::OptionCharged, "option-charged", Kind::Charge, Reach::WithOption,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an option that was free is charged"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Saved orders with the option become dearer.")),
    rule(Rule::OptionNotCharged, "option-not-charged", Kind::Charge, Reach::WithOption,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an option that was charged is free"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Orders with the option are no longer billed for it.")),
    rule(Rule::PreselectionChanged, "preselection-changed", Kind::Charge, Reach::WithoutKey,
         QT_TRANSLATE_NOOP("KTCatalogueText", "another option of a key is preselected"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "Who chooses nothing gets something else, perhaps at another price. Of several preselected "
             "options of a key the last one counts.")),
    rule(Rule::PreselectionAdded, "preselection-added", Kind::Charge, Reach::WithoutKey,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an option is preselected where none was"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Who chooses nothing gets the option and may pay for it.")),
    rule(Rule::PreselectionRemoved, "preselection-removed", Kind::Charge, Reach::WithoutKey,
         QT_TRANSLATE_NOOP("KTCatalogueText", "no option of a key is preselected any more"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "Who chooses nothing no longer gets the option; orders go without it, or wait for a choice.")),
    rule(
        Rule::ProductTypeChanged, "product-type-changed", Kind::Production, Reach::None,
        QT_TRANSLATE_NOOP("KTCatalogueText", "order texts carry another product type"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "The application's registries and production know the article by it. Variants of one album, such "
            "as ALB9_30 and ALB9_40, are one product type.")),
    rule(Rule::SpaceMagnitudeChanged, "space-magnitude-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article has another class of size"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Layouts and font sizes are chosen by it.")),
    rule(Rule::OrientationChanged, "orientation-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article has another orientation"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Layouts are chosen by it.")),
    rule(Rule::CoverTypeChanged, "cover-type-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article has another kind of cover"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Saved orders are made with the new one.")),
    rule(Rule::BindingChanged, "binding-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article is bound in another way"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Saved orders are bound in the new way.")),
    rule(Rule::PaperChanged, "paper-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article is printed on another paper"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Saved orders are printed on the new one.")),
    rule(Rule::PhotoPaperChanged, "photo-paper-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "photos are printed on another paper"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Saved orders are printed on the new one.")),
    rule(Rule::MaterialChanged, "material-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article is made of another material"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Saved orders are made of the new one.")),
    rule(Rule::ContentTypeChanged, "content-type-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article has another kind of content"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "What the application prepares for production changes.")),
    rule(
        Rule::SpotColorsChanged, "spot-colors-changed", Kind::Production, Reach::None,
        QT_TRANSLATE_NOOP("KTCatalogueText", "an article can be finished with other spot colours"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "What production prints on top changes; options of a colour that is gone no longer go with it.")),
    rule(Rule::PageSizeChanged, "page-size-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a page has another size"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Saved layouts no longer fit the page that is printed.")),
    rule(Rule::BleedChanged, "bleed-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a page has other bleed margins"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "The page keeps its size, but what is printed around it changes.")),
    rule(Rule::SlipcaseChanged, "slipcase-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a slipcase cover is added, gone or has another size"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "The page stays the same; its slipcase does not, and saved slipcase covers no longer fit.")),
    rule(Rule::SpineAdded, "spine-added", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article gets a spine"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Covers become wider, and saved projects have nothing on their spine.")),
    rule(Rule::SpineRemoved, "spine-removed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article loses its spine"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Covers become narrower, and what saved projects have on their spine is lost.")),
    rule(Rule::SpineChanged, "spine-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the spine is wider or narrower at some page count"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Compared at every page count that is valid in both catalogues, whichever "
                           "attribute it comes from, "
                           "the step of the page counts among them.")),
    rule(Rule::SpineMarginChanged, "spine-margin-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the additional width on each side of the spine is another"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Covers are reduced by it, and the text on the spine has less room or more.")),
    rule(Rule::BarcodeAdded, "barcode-added", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "there is a further barcode"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "It may cover what saved projects have in its place.")),
    rule(Rule::BarcodeRemoved, "barcode-removed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a barcode is gone"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Production may look for it.")),
    rule(Rule::BarcodeMoved, "barcode-moved", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a barcode has another place, size or page"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Production may look for it in the old place.")),
    rule(Rule::BarcodeImageChanged, "barcode-image-changed", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "another image stands for a barcode"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "The placeholder in the editor changes, not the barcode.")),
    rule(Rule::CompoundRegrouped, "compound-regrouped", Kind::Production, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the parts of a compound option are grouped in another way"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "The production form stays the same under another key: the text of MCF changes, "
                           "and saved choices "
                           "of the old key are refused. The option that is gone is told as well.")),
    rule(Rule::ArticleAdded, "article-added", Kind::Offer, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "there is a new article"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Articles are known by their numbers: with another number, an article is gone and "
                           "a new one there.")),
    rule(Rule::OptionKeyAdded, "option-key-added", Kind::Offer, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "there are options of a new key"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "Saved orders have no choice of it, unless an option is preselected, which is told as well.")),
    rule(Rule::OptionAdded, "option-added", Kind::Offer, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a key has a further option"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Nothing changes for saved orders.")),
    rule(Rule::PageCountsAdded, "page-counts-added", Kind::Offer, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "there are new page counts"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Nothing changes for saved orders.")),
    rule(Rule::PageCountsRepaired, "page-counts-repaired", Kind::Offer, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the page counts are valid, and were not"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "The application offers the whole range.")),
    rule(Rule::PageTypeAdded, "page-type-added", Kind::Offer, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "there is a size for a further page type"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "The application can make such pages.")),
    rule(Rule::ArticleNameChanged, "article-name-changed", Kind::Text, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article has another name"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Shop and confirmations show the new name, also for old orders.")),
    rule(Rule::KeyNameChanged, "key-name-changed", Kind::Text, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a key has another name"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Dialogs list options in the order of these names.")),
    rule(Rule::OptionNameChanged, "option-name-changed", Kind::Text, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an option has another name"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Key and value, which orders carry, stay the same.")),
    rule(Rule::OptionColorChanged, "option-color-changed", Kind::Text, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the swatch of an option has another colour"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Two spellings of one colour are no difference.")),
    rule(Rule::OptionPreviewChanged, "option-preview-changed", Kind::Text, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an option has another preview image"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "The image must be there when the catalogue is.")),
    rule(Rule::OptionEditorChanged, "option-editor-changed", Kind::Text, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "options are offered in another editor"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "Customers find them in another place.")),
    rule(Rule::OptionOrderChanged, "option-order-changed", Kind::Text, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText", "options are listed in another order"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "Compared are the options that both catalogues have. The order of articles and attributes never "
             "counts.")),
    rule(
        Rule::OptionRepeated, "option-repeated", Kind::Text, Reach::None,
        QT_TRANSLATE_NOOP("KTCatalogueText", "an option stands there more often, or less often, than before"),
        QT_TRANSLATE_NOOP("KTCatalogueText", "Lists show each one; orders cannot tell them apart.")),
    rule(Rule::PageRangeChanged, "page-range-changed", Kind::Text, Reach::None,
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "the highest page count is written otherwise, the valid ones stay"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "A range that is no multiple of its step ends below its highest page count. A "
                           "wish for that one is "
                           "rounded up beyond it.")),
};

static_assert(std::size(RULES) == KTDifferenceRules::COUNT, "each rule has a row");

struct KindRow
{
    Kind kind;
    const char *name;
    const char *summary;
};

constexpr KindRow KINDS[] = {
    {Kind::Text,       "text",       QT_TRANSLATE_NOOP("KTCatalogueText", "what customers read changes")              },
    {Kind::Offer,      "offer",      QT_TRANSLATE_NOOP("KTCatalogueText", "there is more to order")                   },
    {Kind::Production, "production",
     QT_TRANSLATE_NOOP("KTCatalogueText",                                 "what is printed and bound changes")        },
    {Kind::Charge,     "charge",     QT_TRANSLATE_NOOP("KTCatalogueText", "what is billed changes")                   },
    {Kind::Breaking,   "breaking",
     QT_TRANSLATE_NOOP("KTCatalogueText",                                 "something that saved projects use is gone")},
};

static_assert(std::size(KINDS) == KTDifferenceRules::KIND_COUNT, "each kind has a row");

const KindRow &rowOf(Kind kind)
{
    return KINDS[static_cast<int>(kind)];
}

} // namespace

const KTDifferenceRuleRow &KTDifferenceRules::row(KTDifferenceRule rule)
{
    return at(static_cast<int>(rule));
}

const KTDifferenceRuleRow &KTDifferenceRules::at(int index)
{
    return RULES[index];
}

const KTDifferenceRuleRow *KTDifferenceRules::find(const QString &name)
{
    return KTFactRows::findNamed(RULES, name);
}

QStringList KTDifferenceRules::names()
{
    return KTFactRows::namesOf(RULES);
}

QString KTDifferenceRules::name(KTDifferenceRule rule)
{
    return QString::fromLatin1(row(rule).name);
}

QString KTDifferenceRules::name(KTDifferenceKind kind)
{
    return QString::fromLatin1(rowOf(kind).name);
}

QString KTDifferenceRules::summary(KTDifferenceKind kind)
{
    return KTCatalogueText::tr(rowOf(kind).summary);
}

std::optional<KTDifferenceKind> KTDifferenceRules::findKind(const QString &name)
{
    const KindRow *const row = KTFactRows::findNamed(KINDS, name);
    return row ? std::make_optional(row->kind) : std::nullopt;
}
