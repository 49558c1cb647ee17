#include "KTAttributeChecker.h"

#include "KTCatalogueText.h"
#include "KTCheckText.h"

#include <KTDistance.h>
#include <KTDistanceUnit.h>
#include <KTXMLParser.h>

#include <QColor>

#include <algorithm>
#include <cmath>
#include <limits>

using KTCheckText::defaultOf;
using KTCheckText::isDigit;
using KTCheckText::quoted;
using KTCheckText::suggestion;

namespace {

const QLatin1String XML_PREFIXES[] = {QLatin1String("xml:"), QLatin1String("xmlns")};
const QLatin1String SCHEMA_INSTANCE("http://www.w3.org/2001/XMLSchema-instance");
const QLatin1String SCHEMA_LOCATIONS[]
    = {QLatin1String(":noNamespaceSchemaLocation"), QLatin1String(":schemaLocation")};
// Nine digits always fit into an int.
constexpr int SAFE_DIGITS = 9;

bool isPlainInteger(QStringView text)
{
    return !text.isEmpty() && text.size() <= SAFE_DIGITS && std::all_of(text.begin(), text.end(), &isDigit);
}

/** A few digits, among them at most one decimal point. */
bool isPlainNumber(QStringView text)
{
    if (text.isEmpty() || text.size() > SAFE_DIGITS || !isDigit(text.front()) || !isDigit(text.back()))
        return false;
    return std::count(text.begin(), text.end(), QChar(u'.')) <= 1
        && std::all_of(text.begin(), text.end(),
                       [](QChar character) { return character == u'.' || isDigit(character); });
}

bool isLength(QStringView text, const KTDistanceUnit &unit)
{
    const std::optional<double> number = KTXMLParser::parseDouble(text);
    return number && std::isfinite(unit.units2Pixels(*number));
}

/** What is wrong with the number, in words. */
QString numberFault(const QString &text, KTAttributeType type)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (std::isnan(number) || (ok && std::isinf(number)))
        return KTCatalogueText::tr("is not finite");
    if (std::isinf(number))
        return KTCatalogueText::tr("is out of range");
    // A number that is finite itself may not be so in layout units.
    if (type == KTAttributeType::Length)
        return ok ? KTCatalogueText::tr("is out of range") : KTCatalogueText::tr("is no number");
    return ok && number == std::floor(number) && std::abs(number) > std::numeric_limits<int>::max()
        ? KTCatalogueText::tr("is out of range")
        : KTCatalogueText::tr("is no whole number");
}

void reportNumber(KTElementCursor *cursor, int attribute, const KTAttributeRow &row,
                  const QString &defaultText)
{
    const QString text = cursor->valueOf(attribute).toString();
    QString message = KTCatalogueText::tr("%1 %2; the application takes %3")
                          .arg(quoted(text), numberFault(text, row.type), defaultText);
    const QString withPoint = QString(text).replace(QLatin1Char(','), QLatin1Char('.'));
    if (row.type == KTAttributeType::Length && withPoint != text && KTXMLParser::parseDouble(withPoint))
        message += KTCatalogueText::tr("; did you mean '%1'?").arg(withPoint);
    cursor->report(row.id == KTAttributeId::ArticleShippingGroup ? KTRule::ShippingGroup
                                                                 : KTRule::UnreadableNumber,
                   message, attribute);
}

/** Whether the attribute tells an editor where the schema is. Its prefix is declared in the same element. */
bool isSchemaLocation(const KTElementCursor &cursor, const QString &name)
{
    const QString prefix = name.section(QLatin1Char(':'), 0, 0);
    if (std::none_of(std::begin(SCHEMA_LOCATIONS), std::end(SCHEMA_LOCATIONS),
                     [&](QLatin1String location) { return name == prefix + location; }))
        return false;
    const QString declaration = QStringLiteral("xmlns:") + prefix;
    for (int i = cursor.firstAttribute(); i < cursor.endOfAttributes(); ++i) {
        if (cursor.nameOf(i) == declaration)
            return cursor.valueOf(i) == SCHEMA_INSTANCE;
    }
    return false;
}

void reportUnknown(KTElementCursor *cursor, int attribute)
{
    const QString name = cursor->nameOf(attribute).toString();
    // Declarations and attributes of XML itself are for everyone.
    if (std::any_of(std::begin(XML_PREFIXES), std::end(XML_PREFIXES),
                    [&name](QLatin1String prefix) { return name.startsWith(prefix); })
        || isSchemaLocation(*cursor, name))
        return;
    cursor->report(
        KTRule::UnknownAttribute,
        KTCatalogueText::tr("nothing reads %1 of '%2'; the application behaves as if it were not there")
                .arg(quoted(name), KTCatalogueFormat::elementName(cursor->kind()))
            + suggestion(name, KTCatalogueFormat::attributeNames(cursor->kind())),
        attribute);
}

/** What the classification makes of entries that are no keywords; empty when there are none. */
QString keywordMessage(const KTAttributeRow &row, const QString &text)
{
    // A text without any entry stands for the default, as a missing one does.
    if (text.trimmed().isEmpty())
        return QString();
    const KTClassification &classification = KTClassification::of(row.classification);
    const QStringList unknown = classification.unknownEntries(text);
    if (unknown.isEmpty())
        return QString();
    const QString &word = unknown.constFirst();
    QString message = word.isEmpty()
        ? KTCatalogueText::tr("an empty entry in %1").arg(quoted(text))
        : KTCatalogueText::tr("%1 is no keyword of %2").arg(quoted(word), row.name);
    if (unknown.size() > 1)
        message += unknown.size() == 2 ? KTCatalogueText::tr(" (nor is 1 more)")
                                       : KTCatalogueText::tr(" (nor are %1 more)").arg(unknown.size() - 1);
    const QString readAs = classification.unknownReadAs();
    message += readAs.isEmpty()
        ? KTCatalogueText::tr("; the application reads nothing from it")
        : KTCatalogueText::tr("; the application reads it as the default, '%1'").arg(readAs);
    return message + suggestion(word, classification.readableKeywords());
}

} // namespace

void KTAttributeChecker::check(KTElementCursor *cursor, const KTPageCountOrganization &pageCounts)
{
    for (int i = cursor->firstAttribute(); i < cursor->endOfAttributes(); ++i) {
        if (const KTAttributeRow *const row = cursor->rowOf(i))
            checkRead(cursor, i, *row, pageCounts);
        else
            reportUnknown(cursor, i);
    }
}

void KTAttributeChecker::checkRead(KTElementCursor *cursor, int attribute, const KTAttributeRow &row,
                                   const KTPageCountOrganization &pageCounts)
{
    const QStringView text = cursor->valueOf(attribute);
    switch (row.type) {
    case KTAttributeType::Text:
        break;
    case KTAttributeType::Keywords:
        checkKeywords(cursor, attribute, row);
        break;
    case KTAttributeType::Integer:
        if (!isPlainInteger(text) && !KTXMLParser::parseInt(text)) {
            const bool isPageCount = std::holds_alternative<std::monostate>(row.defaultValue);
            reportNumber(cursor, attribute, row,
                         isPageCount ? KTCatalogueText::tr("the default: ") + KTCheckText::text(pageCounts)
                                     : defaultOf(row));
        }
        break;
    case KTAttributeType::Length:
        if (!isPlainNumber(text) && !isLength(text, cursor->unit()))
            reportNumber(cursor, attribute, row, defaultOf(row));
        break;
    case KTAttributeType::Boolean:
        if (!KTXMLParser::parseBool(text)) {
            cursor->report(KTRule::UnreadableBoolean,
                           KTCatalogueText::tr("%1 is neither true nor false; the application takes %2")
                               .arg(quoted(text.toString()), defaultOf(row)),
                           attribute);
        }
        break;
    case KTAttributeType::Unit:
        if (!KTXMLParser::readUnit(cursor->element()).hasExactlyOneBit()) {
            cursor->report(KTRule::UnknownUnit,
                           KTCatalogueText::tr(
                               "%1 is no unit; the application takes the numbers as layout units of 0.1 mm")
                                   .arg(quoted(text.toString()))
                               + suggestion(text.toString(),
                                            KTClassification::of(row.classification).readableKeywords()),
                           attribute);
        }
        break;
    case KTAttributeType::Color:
        if (!text.isEmpty() && !QColor::isValidColor(shared(text))) {
            cursor->report(KTRule::UnknownColor,
                           KTCatalogueText::tr("%1 is no colour; the application takes %2")
                                   .arg(quoted(text.toString()), defaultOf(row))
                               + suggestion(text.toString(), QColor::colorNames()),
                           attribute);
        }
        break;
    }
}

void KTAttributeChecker::checkKeywords(KTElementCursor *cursor, int attribute, const KTAttributeRow &row)
{
    const QStringView text = cursor->valueOf(attribute);
    const auto known = myKeywordMessages.constFind({&row, shared(text)});
    const QString message
        = known == myKeywordMessages.constEnd() ? keywordMessage(row, text.toString()) : *known;
    if (known == myKeywordMessages.constEnd() && text.size() <= KTCheckText::MAX_WORD_LENGTH) {
        if (myKeywordMessages.size() >= KTCheckText::MAX_KEPT_ANSWERS)
            myKeywordMessages.clear();
        myKeywordMessages.insert({&row, text.toString()}, message);
    }
    if (!message.isEmpty())
        cursor->report(KTRule::UnknownKeyword, message, attribute);
}

/** The text as one that needs no copy; valid until the next one is asked for. */
const QString &KTAttributeChecker::shared(QStringView text)
{
    return myShared.setRawData(text.data(), static_cast<int>(text.size()));
}
