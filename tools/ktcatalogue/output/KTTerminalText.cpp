#include "KTTerminalText.h"

#include "KTFileName.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

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

QString codeOf(QChar character)
{
    return QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
}

/** True for nearly all that comes, and nothing to escape. */
bool isPrintableAscii(QChar character)
{
    return character >= QLatin1Char(' ') && character <= QLatin1Char('~');
}

template <typename Predicate>
QString escapedWhere(const QString &text, Predicate isEscaped)
{
    QString result;
    const auto next
        = [&text](const QChar *from) { return std::find_if_not(from, text.cend(), isPrintableAscii); };
    const QChar *pending = text.cbegin();
    for (const QChar *at = next(pending); at != text.cend(); at = next(at + 1)) {
        if (at->isHighSurrogate() && at + 1 != text.cend() && at[1].isLowSurrogate()) {
            ++at;
        } else if ((at->isSurrogate() && !KTFileName::isRawByte(*at)) || isEscaped(*at)) {
            result.append(pending, static_cast<int>(at - pending)).append(codeOf(*at));
            pending = at + 1;
        }
    }
    if (pending == text.cbegin())
        return text;
    return result.append(pending, static_cast<int>(text.cend() - pending));
}

} // namespace

QString KTTerminalText::escaped(const QString &text)
{
    return escapedWhere(text, isObeyed);
}

QString KTTerminalText::escapedJson(const QString &json)
{
    // The line breaks of the document itself; those inside its texts are escaped already.
    return escapedWhere(
        json, [](QChar character) { return isObeyed(character) && character != QLatin1Char('\n'); });
}

QString KTTerminalText::compactJson(const QJsonObject &object)
{
    return escapedJson(QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)));
}
