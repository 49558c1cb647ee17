#include "KTMarkdownText.h"

#include "KTTerminalText.h"

namespace {

/** What markup begins with; a backslash before it is not shown. */
const QString MARKUP = QStringLiteral("\\`*_[]~|");
/** What pages make links, mentions or elements of, for which a backslash does not help. */
const QString REFERENCES = QStringLiteral("<>&@#");
const QString URL_BEGIN = QStringLiteral("://");
const QString HOST_BEGIN = QStringLiteral("www.");

QString entity(QChar character)
{
    return QStringLiteral("&#%1;").arg(character.unicode());
}

} // namespace

QString KTMarkdownText::escaped(const QString &text)
{
    const QString visible = KTTerminalText::escaped(text);
    QString result;
    for (int i = 0; i < visible.size(); ++i) {
        const QChar character = visible.at(i);
        const bool isUrl = visible.mid(i, URL_BEGIN.size()) == URL_BEGIN;
        const bool isHost
            = i >= 3 && visible.mid(i - 3, HOST_BEGIN.size()).compare(HOST_BEGIN, Qt::CaseInsensitive) == 0;
        if (REFERENCES.contains(character) || isUrl || isHost)
            result += entity(character);
        else if (MARKUP.contains(character))
            result += QLatin1Char('\\') + character;
        else
            result += character;
    }
    return result;
}
