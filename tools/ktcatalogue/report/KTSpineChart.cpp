#include "KTSpineChart.h"

#include "KTHtmlWriter.h"
#include "KTSpineSteps.h"
#include "KTToolText.h"

#include <KTArithmetic.h>
#include <KTArticle.h>

#include <algorithm>
#include <cmath>

namespace {

// In dots of the drawing.
constexpr double WIDTH = 320.0;
constexpr double HEIGHT = 140.0;
constexpr double LEFT = 30.0;
constexpr double RIGHT = 12.0;
constexpr double TOP = 16.0;
constexpr double BOTTOM = 33.0;
constexpr double TICK = 4.0;
constexpr double LABEL_GAP = 13.0;
constexpr int MAX_TICKS = 5;

using Step = KTSpineSteps::Step;

QString widthText(double millimeters)
{
    return QString::number(millimeters, 'f', 1);
}

QString pagesText(const Step &step)
{
    return step.first == step.last ? KTToolText::tr("%1 pages").arg(step.first)
                                   : KTToolText::tr("%1 to %2 pages").arg(step.first).arg(step.last);
}

/** The least of 1, 2, 5, 10, 20 and so on that divides the length into few enough parts. */
double roundStep(double length)
{
    double step = 0.1;
    while (std::isfinite(length)) {
        for (const double factor : {1.0, 2.0, 5.0}) {
            if (length <= step * factor * MAX_TICKS)
                return step * factor;
        }
        step *= 10.0;
    }
    return 1.0;
}

class Chart
{
public:
    /** The increment is that of the page counts; the last step is as wide as it says. */
    Chart(KTHtmlWriter *html, const KTSpineSteps &spine, int increment)
        : myHtml(html)
        , mySteps(spine.steps)
        , myFirst(spine.steps.constFirst().first)
        , myLast(std::max(myFirst, double(spine.steps.constLast().last)))
        , myEnd(myLast + std::max(1.0, double(increment)))
    {
        for (const Step &step : mySteps) {
            if (std::isfinite(step.millimeters))
                myHighest = std::max(myHighest, step.millimeters);
        }
        myStep = roundStep(myHighest);
        myHighest = std::max(myStep, std::ceil(myHighest / myStep) * myStep);
    }

    void write()
    {
        const Step &first = mySteps.constFirst();
        const Step &last = mySteps.constLast();
        myHtml->start("svg", "chart");
        myHtml->attribute("viewBox", QStringLiteral("0 0 %1 %2").arg(WIDTH).arg(HEIGHT));
        myHtml->attribute("role", QStringLiteral("img"));
        const QString title = first.first == last.last
            ? KTToolText::tr("The spine is %1 mm wide at %2 pages")
                  .arg(widthText(first.millimeters), QString::number(first.first))
            : KTToolText::tr("The spine is %1 mm wide at %2 pages and %3 mm at %4 pages")
                  .arg(widthText(first.millimeters), QString::number(first.first),
                       widthText(last.millimeters), QString::number(last.last));
        myHtml->attribute("aria-label", title);
        writeAxes();
        writeSteps();
        myHtml->end();
        myHtml->line();
    }

private:
    double x(double pages) const
    {
        return LEFT + (WIDTH - LEFT - RIGHT) * (pages - myFirst) / (myEnd - myFirst);
    }
    double y(double millimeters) const
    {
        const double bounded = std::isfinite(millimeters) ? std::clamp(millimeters, 0.0, myHighest) : 0.0;
        return HEIGHT - BOTTOM - (HEIGHT - TOP - BOTTOM) * bounded / myHighest;
    }

    void writeLabel(double left, double top, const QString &text, const char *style)
    {
        myHtml->start("text", style);
        myHtml->attribute("x", left);
        myHtml->attribute("y", top);
        myHtml->text(text);
        myHtml->end();
    }

    void writeAxes()
    {
        QString grid;
        const int lines = KTArithmetic::rounded(myHighest / myStep);
        for (int i = 0; i <= lines; ++i) {
            const double width = i * myStep;
            grid += QStringLiteral("M%1 %2H%3")
                        .arg(LEFT)
                        .arg(KTHtmlWriter::number(y(width)))
                        .arg(WIDTH - RIGHT);
            writeLabel(LEFT - TICK, y(width) + TICK, KTHtmlWriter::number(width), "end");
        }
        myHtml->empty("path", "grid");
        myHtml->attribute("d", grid);
        QString ticks;
        const Step &middle = mySteps.at(mySteps.size() / 2);
        const QVector<double> counts {myFirst, double(middle.first), myLast};
        const char *const styles[] = {nullptr, "mid", "end"};
        for (int i = 0; i < counts.size(); ++i) {
            if (i > 0 && counts.at(i) <= counts.at(i - 1))
                continue;
            ticks += QStringLiteral("M%1 %2v%3")
                         .arg(KTHtmlWriter::number(x(counts.at(i))))
                         .arg(HEIGHT - BOTTOM)
                         .arg(TICK);
            writeLabel(x(counts.at(i)), HEIGHT - BOTTOM + LABEL_GAP + 2.0,
                       QString::number(counts.at(i), 'f', 0), styles[i]);
        }
        myHtml->empty("path", "axis");
        myHtml->attribute("d", ticks);
        writeLabel(2.0, LABEL_GAP - TICK, QStringLiteral("mm"), nullptr);
        writeLabel(WIDTH - RIGHT, HEIGHT - TICK, KTToolText::tr("pages"), "end");
    }

    /** The line, and above each step an invisible box that tells its values. */
    void writeSteps()
    {
        QString line;
        for (int i = 0; i < mySteps.size(); ++i) {
            const Step &step = mySteps.at(i);
            line += i == 0 ? QStringLiteral("M%1 %2").arg(KTHtmlWriter::number(x(step.first)),
                                                          KTHtmlWriter::number(y(step.millimeters)))
                           : QStringLiteral("H%1V%2").arg(KTHtmlWriter::number(x(step.first)),
                                                          KTHtmlWriter::number(y(step.millimeters)));
        }
        line += QStringLiteral("H%1").arg(KTHtmlWriter::number(x(myEnd)));
        myHtml->empty("path", "steps");
        myHtml->attribute("d", line);
        const int together
            = (KTArithmetic::sizeOf(mySteps) + KTSpineChart::MAX_ROWS - 1) / KTSpineChart::MAX_ROWS;
        for (int i = 0; i < mySteps.size(); i += together) {
            const Step &begin = mySteps.at(i);
            const Step &end = mySteps.at(std::min(i + together, KTArithmetic::sizeOf(mySteps)) - 1);
            const int next = i + together;
            const double right = next < mySteps.size() ? x(mySteps.at(next).first) : x(myEnd);
            myHtml->start("rect", "over");
            myHtml->attribute("x", x(begin.first));
            myHtml->attribute("y", TOP);
            myHtml->attribute("width", std::max(0.5, right - x(begin.first)));
            myHtml->attribute("height", HEIGHT - TOP - BOTTOM);
            const QString pages = pagesText({begin.first, end.last, 0.0});
            myHtml->element("title",
                            together == 1
                                ? KTToolText::tr("%1: %2 mm").arg(pages, widthText(begin.millimeters))
                                : KTToolText::tr("%1: %2 to %3 mm")
                                      .arg(pages, widthText(begin.millimeters), widthText(end.millimeters)));
            myHtml->end();
        }
    }

    KTHtmlWriter *myHtml;
    const QVector<Step> &mySteps;
    double myFirst;
    double myLast;
    double myEnd;
    double myStep = 1.0;
    double myHighest = 0.0;
};

void writeRow(KTHtmlWriter *html, const Step &step)
{
    html->start("tr");
    html->start("th");
    html->attribute("scope", QStringLiteral("row"));
    html->text(pagesText(step));
    html->end();
    html->element("td", QStringLiteral("%1 mm").arg(widthText(step.millimeters)), "number");
    html->end();
}

void writeTable(KTHtmlWriter *html, const KTSpineSteps &spine)
{
    const int rows = KTArithmetic::sizeOf(spine.steps);
    html->start("details", "values");
    html->element("summary", KTToolText::tr("Values as a table"));
    html->start("table");
    html->start("thead");
    html->start("tr");
    for (const QString &title : {KTToolText::tr("Pages"), KTToolText::tr("Spine")}) {
        html->start("th");
        html->attribute("scope", QStringLiteral("col"));
        html->text(title);
        html->end();
    }
    html->end();
    html->end();
    html->start("tbody");
    const bool isWhole = rows <= KTSpineChart::MAX_ROWS;
    const int shown = isWhole ? rows : KTSpineChart::MAX_ROWS / 2;
    for (int i = 0; i < shown; ++i)
        writeRow(html, spine.steps.at(i));
    if (!isWhole) {
        html->start("tr");
        html->start("td");
        html->attribute("colspan", 2);
        html->text(KTToolText::tr("%1 further steps").arg(rows - 2 * shown));
        html->end();
        html->end();
        for (int i = rows - shown; i < rows; ++i)
            writeRow(html, spine.steps.at(i));
    }
    html->end();
    html->end();
    if (spine.isSampled)
        html->element(
            "p",
            KTToolText::tr("Of the page counts %1 were looked at, evenly.").arg(KTSpineSteps::MAX_COUNTS),
            "note");
    html->end();
    html->line();
}

} // namespace

void KTSpineChart::write(KTHtmlWriter *html, const KTArticle &article)
{
    const KTSpineSteps spine(article);
    Chart(html, spine, article.pageCounts().pageIncrement()).write();
    writeTable(html, spine);
}
