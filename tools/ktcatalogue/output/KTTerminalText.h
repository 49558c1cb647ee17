#pragma once

#include <QString>

class QJsonObject;

/** Text from a file on its way to a terminal. */
namespace KTTerminalText {

/**
 * The text with everything made visible that a terminal would obey instead of showing: control characters,
 * line breaks, bidirectional overrides and lone surrogates are written as "\u001b" and the like. Bytes of
 * file names that are not UTF-8 stay what they are, see KTFileName: the user has named the file so. A text
 * without anything to escape is returned as it is, without a copy.
 */
QString escaped(const QString &text);

/** JSON text with the same characters escaped; it stays the same JSON. */
QString escapedJson(const QString &json);
/** The object as such a text, on one line. */
QString compactJson(const QJsonObject &object);

} // namespace KTTerminalText
