#pragma once

#include "ktcatalogue_export.h"

#include <QString>
#include <QStringList>

#include <optional>

/** Whom a difference between two catalogues concerns, the gravest one last. */
enum class KTDifferenceKind {
    /** What customers read: names, colours, the order of options. */
    Text,
    /** What can be ordered in addition. */
    Offer,
    /** What is printed and bound, and what production is told. */
    Production,
    /** What is billed. */
    Charge,
    /** Saved projects use what is gone. */
    Breaking,
};

/** What can differ between two catalogues, in the order of the documentation: by kind, the gravest first. */
enum class KTDifferenceRule {
    ArticleRemoved,
    ArticleClassChanged,
    ArrangementChanged,
    OptionKeyRemoved,
    OptionRemoved,
    PageCountsRemoved,
    PageCountsInvalid,
    PageTypeRemoved,
    PriceClassChanged,
    ShippingGroupChanged,
    OptionCharged,
    OptionNotCharged,
    PreselectionChanged,
    PreselectionAdded,
    PreselectionRemoved,
    ProductTypeChanged,
    SpaceMagnitudeChanged,
    OrientationChanged,
    CoverTypeChanged,
    BindingChanged,
    PaperChanged,
    PhotoPaperChanged,
    MaterialChanged,
    ContentTypeChanged,
    SpotColorsChanged,
    PageSizeChanged,
    BleedChanged,
    SlipcaseChanged,
    SpineAdded,
    SpineRemoved,
    SpineChanged,
    SpineMarginChanged,
    BarcodeAdded,
    BarcodeRemoved,
    BarcodeMoved,
    BarcodeImageChanged,
    CompoundRegrouped,
    ArticleAdded,
    OptionKeyAdded,
    OptionAdded,
    PageCountsAdded,
    PageCountsRepaired,
    PageTypeAdded,
    ArticleNameChanged,
    KeyNameChanged,
    OptionNameChanged,
    OptionColorChanged,
    OptionPreviewChanged,
    OptionEditorChanged,
    OptionOrderChanged,
    OptionRepeated,
    PageRangeChanged,
    COUNT,
};

/** Which saved orders of the article a difference hits. */
enum class KTDifferenceReach {
    /** None is looked for. */
    None,
    All,
    /** Those in which the option is chosen, be it by preselection. */
    WithOption,
    /** Those in which the key is saved. */
    WithKey,
    /** Those that leave the key to the preselection. */
    WithoutKey,
    /** Those with a page count that is gone. */
    WithPages,
};

/** What there is to know about a rule. */
struct KTDifferenceRuleRow
{
    KTDifferenceRule rule;
    const char *name;
    KTDifferenceKind kind;
    KTDifferenceReach reach;
    /** One line. */
    const char *summary;
    /** Whom it concerns and what to do. */
    const char *explanation;
};

/** The rules of comparison and their kinds; safe from any thread. */
namespace KTDifferenceRules {

/** How many rules there are. */
constexpr int COUNT = static_cast<int>(KTDifferenceRule::COUNT);
/** How many kinds of rules there are. */
constexpr int KIND_COUNT = static_cast<int>(KTDifferenceKind::Breaking) + 1;

/** The row of the rule. */
KTCATALOGUE_EXPORT const KTDifferenceRuleRow &row(KTDifferenceRule rule);
/** The row at the index, which is the rule's number. */
KTCATALOGUE_EXPORT const KTDifferenceRuleRow &at(int index);
/** Null for a name that no rule has. */
KTCATALOGUE_EXPORT const KTDifferenceRuleRow *find(const QString &name);
/** The names of all rules, in the order of their numbers. */
KTCATALOGUE_EXPORT QStringList names();
/** The rule's name, which does not change: "option-removed". */
KTCATALOGUE_EXPORT QString name(KTDifferenceRule rule);
/** "breaking", "charge", "production", "offer" or "text". */
KTCATALOGUE_EXPORT QString name(KTDifferenceKind kind);
/** What the kind is about, in a line: "what saved projects use is gone". */
KTCATALOGUE_EXPORT QString summary(KTDifferenceKind kind);
/** Nothing for a word that names no kind. */
KTCATALOGUE_EXPORT std::optional<KTDifferenceKind> findKind(const QString &name);

} // namespace KTDifferenceRules
