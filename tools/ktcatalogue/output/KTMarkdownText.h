#pragma once

#include <QString>

/** Text from a file on its way into a page of Markdown. */
namespace KTMarkdownText {

/**
 * The text so that it is shown as it is, also in the cell of a table: nothing in it becomes markup, a link,
 * or the mention of a person or of an issue. What a terminal would obey is made visible, too.
 */
QString escaped(const QString &text);

} // namespace KTMarkdownText
