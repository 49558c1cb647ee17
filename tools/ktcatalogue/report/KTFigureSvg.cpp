#include "KTFigureSvg.h"

#include "KTHtmlWriter.h"
#include "KTReportText.h"
#include "KTToolText.h"

#include <algorithm>
#include <cmath>

namespace {

using Figure = KTPreviewModel::Figure;
using Panel = KTPreviewModel::Panel;

constexpr double LAYOUT_UNITS_PER_MILLIMETER = 10.0;
constexpr int SCALES[] = {1, 2, 3, 4, 5, 6, 8, 10, 15, 20, 30, 40, 50, 75};

// All of these in millimetres of the page.
constexpr double MAX_WIDTH = 90.0;
constexpr double MAX_HEIGHT = 62.0;
/** Of all drawings of an article, on paper of the size A4. */
constexpr double PAGE_WIDTH = 184.0;
constexpr double MAX_ROWS_HEIGHT = 130.0;
constexpr double FIGURE_GAP = 6.0;
constexpr double CAPTION_HEIGHT = 11.0;
constexpr double FONT_SIZE = 2.8;
/** Of letters and digits on average. */
constexpr double LETTER_WIDTH = 0.56 * FONT_SIZE;
/** From an edge to a dimension line, and from one line to the next. */
constexpr double LINE_GAP = 2.4;
constexpr double ROW = 5.6;
constexpr double TEXT_GAP = 0.9;
constexpr double TICK = 0.9;
constexpr double MARGIN = 1.0;
/** What dimensions take on the left and below. */
constexpr double SIDE = MARGIN + LINE_GAP + 2.0 * ROW;

QString millimeters(double layoutUnits)
{
    return KTHtmlWriter::number(layoutUnits / LAYOUT_UNITS_PER_MILLIMETER);
}

QString sizeText(const QSizeF &size)
{
    return QStringLiteral("%1\u00a0×\u00a0%2\u00a0mm")
        .arg(millimeters(size.width()), millimeters(size.height()));
}

/** A figure in millimetres, drawn with marks and texts whose size does not depend on the scale. */
class Drawing
{
public:
    Drawing(KTHtmlWriter *html, const Figure &figure, int scale)
        : myHtml(html)
        , myFigure(figure)
        , myScale(scale)
        , myWidth(figure.total.width() / LAYOUT_UNITS_PER_MILLIMETER)
        , myHeight(figure.total.height() / LAYOUT_UNITS_PER_MILLIMETER)
        , myHasBleed(figure.panels.constFirst().usable.height() != figure.total.height()
                     || width(figure) != figure.total.width())
    {
    }

    void write()
    {
        const double rows = myHasBleed ? 2.0 : 1.0;
        const double side = sized(MARGIN + LINE_GAP + rows * ROW);
        const double top = sized(myFigure.spine.isEmpty() ? MARGIN : ROW);
        // A narrow sheet leaves less room than its own texts need.
        const double least = sized(18.0);
        const double right = std::max(sized(MARGIN), least - myWidth);
        const QRectF box(-side, -top, side + myWidth + right, top + myHeight + side);
        myHtml->start("svg", "figure");
        myHtml->attribute("viewBox",
                          QStringList {KTHtmlWriter::number(box.x()), KTHtmlWriter::number(box.y()),
                                       KTHtmlWriter::number(box.width()), KTHtmlWriter::number(box.height())}
                              .join(QLatin1Char(' ')));
        myHtml->attribute("width", KTHtmlWriter::number(box.width() / myScale) + QStringLiteral("mm"));
        myHtml->attribute("height", KTHtmlWriter::number(box.height() / myScale) + QStringLiteral("mm"));
        myHtml->attribute("font-size", sized(FONT_SIZE));
        myHtml->attribute("role", QStringLiteral("img"));
        myHtml->attribute("aria-label",
                          myFigure.name + QStringLiteral(", ")
                              + sizeText(myFigure.panels.constFirst().usable.size()));
        writeSheet();
        writeDimensions();
        for (const KTPreviewModel::Barcode &barcode : myFigure.barcodes)
            writeBarcode(barcode);
        myHtml->end();
    }

private:
    /** A length of the page in the drawing's units. */
    double sized(double length) const { return length * myScale; }
    static double width(const Figure &figure)
    {
        return figure.panels.constLast().usable.right() - figure.panels.constFirst().usable.left();
    }

    void writeRect(const char *style, const QRectF &rect)
    {
        myHtml->empty("rect", style);
        myHtml->attribute("x", rect.x() / LAYOUT_UNITS_PER_MILLIMETER);
        myHtml->attribute("y", rect.y() / LAYOUT_UNITS_PER_MILLIMETER);
        myHtml->attribute("width", rect.width() / LAYOUT_UNITS_PER_MILLIMETER);
        myHtml->attribute("height", rect.height() / LAYOUT_UNITS_PER_MILLIMETER);
    }

    void writeText(double x, double y, const QString &text, const char *style = nullptr)
    {
        myHtml->start("text", style);
        myHtml->attribute("x", x);
        myHtml->attribute("y", y);
        myHtml->text(text);
        myHtml->end();
    }

    void writeSheet()
    {
        writeRect("bleed", myFigure.total);
        for (const Panel &panel : myFigure.panels)
            writeRect("usable", panel.usable);
        if (!myFigure.spine.isEmpty()) {
            writeRect("spine", myFigure.spine);
            writeAdditionalWidth();
        }
        for (const Panel &panel : myFigure.panels) {
            if (!panel.slipcase.isEmpty())
                writeRect("slip", panel.slipcase);
            const QString name = KTHtmlWriter::shortened(panel.name, KTHtmlWriter::LONGEST_TEXT);
            if (double(name.size()) * sized(LETTER_WIDTH) < panel.usable.width() / LAYOUT_UNITS_PER_MILLIMETER
                && sized(2.0 * FONT_SIZE) < panel.usable.height() / LAYOUT_UNITS_PER_MILLIMETER) {
                const QPointF center = panel.usable.center() / LAYOUT_UNITS_PER_MILLIMETER;
                writeText(center.x(), center.y() + sized(FONT_SIZE / 3.0), name, "name");
            }
        }
    }

    void writeAdditionalWidth()
    {
        const double added = myFigure.additionalSpineWidth;
        if (added <= 0.0)
            return;
        QString path;
        for (const double x : {myFigure.spine.left() + added, myFigure.spine.right() - added})
            path += QStringLiteral("M%1 %2v%3")
                        .arg(millimeters(x), millimeters(myFigure.spine.top()),
                             millimeters(myFigure.spine.height()));
        myHtml->empty("path", "added");
        myHtml->attribute("d", path);
    }

    /** Lines with a stroke at each end, along the sheet's lower and left side, and their lengths in words. */
    void writeDimensions()
    {
        QString lines;
        const auto across = [&](double from, double to, int row, const QString &text) {
            const double y = myHeight + sized(LINE_GAP + row * ROW);
            lines += line(QPointF(from, y), QPointF(to, y), QPointF(0.0, sized(TICK)));
            writeText((from + to) / 2.0, y + sized(TEXT_GAP + 0.75 * FONT_SIZE), text, "dim");
        };
        const auto upwards = [&](double from, double to, int row, const QString &text) {
            const double x = -sized(LINE_GAP + row * ROW);
            lines += line(QPointF(x, from), QPointF(x, to), QPointF(sized(TICK), 0.0));
            const double textX = x - sized(TEXT_GAP);
            const double textY = (from + to) / 2.0;
            myHtml->start("text", "dim");
            myHtml->attribute("transform",
                              QStringLiteral("translate(%1 %2)rotate(-90)")
                                  .arg(KTHtmlWriter::number(textX), KTHtmlWriter::number(textY)));
            myHtml->text(text);
            myHtml->end();
        };
        for (const Panel &panel : myFigure.panels) {
            across(panel.usable.left() / LAYOUT_UNITS_PER_MILLIMETER,
                   panel.usable.right() / LAYOUT_UNITS_PER_MILLIMETER, 0, millimeters(panel.usable.width()));
        }
        const QRectF first = myFigure.panels.constFirst().usable;
        upwards(first.top() / LAYOUT_UNITS_PER_MILLIMETER, first.bottom() / LAYOUT_UNITS_PER_MILLIMETER, 0,
                millimeters(first.height()));
        if (myHasBleed) {
            across(0.0, myWidth, 1, millimeters(myFigure.total.width()));
            upwards(0.0, myHeight, 1, millimeters(myFigure.total.height()));
        }
        if (!myFigure.spine.isEmpty()) {
            const double x = myFigure.spine.center().x() / LAYOUT_UNITS_PER_MILLIMETER;
            lines
                += QStringLiteral("M%1 %2V0").arg(KTHtmlWriter::number(x), KTHtmlWriter::number(-sized(1.4)));
            writeText(x, -sized(1.4 + TEXT_GAP),
                      KTToolText::tr("spine %1").arg(millimeters(myFigure.spine.width())), "dim");
        }
        myHtml->empty("path", "lines");
        myHtml->attribute("d", lines);
    }

    static QString line(const QPointF &from, const QPointF &to, const QPointF &tick)
    {
        const auto move = [](const QPointF &a, const QPointF &b) {
            return QStringLiteral("M%1 %2L%3 %4")
                .arg(KTHtmlWriter::number(a.x()), KTHtmlWriter::number(a.y()), KTHtmlWriter::number(b.x()),
                     KTHtmlWriter::number(b.y()));
        };
        return move(from, to) + move(from - tick, from + tick) + move(to - tick, to + tick);
    }

    void writeBarcode(const KTPreviewModel::Barcode &barcode)
    {
        myHtml->start("use", "barcode");
        myHtml->attribute("href", QStringLiteral("#barcode"));
        myHtml->attribute("x", barcode.rect.x() / LAYOUT_UNITS_PER_MILLIMETER);
        myHtml->attribute("y", barcode.rect.y() / LAYOUT_UNITS_PER_MILLIMETER);
        myHtml->attribute("width", barcode.rect.width() / LAYOUT_UNITS_PER_MILLIMETER);
        myHtml->attribute("height", barcode.rect.height() / LAYOUT_UNITS_PER_MILLIMETER);
        myHtml->element("title", KTToolText::tr("Barcode on page %1").arg(barcode.pageText()));
        myHtml->end();
    }

    KTHtmlWriter *myHtml;
    const Figure &myFigure;
    double myScale;
    double myWidth;
    double myHeight;
    bool myHasBleed;
};

double millimetersOf(double layoutUnits)
{
    return layoutUnits / LAYOUT_UNITS_PER_MILLIMETER;
}

/** Whether the figures, in rows, leave room for the rest of the article on a printed page. */
bool isOnPage(const QVector<Figure> &figures, int scale)
{
    double left = 0.0;
    double rowHeight = 0.0;
    double height = 0.0;
    for (const Figure &figure : figures) {
        const double width = millimetersOf(figure.total.width()) / scale;
        const double figureHeight = millimetersOf(figure.total.height()) / scale;
        if (width > MAX_WIDTH || figureHeight > MAX_HEIGHT)
            return false;
        if (left > 0.0 && left + FIGURE_GAP + width + SIDE > PAGE_WIDTH) {
            height += rowHeight;
            left = 0.0;
            rowHeight = 0.0;
        }
        left += (left > 0.0 ? FIGURE_GAP : 0.0) + width + SIDE;
        rowHeight = std::max(rowHeight, figureHeight + SIDE + CAPTION_HEIGHT);
    }
    return height + rowHeight <= MAX_ROWS_HEIGHT;
}

/** What the drawing shows, in words that stay readable where it is small. */
QString captionOf(const Figure &figure)
{
    const Panel &panel = figure.panels.constFirst();
    QStringList parts;
    if (figure.panels.size() > 1 && figure.panels.constLast().usable.size() == panel.usable.size())
        parts.append(KTToolText::tr("%1 each").arg(sizeText(panel.usable.size())));
    else {
        for (const Panel &each : figure.panels)
            parts.append(sizeText(each.usable.size()));
    }
    if (!figure.spine.isEmpty())
        parts.append(KTToolText::tr("spine %1").arg(KTReportText::millimeters(figure.spine.width())));
    if (figure.additionalSpineWidth > 0.0)
        parts.append(KTToolText::tr("of it %1 added on each side")
                         .arg(KTReportText::millimeters(figure.additionalSpineWidth)));
    if (figure.total.size() != panel.usable.size())
        parts.append(KTToolText::tr("with bleed %1").arg(sizeText(figure.total.size())));
    if (!figure.panels.constLast().slipcase.isEmpty())
        parts.append(
            KTToolText::tr("slipcase cover %1").arg(sizeText(figure.panels.constLast().slipcase.size())));
    for (const KTPreviewModel::Barcode &barcode : figure.barcodes)
        parts.append(
            KTToolText::tr("barcode on page %1: %2").arg(barcode.pageText(), sizeText(barcode.rect.size())));
    return parts.join(QStringLiteral("; "));
}

} // namespace

int KTFigureSvg::scale(const QVector<Figure> &figures)
{
    const auto *const found = std::find_if(std::begin(SCALES), std::end(SCALES),
                                           [&](int scale) { return isOnPage(figures, scale); });
    if (found != std::end(SCALES))
        return *found;
    // Many figures take several pages, but each of them is on one.
    double needed = 0.0;
    for (const Figure &figure : figures)
        needed = std::max({needed, millimetersOf(figure.total.width()) / MAX_WIDTH,
                           millimetersOf(figure.total.height()) / MAX_HEIGHT});
    return static_cast<int>(std::ceil(needed));
}

void KTFigureSvg::writeDefinitions(KTHtmlWriter *html)
{
    html->start("svg", "definitions");
    html->attribute("width", 0);
    html->attribute("height", 0);
    html->attribute("aria-hidden", QStringLiteral("true"));
    html->start("defs");
    html->start("pattern");
    html->attribute("id", QStringLiteral("chequers"));
    html->attribute("width", 8);
    html->attribute("height", 8);
    html->attribute("patternUnits", QStringLiteral("userSpaceOnUse"));
    html->empty("path", "chequers-ground");
    html->attribute("d", QStringLiteral("M0 0h8v8h-8z"));
    html->empty("path", "chequers");
    html->attribute("d", QStringLiteral("M0 0h4v8h4v-4h-8z"));
    html->end();
    html->start("symbol");
    html->attribute("id", QStringLiteral("barcode"));
    html->attribute("viewBox", QStringLiteral("0 0 30 10"));
    html->attribute("preserveAspectRatio", QStringLiteral("none"));
    html->empty("path", "paper");
    html->attribute("d", QStringLiteral("M0 0h30v10h-30z"));
    html->empty("path", "bars");
    html->attribute("d",
                    QStringLiteral("M2 1h1v8h-1zm2 0h.5v8h-.5zm1.5 0h1.5v8h-1.5zm3 0h.5v8h-.5zm1.5 "
                                   "0h1v8h-1zm2.5 0h.5v8h-.5zm1.5 0h1.5v8h-1.5zm2.5 0h1v8h-1zm2 "
                                   "0h.5v8h-.5zm1.5 0h1v8h-1zm2.5 0h.5v8h-.5zm1.5 0h1.5v8h-1.5zm2.5 "
                                   "0h1v8h-1zm2 0h.5v8h-.5z"));
    html->end();
    html->end();
    html->end();
    html->line();
}

void KTFigureSvg::write(KTHtmlWriter *html, const Figure &figure, int scale)
{
    html->start("figure");
    Drawing(html, figure, scale).write();
    html->start("figcaption");
    html->element("b", figure.name);
    html->text(QStringLiteral(": %1").arg(captionOf(figure)));
    html->end();
    html->end();
    html->line();
}
