#pragma once

#include <QJsonObject>
#include <QList>

class KTArticle;
class KTArticleVariants;

/** An article as text for people and as JSON for programs. */
namespace KTArticleReport {

/**
 * Several lines, ready for a terminal. The spine's width is given for what becomes of each of the page
 * counts; without any, for the least, a middle and the highest one.
 */
QString toText(const KTArticle &article, const QList<int> &pageCounts);
/** One object, indented, with the characters escaped that a terminal would obey. */
QString toJSON(const KTArticle &article, const QList<int> &pageCounts);
QJsonObject toJSON(const KTArticleVariants &variants);

} // namespace KTArticleReport
