#include "KTTerminalText.h"

#include "KTFileName.h"

namespace {

bool isObeyed(QChar character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_NotAssigned:
    case QChar::Other_PrivateUse:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

QString escaped(QChar character)
{
    return QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
}

template <typename Predicate>
QString escapedWhere(const QString &text, Predicate isEscaped)
{
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        if (character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            result.append(character).append(text.at(++i));
        else if ((character.isSurrogate() && !KTFileName::isRawByte(character)) || isEscaped(character))
            result.append(escaped(character));
        else
            result.append(character);
    }
    return result;
}

} // namespace

QString KTTerminalText::visible(const QString &text)
{
    return escapedWhere(text, isObeyed);
}

QString KTTerminalText::visibleJson(const QString &json)
{
    // The line breaks of the document itself; those inside its texts are escaped already.
    return escapedWhere(
        json, [](QChar character) { return isObeyed(character) && character != QLatin1Char('\n'); });
}
