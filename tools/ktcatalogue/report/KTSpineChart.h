#pragma once

class KTArticle;
class KTHtmlWriter;

/** Shows how the spine of an article grows with its page counts: a chart of steps, and a table behind it. */
namespace KTSpineChart {

/** Rows of the table; of more steps the first and the last ones stand in it. */
constexpr int MAX_ROWS = 48;

/** For an article with a spine. */
void write(KTHtmlWriter *html, const KTArticle &article);

} // namespace KTSpineChart
