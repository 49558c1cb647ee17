#include "KTArticleReport.h"

#include "KTTerminalText.h"
#include "KTVariantsText.h"

#include <KTXMLParser.h>

#include <QDomElement>
#include <QJsonArray>

#include <algorithm>

using KTTerminalText::visible;

namespace {

const QString NAME_ATTRIBUTE = QStringLiteral("name");
const QString INDENT = QStringLiteral("  ");

QString colorName(const KTConfiguredArticleVariant &option)
{
    if (!option.color().isValid())
        return QString();
    return option.color().name(option.color().alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

/** One line an option: value, name, colour and flags in columns. */
QString optionLine(const KTConfiguredArticleVariant &option, int valueWidth, int nameWidth)
{
    QStringList flags;
    if (option.isDefault())
        flags.append(QStringLiteral("preselected"));
    if (option.isNotAccountable())
        flags.append(QStringLiteral("not charged"));
    const QString line = QStringLiteral("%1  %2  %3  %4")
                             .arg(visible(option.value()).leftJustified(valueWidth),
                                  visible(option.visibleName()).leftJustified(nameWidth),
                                  colorName(option).leftJustified(7), flags.join(QStringLiteral(", ")));
    QString indented = INDENT + INDENT + INDENT + line;
    while (indented.endsWith(QLatin1Char(' ')))
        indented.chop(1);
    return indented;
}

template <typename Getter>
int widest(const KTConfiguredArticleVariantList &options, Getter getter)
{
    int width = 0;
    for (const KTConfiguredArticleVariant &option : options)
        width = std::max(width, visible(getter(option)).size());
    return width;
}

QJsonObject optionJson(const KTConfiguredArticleVariant &option)
{
    QJsonObject object {
        {QStringLiteral("key"),         option.key()             },
        {QStringLiteral("keyName"),     option.keyName()         },
        {QStringLiteral("value"),       option.value()           },
        {QStringLiteral("valueName"),   option.visibleName()     },
        {QStringLiteral("description"), option.describe()        },
        {QStringLiteral("preselected"), option.isDefault()       },
        {QStringLiteral("notCharged"),  option.isNotAccountable()},
    };
    if (option.color().isValid())
        object.insert(QStringLiteral("color"), colorName(option));
    if (!option.editorName().isEmpty())
        object.insert(QStringLiteral("editor"), option.editorName());
    if (!option.preview().isEmpty())
        object.insert(QStringLiteral("preview"), option.preview());
    return object;
}

} // namespace

KTArticleReport::KTArticleReport(const QDomElement &article)
    : myId(KTArticleId::findId(article))
    , myName(KTXMLParser::attribute(article, NAME_ATTRIBUTE, QString(), true))
    , myOptions(article)
{
}

QString KTArticleReport::toText() const
{
    QStringList lines {QStringLiteral("article %1  %2").arg(myId.toString(), visible(myName)).trimmed()};
    if (!myId.isValid())
        lines.append(INDENT + QStringLiteral("has no valid number"));

    const int valueWidth
        = widest(myOptions, [](const KTConfiguredArticleVariant &option) { return option.value(); });
    const int nameWidth
        = widest(myOptions, [](const KTConfiguredArticleVariant &option) { return option.visibleName(); });
    lines.append(INDENT + (myOptions.isEmpty() ? QStringLiteral("no options") : QStringLiteral("options")));
    for (const QString &key : myOptions.keys()) {
        const KTConfiguredArticleVariantList options = myOptions.filter(key);
        lines.append(
            INDENT + INDENT
            + QStringLiteral("%1  %2").arg(visible(key), visible(options.first().keyName())).trimmed());
        for (const KTConfiguredArticleVariant &option : options)
            lines.append(optionLine(option, valueWidth, nameWidth));
    }

    const KTArticleVariants defaults = myOptions.defaultVariants();
    if (defaults.isValid())
        lines.append(INDENT + QStringLiteral("default choice  ") + visible(KTVariantsText::mcf(defaults)));
    for (const KTArticleVariants &style : myOptions.possibleBoxStyles())
        lines.append(INDENT + QStringLiteral("box style       ") + visible(KTVariantsText::mcf(style)));
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QJsonObject KTArticleReport::toJSON() const
{
    QJsonArray options;
    for (const KTConfiguredArticleVariant &option : myOptions)
        options.append(optionJson(option));
    QJsonArray boxStyles;
    for (const KTArticleVariants &style : myOptions.possibleBoxStyles())
        boxStyles.append(KTVariantsText::json(style));

    QJsonObject object;
    myId.toJSON(object);
    object.insert(QStringLiteral("name"), myName);
    object.insert(QStringLiteral("options"), options);
    object.insert(QStringLiteral("defaultChoice"), KTVariantsText::json(myOptions.defaultVariants()));
    object.insert(QStringLiteral("boxStyles"), boxStyles);
    return object;
}
