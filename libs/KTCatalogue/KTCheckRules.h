#pragma once

#include "ktcatalogue_export.h"

#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

/** How much a finding weighs. */
enum class KTSeverity {
    Hint,
    Warning,
    Error,
};

/** What can be wrong with a catalogue, in the order of the documentation. */
enum class KTRule {
    UnreadableFile,
    NotWellFormed,
    LimitExceeded,
    UnknownElement,
    UnknownAttribute,
    RepeatedElement,
    IgnoredAttribute,
    NoArticleId,
    DuplicateId,
    ConflictingIds,
    NoProductName,
    UnknownKeyword,
    UnknownPriceClass,
    ShippingGroup,
    UnreadableNumber,
    UnreadableBoolean,
    UnknownUnit,
    UnknownColor,
    PageCountRange,
    PagesInverted,
    NegativePageStep,
    NoPageStep,
    UnevenPageStep,
    SpineWithoutStep,
    IncompleteOption,
    CompoundParts,
    ReservedCharacter,
    DuplicateOption,
    SeveralPreselected,
    BarcodeDropped,
    BarcodeSamePlace,
    BarcodeImage,
    COUNT,
};

/** What the documentation and the check itself say about a rule. */
struct KTRuleRow
{
    KTRule rule;
    const char *name;
    KTSeverity severity;
    /** One line. */
    const char *summary;
    /** What the application makes of it and what to do. */
    const char *explanation;
};

/** The table of the rules. */
namespace KTCheckRules {

/** The number of rules. */
constexpr int COUNT = static_cast<int>(KTRule::COUNT);

/** The rule's row. */
KTCATALOGUE_EXPORT const KTRuleRow &row(KTRule rule);
/** The row at the index, which is the rule's number. */
KTCATALOGUE_EXPORT const KTRuleRow &at(int index);
/** Null for a name that no rule has. */
KTCATALOGUE_EXPORT const KTRuleRow *find(const QString &name);
/** The names of all rules, in the order of the documentation. */
KTCATALOGUE_EXPORT QStringList names();
/** As in "[unknown-keyword]", without the brackets. */
KTCATALOGUE_EXPORT QString name(KTRule rule);
/** "error", "warning" or "hint". */
KTCATALOGUE_EXPORT QString name(KTSeverity severity);

} // namespace KTCheckRules

/** How severe the user takes each rule. */
class KTCATALOGUE_EXPORT KTRuleSeverities
{
public:
    void ignore(KTRule rule) { myIgnored.insert(static_cast<int>(rule)); }
    void raiseToError(KTRule rule) { myErrors.insert(static_cast<int>(rule)); }
    /** Warnings count as errors and hints as warnings. */
    void setPedantic(bool pedantic) { myIsPedantic = pedantic; }

    /** Nothing for a rule that is ignored. */
    std::optional<KTSeverity> severity(KTRule rule) const;

private:
    QSet<int> myIgnored;
    QSet<int> myErrors;
    bool myIsPedantic = false;
};
