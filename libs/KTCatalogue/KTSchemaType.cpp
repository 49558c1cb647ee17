#include "KTSchemaType.h"

#include "KTCatalogueText.h"

#include <QColor>
#include <QSet>

#include <algorithm>

namespace {

const QString INTEGER = QStringLiteral("integer");
const QString LENGTH = QStringLiteral("length");
const QString BOOLEAN = QStringLiteral("boolean");
const QString COLOR = QStringLiteral("color");

constexpr KTSchemaType::Base INTEGER_BASE {"int", nullptr, nullptr};
// The bounds leave out INF and NaN.
constexpr KTSchemaType::Base LENGTH_BASE {"double", "-1.7976931348623157E308", "1.7976931348623157E308"};

// Numbers as the readers take them, but XML Schema does not: with any blanks around and any minus sign. Such
// a text has a character beyond ASCII.
const QString BLANKS = QStringLiteral(R"([\s\p{Z}\p{Cc}]*)");
const QString SIGN = QStringLiteral(R"([\-\p{Sm}]?)");
const QString NOT_ASCII = QStringLiteral(R"([\s\S]*[^\s!-~][\s\S]*)");
const QString DIGITS = QStringLiteral("[0-9]+");
const QString DECIMAL = QStringLiteral(R"(([0-9]+(\.[0-9]*)?|\.[0-9]+))");
const QString EXPONENT = QStringLiteral("([eE]%1[0-9]+)?").arg(SIGN);

const QString ANYTHING = QStringLiteral(R"([\s\S]*)");

QString inBlanks(const QString &pattern)
{
    return BLANKS + pattern + BLANKS;
}

/** The word in any letter case. */
QString anyCase(const QString &word)
{
    QString pattern;
    for (const QChar character : word) {
        if (character.isLetter())
            pattern += QStringLiteral("[%1%2]").arg(character.toUpper()).arg(character.toLower());
        else
            pattern += character;
    }
    return pattern;
}

QString anyCase(const QStringList &words)
{
    QStringList patterns;
    for (const QString &word : words)
        patterns.append(anyCase(word));
    return QLatin1Char('(') + patterns.join(QLatin1Char('|')) + QLatin1Char(')');
}

QString ticked(const QString &text)
{
    return QLatin1Char('`') + text + QLatin1Char('`');
}

KTSchemaType integerType()
{
    KTSchemaType type;
    type.name = INTEGER;
    type.documentation = KTCatalogueText::tr("A whole number of 32 bits. Blanks around it do not matter.");
    type.base = INTEGER_BASE;
    type.patterns = QStringList {inBlanks(SIGN + DIGITS), NOT_ASCII};
    return type;
}

KTSchemaType lengthType()
{
    KTSchemaType type;
    type.name = LENGTH;
    type.documentation = KTCatalogueText::tr(
        "A length, a number with a decimal point, not a comma. Blanks around it do not matter.");
    type.base = LENGTH_BASE;
    type.patterns = QStringList {inBlanks(SIGN + DECIMAL + EXPONENT), NOT_ASCII};
    return type;
}

KTSchemaType booleanType()
{
    KTSchemaType type;
    type.name = BOOLEAN;
    type.documentation = KTCatalogueText::tr(
        "`true`, `false`, `1` or `0` in any letter case. Blanks around it do not matter.");
    const QStringList words {QStringLiteral("true"), QStringLiteral("false"), QStringLiteral("1"),
                             QStringLiteral("0")};
    type.values = {
        {words.at(0), KTCatalogueText::tr("Yes.")                },
        {words.at(1), KTCatalogueText::tr("No.")                 },
        {words.at(2), KTCatalogueText::tr("The same as `true`.") },
        {words.at(3), KTCatalogueText::tr("The same as `false`.")},
    };
    type.patterns = QStringList {inBlanks(anyCase(words))};
    return type;
}

KTSchemaType colorType()
{
    KTSchemaType type;
    type.name = COLOR;
    type.documentation = KTCatalogueText::tr("`#RGB`, `#RRGGBB`, `#AARRGGBB` or an SVG colour name in any "
                                             "letter case; an empty text is no colour. "
                                             "Whether a name is one, `ktcatalogue check` tells.");
    QStringList names = QColor::colorNames();
    names.sort();
    for (const QString &name : qAsConst(names))
        type.values.append({name, QColor(name).name(QColor::HexArgb)});
    // The reader overlooks blanks inside of names.
    type.patterns = QStringList {QStringLiteral(
        R"([\p{L}\s\p{Z}\p{Cc}]*|#([0-9A-Fa-f]{3}|[0-9A-Fa-f]{6}|[0-9A-Fa-f]{8,9}|[0-9A-Fa-f]{12}))")};
    return type;
}

/** What an editor offers of the keyword table. */
QVector<KTSchemaValue> valuesOf(const KTClassification &classification)
{
    QVector<KTSchemaValue> values;
    QVector<KTSchemaValue> deprecated;
    QSet<QString> known;
    for (const KTKeywordInfo &keyword : classification.keywords()) {
        const QString name = keyword.displayName.isEmpty()
            ? KTCatalogueText::tr("A keyword of %1.").arg(ticked(classification.className()))
            : keyword.displayName;
        if (!known.contains(keyword.written))
            values.append({keyword.written, name});
        known.insert(keyword.written);
        for (const QString &alias : keyword.aliases) {
            if (!known.contains(alias))
                deprecated.append({alias,
                                   KTCatalogueText::tr("Deprecated: write %1, which it is read as.")
                                       .arg(ticked(keyword.written))});
            known.insert(alias);
        }
    }
    return values + deprecated;
}

KTSchemaType classificationType(const KTClassification &classification)
{
    KTSchemaType type;
    type.name = classification.className();
    type.values = valuesOf(classification);
    type.isOpen = true;
    type.documentation = KTCatalogueText::tr("One keyword or several, separated by `,`, in any letter case. "
                                             "Blanks around them do not matter. Whether "
                                             "a word is a keyword, `ktcatalogue check` tells.");
    return type;
}

KTSchemaType unitType(const KTClassification &classification)
{
    KTSchemaType type = classificationType(classification);
    type.documentation = KTCatalogueText::tr(
        "The unit of lengths, in any letter case. Blanks around it do not matter; an empty text counts as a "
        "missing one.");
    type.isOpen = false;
    // A list with an entry that is a unit, and nothing at all.
    type.patterns = QStringList {QStringLiteral("(%1,)?%2(,%1)?|")
                                     .arg(ANYTHING, inBlanks(anyCase(classification.readableKeywords())))};
    return type;
}

/** The element whose attribute says in which unit the lengths of the element are. */
KTElementKind elementWithUnits(KTElementKind kind)
{
    const QString units = KTCatalogueFormat::attributeName(KTAttributeId::PageUnits);
    while (kind != KTElementKind::Unread && !KTCatalogueFormat::attribute(kind, units))
        kind = KTCatalogueFormat::elements().at(static_cast<std::size_t>(kind) - 1).parent;
    return kind;
}

/** The kind of value, in a sentence. */
QString kindOf(const KTAttributeRow &row)
{
    switch (row.type) {
    case KTAttributeType::Text:
        return KTCatalogueText::tr("A text.");
    case KTAttributeType::Keywords:
        return KTCatalogueText::tr("Keywords of %1, several separated by `,`.")
            .arg(ticked(KTClassification::of(row.classification).className()));
    case KTAttributeType::Integer:
        return KTCatalogueText::tr("A whole number.");
    case KTAttributeType::Length:
        return KTCatalogueText::tr("A length in the %1 of %2.")
            .arg(ticked(KTCatalogueFormat::attributeName(KTAttributeId::PageUnits)),
                 ticked(KTCatalogueFormat::elementName(elementWithUnits(row.element))));
    case KTAttributeType::Boolean:
        return KTCatalogueText::tr("True or false.");
    case KTAttributeType::Unit:
        return KTCatalogueText::tr("A unit of length.");
    case KTAttributeType::Color:
        return KTCatalogueText::tr("A colour.");
    }
    return QString();
}

/** What a missing or unreadable text counts as, in a sentence. */
QString defaultOf(const KTAttributeRow &row)
{
    if (row.isNeeded)
        return KTCatalogueText::tr("Needed.");
    const QString written = row.writtenDefault();
    const QString meaning
        = row.defaultMeaning[0] == '\0' ? QString() : KTCatalogueText::tr(row.defaultMeaning);
    if (written.isEmpty()) {
        return KTCatalogueText::tr("Default: %1.")
            .arg(!meaning.isEmpty()                          ? meaning
                     : row.type == KTAttributeType::Keywords ? KTCatalogueText::tr("none of them")
                                                             : KTCatalogueText::tr("an empty text"));
    }
    return KTCatalogueText::tr("Default: %1.")
        .arg(ticked(written) + (meaning.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(meaning)));
}

} // namespace

QVector<KTSchemaType> KTSchemaType::all()
{
    QVector<KTSchemaType> types {integerType(), lengthType(), booleanType(), colorType()};
    for (const KTClassification &classification : KTClassification::all()) {
        types.append(classification.id() == KTClassificationId::DistanceUnit
                         ? unitType(classification)
                         : classificationType(classification));
    }
    return types;
}

QString KTSchemaType::nameOf(const KTAttributeRow &row)
{
    switch (row.type) {
    case KTAttributeType::Text:
        return QString();
    case KTAttributeType::Integer:
        return INTEGER;
    case KTAttributeType::Length:
        return LENGTH;
    case KTAttributeType::Boolean:
        return BOOLEAN;
    case KTAttributeType::Color:
        return COLOR;
    case KTAttributeType::Keywords:
    case KTAttributeType::Unit:
        return KTClassification::of(row.classification).className();
    }
    return QString();
}

QString KTSchemaText::title()
{
    return KTCatalogueText::tr("The catalogue format of KTProductBase, made by `ktcatalogue schema` from the "
                               "library's own tables. What it "
                               "cannot say, `ktcatalogue check` does.");
}

QString KTSchemaText::ofElement(const KTElementRow &row)
{
    QString text = KTCatalogueText::tr(row.meaning);
    if (row.parent != KTElementKind::Unread)
        text += QLatin1Char(' ')
            + KTCatalogueText::tr("Belongs into %1.").arg(ticked(KTCatalogueFormat::elementName(row.parent)));
    if (row.isSingle && row.parent != KTElementKind::Unread)
        text += QLatin1Char(' ') + KTCatalogueText::tr("Only the first one there is read.");
    return text;
}

QString KTSchemaText::ofAttribute(const KTAttributeRow &row)
{
    return QStringList {KTCatalogueText::tr(row.meaning), kindOf(row), defaultOf(row),
                        KTCatalogueText::tr("Since %1.").arg(QString::fromLatin1(row.since))}
        .join(QLatin1Char(' '));
}

QString KTSchemaText::language()
{
    //: The code of the language that texts are translated to, as in xml:lang.
    return KTCatalogueText::tr("en");
}
