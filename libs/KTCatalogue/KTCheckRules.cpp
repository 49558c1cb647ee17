#include "KTCheckRules.h"

#include <KTFactRow.h>

#include <iterator>

namespace {

/** A function, because clang-format cannot line up rows of texts that take several lines. */
constexpr KTRuleRow rule(KTRule rule, const char *name, KTSeverity severity, const char *summary,
                         const char *explanation)
{
    return {rule, name, severity, summary, explanation};
}

constexpr KTRuleRow RULES[] = {
    rule(KTRule::UnreadableFile, "unreadable-file", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the file cannot be opened or read to its end"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "The application has no articles from it. Look at the file's name and its permissions.")),
    rule(KTRule::NotWellFormed, "not-well-formed", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the file is no catalogue in well-formed XML"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "The application refuses the whole file, also the articles before the place. What the checker "
             "found before it is still reported; what follows it is not looked at.")),
    rule(
        KTRule::LimitExceeded, "limit-exceeded", KTSeverity::Error,
        QT_TRANSLATE_NOOP("KTCatalogueText", "the file exceeds a limit of the format"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "Levels of elements, attributes of one element and lengths of values are limited, and there are "
            "no "
            "document type declarations, so that no file costs time or memory out of proportion. The file is "
            "refused.")),
    rule(KTRule::UnknownElement, "unknown-element", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "nothing reads an element in this place"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "The application skips the element with everything inside. It is misspelt, or "
                           "belongs elsewhere.")),
    rule(KTRule::UnknownAttribute, "unknown-attribute", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "nothing reads an attribute"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "The application behaves as if it were not there; where a misspelt attribute was meant, the "
             "default of that one counts.")),
    rule(
        KTRule::RepeatedElement, "repeated-element", KTSeverity::Warning,
        QT_TRANSLATE_NOOP("KTCatalogueText",
                          "an element of which only the first one is read stands there again"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "Of 'forms', 'composition', 'spine' and 'barcodes' only the first one in its parent is read. The "
            "further ones are skipped, so move their content to the first.")),
    rule(
        KTRule::IgnoredAttribute, "ignored-attribute", KTSeverity::Hint,
        QT_TRANSLATE_NOOP("KTCatalogueText", "an attribute means nothing for this kind of article"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "A picture box has no 'pieces', and the advent calendars with printed door backs always have the "
            "same number of pages, whatever is written.")),
    rule(KTRule::NoArticleId, "no-article-id", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article has no positive number"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "Neither 'art_id' nor 'id' is a positive number, so no order can name the article.")),
    rule(KTRule::DuplicateId, "duplicate-id", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText", "two articles of a file have the same number"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Who looks for the article by its number finds the first one only.")),
    rule(KTRule::ConflictingIds, "conflicting-ids", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "'art_id' and 'id' are both positive and differ"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "The application takes 'art_id' and never looks at 'id'. Remove one of the two.")),
    rule(KTRule::NoProductName, "no-product-name", KTSeverity::Hint,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an article has no product name"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "Without 'productname' the application takes the article for the album that is the default.")),
    rule(KTRule::UnknownKeyword, "unknown-keyword", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a classification has an entry that is no keyword"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "The entry silently counts as the default of its class, alone or in union with "
                           "the other entries. "
                           "Letter case and blanks around an entry do not matter.")),
    rule(
        KTRule::UnknownPriceClass, "unknown-price-class", KTSeverity::Hint,
        QT_TRANSLATE_NOOP("KTCatalogueText", "a price class belongs to no known family"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "The letters before the number name the family. The application bills the code as it stands, but "
            "knows no kind of add-on, album or calendar for it.")),
    rule(KTRule::ShippingGroup, "shipping-group", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a shipping group is no number"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "The article is read as one of no shipping group.")),
    rule(KTRule::UnreadableNumber, "unreadable-number", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a number is unreadable, not finite or out of range"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "The default counts in its place. Numbers are written with a decimal point and without a unit; "
             "whole numbers have 32 bits, and lengths are finite in layout units of 0.1 mm, too.")),
    rule(KTRule::UnreadableBoolean, "unreadable-boolean", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a text is neither true nor false"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "Only 'true', 'false', '1' and '0' are read, in any letter case; everything else counts as the "
             "default.")),
    rule(
        KTRule::UnknownUnit, "unknown-unit", KTSeverity::Error,
        QT_TRANSLATE_NOOP("KTCatalogueText", "a unit of length is unknown"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "The application takes the numbers as layout units of 0.1 mm. Known are 'mm', 'cm', 'inch', 'pt' "
            "and 'layoutunit', one at a time.")),
    rule(KTRule::UnknownColor, "unknown-color", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a colour is unknown"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "The option gets no swatch. Colours are '#RGB', '#RRGGBB', '#AARRGGBB' or SVG colour names.")),
    rule(KTRule::PageCountRange, "page-count-range", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText", "page counts are below 1 or beyond the largest number"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Page counts below 1 are not valid, and what 'pages' times 'pieces' has beyond 32 "
                           "bits is cut off.")),
    rule(KTRule::PagesInverted, "pages-inverted", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the least page count exceeds the highest one"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "The page counts are not valid; every wish becomes the least page count.")),
    rule(KTRule::NegativePageStep, "negative-page-step", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the page step is negative"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "The page counts are not valid, and their list runs downwards.")),
    rule(KTRule::NoPageStep, "no-page-step", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a range of page counts has no step"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "Without 'page_step' the count does not step: only the least page count can be had, whatever "
             "'max_pages' says.")),
    rule(KTRule::UnevenPageStep, "uneven-page-step", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the range of page counts is no multiple of the step"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "The highest page count is never reached, and a wish for it is rounded up to a "
                           "count beyond it.")),
    rule(
        KTRule::SpineWithoutStep, "spine-without-step", KTSeverity::Warning,
        QT_TRANSLATE_NOOP("KTCatalogueText",
                          "a spine grows with packages of pages, but there is no page step"),
        QT_TRANSLATE_NOOP("KTCatalogueText",
                          "Packages are counted in page steps. Without one the spine keeps its base width.")),
    rule(KTRule::IncompleteOption, "incomplete-option", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an option has no key or no value"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "The application skips the option; nobody can choose it.")),
    rule(KTRule::CompoundParts, "compound-parts", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "key and value of a compound option differ in their number of parts"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Parts are separated by ';'. The order text and the production form leave the "
                           "whole option out.")),
    rule(
        KTRule::ReservedCharacter, "reserved-character", KTSeverity::Error,
        QT_TRANSLATE_NOOP("KTCatalogueText",
                          "a key or value does not survive the MCF form or the order text"),
        QT_TRANSLATE_NOOP(
            "KTCatalogueText",
            "',', ':', '|' and '+' separate the pairs of these forms and their parts, ';' those of the order "
            "text, and '%1' and '%2' are filled in. What is read back is not what was chosen.")),
    rule(KTRule::DuplicateOption, "duplicate-option", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "an option is there twice"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Key and value name an option, so nobody can tell the second one from the first. "
                           "Lists show both.")),
    rule(KTRule::SeveralPreselected, "several-preselected", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "several options of one key are preselected"),
         QT_TRANSLATE_NOOP("KTCatalogueText", "The last one is the default choice.")),
    rule(KTRule::BarcodeDropped, "barcode-dropped", KTSeverity::Error,
         QT_TRANSLATE_NOOP("KTCatalogueText", "a barcode is dropped"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "A barcode without an image name, or smaller than one layout unit (0.1 mm), is skipped.")),
    rule(KTRule::BarcodeSamePlace, "barcode-same-place", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "two barcodes have the same rectangle"),
         QT_TRANSLATE_NOOP("KTCatalogueText",
                           "Barcodes are found and replaced by their rectangles, whatever their pages, so "
                           "only the first one "
                           "counts.")),
    rule(KTRule::BarcodeImage, "barcode-image", KTSeverity::Warning,
         QT_TRANSLATE_NOOP("KTCatalogueText", "the placeholder image of a barcode cannot be loaded"),
         QT_TRANSLATE_NOOP(
             "KTCatalogueText",
             "It is missing, lies outside 'icons/picshelf' of the resources, or is no picture of at most 64 "
             "megapixels. The application shows no barcode.")),
};

static_assert(std::size(RULES) == KTCheckRules::COUNT, "each rule has a row");

} // namespace

const KTRuleRow &KTCheckRules::row(KTRule rule)
{
    return at(static_cast<int>(rule));
}

const KTRuleRow &KTCheckRules::at(int index)
{
    return RULES[index];
}

const KTRuleRow *KTCheckRules::find(const QString &name)
{
    return KTFactRows::findNamed(RULES, name);
}

QStringList KTCheckRules::names()
{
    return KTFactRows::namesOf(RULES);
}

QString KTCheckRules::name(KTRule rule)
{
    return QString::fromLatin1(row(rule).name);
}

QString KTCheckRules::name(KTSeverity severity)
{
    switch (severity) {
    case KTSeverity::Hint:
        return QStringLiteral("hint");
    case KTSeverity::Warning:
        return QStringLiteral("warning");
    case KTSeverity::Error:
        break;
    }
    return QStringLiteral("error");
}

std::optional<KTSeverity> KTRuleSeverities::severity(KTRule rule) const
{
    const int number = static_cast<int>(rule);
    if (myIgnored.contains(number))
        return std::nullopt;
    const KTSeverity severity = KTCheckRules::row(rule).severity;
    if (myErrors.contains(number) || (myIsPedantic && severity == KTSeverity::Warning))
        return KTSeverity::Error;
    return myIsPedantic && severity == KTSeverity::Hint ? KTSeverity::Warning : severity;
}
