#include "KTPreviewPainter.h"

#include "KTToolText.h"

#include <KTArithmetic.h>

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

// Lengths on the sheet, in layout units (0.1 mm).
constexpr int SHEET_WIDTH = 2970;
constexpr int MARGIN = 120;
constexpr int TITLE_HEIGHT = 190;
constexpr int DIMENSION_STRIP = 75;
constexpr int FIGURE_GAP = 50;
constexpr int MAX_FIGURE_HEIGHT = 1500;
/** Of all rows of figures, without their dimensions. */
constexpr int MAX_FIGURES_HEIGHT = 2000;
constexpr int LEAST_FIGURE_HEIGHT = 300;
constexpr int TITLE_LINE_HEIGHT = 64;
constexpr int MAX_TITLE_LINES = 3;
constexpr int MAX_LEGEND_LINES = 6;
/** Longer texts are cut before they are laid out, which takes time. */
constexpr int MAX_CHARACTERS = 2000;
constexpr int MAX_BARCODE_LABEL = 300;
constexpr int ROW_HEIGHT = 48;
constexpr int COLUMNS = 4;
constexpr int COLUMN_GAP = 50;
constexpr int LEAST_ROWS_PER_COLUMN = 8;
constexpr int MAX_ROWS_OF_WHOLE_GROUPS = 24;
constexpr int MAX_ROWS_PER_COLUMN = 60;
constexpr int SYMBOL_WIDTH = 90;
constexpr int SYMBOL_HEIGHT = 32;
constexpr int ARROW = 16;
constexpr int TEXT_SIZE = 28;
constexpr int TITLE_SIZE = 52;
constexpr int LABEL_SIZE = 40;
constexpr int HATCH_DISTANCE = 14;
constexpr int TEXT_DISTANCE = 8;

constexpr double CONTENT_WIDTH = SHEET_WIDTH - 2 * MARGIN;
constexpr double COLUMN_WIDTH = (CONTENT_WIDTH - (COLUMNS - 1) * COLUMN_GAP) / COLUMNS;
/** Of a placeholder image on the sheet; more would only make the file larger. */
constexpr int MAX_IMAGE_PIXELS = 400;
constexpr double LAYOUT_UNITS_PER_MILLIMETER = 10.0;

constexpr double SCALES[] = {1.0,  1.5,  2.0,  2.5,  3.0,  4.0,  5.0,   6.0,   8.0,   10.0,  15.0,
                             20.0, 25.0, 30.0, 40.0, 50.0, 75.0, 100.0, 150.0, 200.0, 300.0, 400.0};

constexpr QRgb INK = 0xff222222;
constexpr QRgb FAINT_INK = 0xff666666;
constexpr QRgb DIMENSION_COLOR = 0xff44546a;
constexpr QRgb EXTENSION_COLOR = 0xffb4bcc8;
constexpr QRgb BLEED_COLOR = 0xffc0392b;
constexpr QRgb BLEED_FILL = 0xfffbe3df;
constexpr QRgb USABLE_COLOR = 0xff2c5d8f;
constexpr QRgb SPINE_FILL = 0xffdfe8f2;
constexpr QRgb SLIPCASE_COLOR = 0xff7d3c98;
constexpr QRgb NAME_COLOR = 0xff9aa5b1;

QString millimeters(double layoutUnits)
{
    return QString::number(layoutUnits / LAYOUT_UNITS_PER_MILLIMETER, 'f', 1);
}

QPen pen(QRgb color, double width, Qt::PenStyle style = Qt::SolidLine)
{
    QPen pen(QColor::fromRgba(color), width, style);
    pen.setJoinStyle(Qt::MiterJoin);
    pen.setCapStyle(Qt::FlatCap);
    return pen;
}

QPen bleedPen()
{
    return pen(BLEED_COLOR, 4.0);
}

QPen usablePen()
{
    return pen(USABLE_COLOR, 4.0);
}

QPen foldPen()
{
    return pen(USABLE_COLOR, 3.0, Qt::DotLine);
}

QPen slipcasePen()
{
    return pen(SLIPCASE_COLOR, 5.0, Qt::DashLine);
}

QFont sized(QFont font, int size, bool isBold = false)
{
    font.setPixelSize(size);
    font.setBold(isBold);
    return font;
}

/** Slanted lines, drawn one by one: not every paint device knows patterns. */
void hatch(QPainter *painter, const QRectF &rect)
{
    painter->setPen(pen(INK, 2.0));
    const auto count = static_cast<int>((rect.width() + rect.height()) / HATCH_DISTANCE);
    for (int i = 1; i <= count; ++i) {
        const double offset = i * HATCH_DISTANCE;
        const double right = std::min(offset, rect.width());
        const double bottom = std::min(offset, rect.height());
        painter->drawLine(rect.topLeft() + QPointF(right, offset - right),
                          rect.topLeft() + QPointF(offset - bottom, bottom));
    }
}

enum class Breaks {
    AtWords,
    Anywhere,
};

/** The text in lines of the width. Where it needs more of them the last one ends in dots; nothing where it
 * may not be broken within a word but would have to be. */
QStringList wrapped(const QString &text, const QFont &font, double width, int maxLines,
                    Breaks breaks = Breaks::Anywhere)
{
    const QFontMetricsF metrics(font);
    const QString start = text.left(MAX_CHARACTERS);
    if (metrics.horizontalAdvance(text.left(MAX_CHARACTERS)) <= width)
        return {start};
    QTextLayout layout(start, font);
    QTextOption option;
    option.setWrapMode(breaks == Breaks::AtWords ? QTextOption::WordWrap
                                                 : QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (breaks == Breaks::AtWords && line.naturalTextWidth() > width)
            return {};
        if (KTArithmetic::sizeOf(lines) + 1 == maxLines) {
            lines.append(metrics.elidedText(start.mid(line.textStart()), Qt::ElideRight, width));
            break;
        }
        lines.append(start.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

void drawCentred(QPainter *painter, const QPointF &center, const QString &text)
{
    const QFontMetricsF metrics(painter->font());
    painter->drawText(
        center
            + QPointF(-metrics.horizontalAdvance(text) * 0.5, (metrics.ascent() - metrics.descent()) * 0.5),
        text);
}

} // namespace

/** A line of the legend: its symbol, a text on the left and perhaps one on the right. */
struct KTPreviewPainter::LegendRow
{
    enum Kind {
        Header,
        Text,
        /** The next line of a text that is too long for one. */
        Continuation,
        Line,
        Swatch,
        Hatch,
    };

    Kind kind;
    QString text;
    QString detail;
    QPen pen;
    QColor color;
    bool isBold;

    /** Room for the symbol before the text, in the lines below it, too. */
    double indent() const { return hasSymbol ? SYMBOL_WIDTH : 0.0; }
    QFont textFont(const QFont &font) const { return sized(font, TEXT_SIZE, kind == Header || isBold); }
    double detailWidth(const QFont &font) const
    {
        return QFontMetricsF(sized(font, TEXT_SIZE)).horizontalAdvance(detail);
    }
    double textRoom(const QFont &font) const
    {
        return COLUMN_WIDTH - indent() - (detail.isEmpty() ? 0.0 : detailWidth(font) + 2 * TEXT_DISTANCE);
    }
    bool hasSymbol = kind == Line || kind == Swatch || kind == Hatch;
};

struct KTPreviewPainter::PlacedRow
{
    LegendRow row;
    int column;
    int line;
};

/** A row of figures side by side on the sheet, their dimensions included. */
struct KTPreviewPainter::FigureRow
{
    int first;
    int end;
    double width;
    /** Of the drawings alone. */
    double figureHeight;
};

KTPreviewPainter::KTPreviewPainter(const KTPreviewModel &model)
    : myModel(model)
    , myFont(QStringLiteral("DejaVu Sans"))
    , myScale(*std::prev(std::end(SCALES)))
{
    // Without hinting, letters are as wide on the sheet as the metrics say, however it is scaled.
    myFont.setHintingPreference(QFont::PreferNoHinting);
    myTitle = wrapped(myModel.title, sized(myFont, TITLE_SIZE, true), CONTENT_WIDTH, MAX_TITLE_LINES);
    const auto *const scale = std::find_if(std::begin(SCALES), std::end(SCALES),
                                           [this](double candidate) { return fits(candidate); });
    if (scale != std::end(SCALES))
        myScale = *scale;
}

bool KTPreviewPainter::fits(double scale) const
{
    double height = 0.0;
    for (const FigureRow &row : figureRows(scale)) {
        height += row.figureHeight;
        if (row.width > CONTENT_WIDTH || row.figureHeight > MAX_FIGURE_HEIGHT)
            return false;
    }
    return height <= MAX_FIGURES_HEIGHT;
}

/** The first figure, which is the cover, has a row for itself; the others share rows as far as they fit. */
QVector<KTPreviewPainter::FigureRow> KTPreviewPainter::figureRows(double scale) const
{
    QVector<FigureRow> rows;
    for (int i = 0; i < myModel.figures.size(); ++i) {
        const KTPreviewModel::Figure &figure = myModel.figures.at(i);
        const double width = figure.total.width() / scale + 2 * DIMENSION_STRIP;
        const double height = figure.total.height() / scale;
        if (i < 2 || rows.constLast().width + FIGURE_GAP + width > CONTENT_WIDTH) {
            rows.append({i, i + 1, width, height});
        } else {
            FigureRow &row = rows.last();
            row.end = i + 1;
            row.width += FIGURE_GAP + width;
            row.figureHeight = std::max(row.figureHeight, height);
        }
    }
    return rows;
}

double KTPreviewPainter::titleHeight() const
{
    return TITLE_HEIGHT + (KTArithmetic::sizeOf(myTitle) - 1) * TITLE_LINE_HEIGHT;
}

QSize KTPreviewPainter::sheetSize() const
{
    int rows = 0;
    placedLegend(&rows);
    return QSize(SHEET_WIDTH,
                 static_cast<int>(2 * MARGIN + titleHeight() + figuresHeight() + rows * ROW_HEIGHT));
}

void KTPreviewPainter::paint(QPainter *painter) const
{
    painter->setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                            | QPainter::SmoothPixmapTransform);
    painter->fillRect(QRect(QPoint(), sheetSize()), Qt::white);
    paintTitle(painter);
    paintScaleBar(painter);
    double top = MARGIN + titleHeight();
    for (const FigureRow &row : figureRows(myScale)) {
        QPointF corner((SHEET_WIDTH - row.width) * 0.5, top);
        for (int i = row.first; i < row.end; ++i) {
            const KTPreviewModel::Figure &figure = myModel.figures.at(i);
            paintFigure(painter, figure, corner + QPointF(DIMENSION_STRIP, DIMENSION_STRIP));
            corner.rx() += figure.total.width() / myScale + 2 * DIMENSION_STRIP + FIGURE_GAP;
        }
        top += rowHeight(row);
    }
    paintLegend(painter);
}

/** On the sheet; one strip of dimensions above, two and some room below. */
double KTPreviewPainter::rowHeight(const FigureRow &row)
{
    return row.figureHeight + 4 * DIMENSION_STRIP;
}

double KTPreviewPainter::figuresHeight() const
{
    double height = 0.0;
    for (const FigureRow &row : figureRows(myScale))
        height += rowHeight(row);
    return std::max(height, LEAST_FIGURE_HEIGHT + 4.0 * DIMENSION_STRIP);
}

QRectF KTPreviewPainter::scaled(const QRectF &rect, const QPointF &corner) const
{
    return QRectF(corner + rect.topLeft() / myScale, rect.size() / myScale);
}

void KTPreviewPainter::paintTitle(QPainter *painter) const
{
    painter->setPen(QColor::fromRgba(INK));
    painter->setFont(sized(myFont, TITLE_SIZE, true));
    double baseline = MARGIN + 45;
    for (const QString &line : myTitle) {
        painter->drawText(QPointF(MARGIN, baseline), line);
        baseline += TITLE_LINE_HEIGHT;
    }
    const QFont font = sized(myFont, TEXT_SIZE + 4);
    painter->setPen(QColor::fromRgba(FAINT_INK));
    painter->setFont(font);
    const QString text
        = KTToolText::tr("%1.  Scale 1 : %2, all lengths in millimetres.").arg(myModel.subtitle).arg(myScale);
    painter->drawText(QPointF(MARGIN, baseline - 4),
                      QFontMetricsF(font).elidedText(text, Qt::ElideRight, CONTENT_WIDTH * 0.7));
}

/** The longest bar of a round length that is not in the way. */
void KTPreviewPainter::paintScaleBar(QPainter *painter) const
{
    constexpr double LONGEST = 500.0;
    const double decade = std::pow(10.0, std::floor(std::log10(LONGEST * myScale)));
    const double times = LONGEST * myScale / decade;
    const double length = (times >= 5.0 ? 5.0 : times >= 2.0 ? 2.0 : 1.0) * decade;
    const double width = length / myScale;
    const QRectF bar(SHEET_WIDTH - MARGIN - width, MARGIN + titleHeight() - 110, width, 14.0);
    painter->setPen(pen(INK, 2.0));
    painter->setBrush(Qt::white);
    painter->drawRect(bar);
    painter->fillRect(QRectF(bar.topLeft(), QSizeF(width * 0.5, bar.height())), QColor::fromRgba(INK));
    painter->setFont(sized(myFont, TEXT_SIZE));
    const QString text = QStringLiteral("%1 mm").arg(length / LAYOUT_UNITS_PER_MILLIMETER);
    painter->drawText(
        QPointF(bar.right() - QFontMetricsF(painter->font()).horizontalAdvance(text), bar.bottom() + 36.0),
        text);
}

void KTPreviewPainter::paintFigure(QPainter *painter, const KTPreviewModel::Figure &figure,
                                   const QPointF &corner) const
{
    painter->setPen(bleedPen());
    painter->setBrush(QColor::fromRgba(BLEED_FILL));
    painter->drawRect(scaled(figure.total, corner));
    for (const KTPreviewModel::Panel &panel : figure.panels) {
        painter->setPen(usablePen());
        painter->setBrush(Qt::white);
        painter->drawRect(scaled(panel.usable, corner));
    }
    if (!figure.spine.isEmpty()) {
        const QRectF spine = scaled(figure.spine, corner);
        painter->setPen(usablePen());
        painter->setBrush(QColor::fromRgba(SPINE_FILL));
        painter->drawRect(spine);
        painter->setPen(foldPen());
        const double inset = figure.additionalSpineWidth / myScale;
        for (const double x : {spine.left() + inset, spine.right() - inset}) {
            if (inset > 0.0)
                painter->drawLine(QPointF(x, spine.top()), QPointF(x, spine.bottom()));
        }
    }
    painter->setBrush(Qt::NoBrush);
    for (const KTPreviewModel::Panel &panel : figure.panels) {
        const QRectF usable = scaled(panel.usable, corner);
        painter->setPen(QColor::fromRgba(NAME_COLOR));
        paintName(painter, panel.name, usable);
        painter->setPen(slipcasePen());
        if (!panel.slipcase.isEmpty())
            painter->drawRect(scaled(panel.slipcase, corner));
    }
    for (const KTPreviewModel::Barcode &barcode : figure.barcodes)
        paintBarcode(painter, barcode, scaled(barcode.rect, corner), corner.y());
    paintDimensions(painter, figure, corner);
}

/** In the middle, in the larger of two sizes and in as many lines as it needs, where there is room for it. */
void KTPreviewPainter::paintName(QPainter *painter, const QString &name, const QRectF &area) const
{
    for (const int size : {LABEL_SIZE, TEXT_SIZE}) {
        const QFont font = sized(myFont, size);
        const double lineHeight = size * 1.25;
        const QStringList lines
            = wrapped(name, font, area.width() - 2 * TEXT_DISTANCE, MAX_LEGEND_LINES, Breaks::AtWords);
        if (lines.isEmpty() || KTArithmetic::sizeOf(lines) * lineHeight > area.height())
            continue;
        painter->setFont(font);
        QPointF center = area.center() - QPointF(0.0, (KTArithmetic::sizeOf(lines) - 1) * lineHeight * 0.5);
        for (const QString &line : lines) {
            drawCentred(painter, center, line);
            center.ry() += lineHeight;
        }
        return;
    }
}

void KTPreviewPainter::paintBarcode(QPainter *painter, const KTPreviewModel::Barcode &barcode,
                                    const QRectF &rect, double figureTop) const
{
    painter->fillRect(rect, Qt::white);
    if (barcode.image.isNull()) {
        hatch(painter, rect);
    } else {
        const QSize most(MAX_IMAGE_PIXELS, MAX_IMAGE_PIXELS);
        const bool isLarge = barcode.image.width() > most.width() || barcode.image.height() > most.height();
        painter->drawImage(rect,
                           isLarge ? barcode.image.scaled(most, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                                   : barcode.image);
    }
    painter->setPen(pen(INK, 3.0));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(rect);

    // On a hatched box where it leaves enough of it to be seen, else beside it.
    painter->setFont(sized(myFont, TEXT_SIZE));
    const QString text
        = QFontMetricsF(painter->font())
              .elidedText(KTToolText::tr("p. %1").arg(barcode.pageText()), Qt::ElideRight, MAX_BARCODE_LABEL);
    QRectF label(0.0, 0.0, QFontMetricsF(painter->font()).horizontalAdvance(text) + 2 * TEXT_DISTANCE,
                 TEXT_SIZE + TEXT_DISTANCE);
    label.moveCenter(rect.center());
    if (!barcode.image.isNull() || !rect.contains(label))
        label.moveBottom(rect.top() - TEXT_DISTANCE);
    if (label.top() < figureTop)
        label.moveTop(rect.bottom() + TEXT_DISTANCE);
    painter->fillRect(label, Qt::white);
    drawCentred(painter, label.center(), text);
}

void KTPreviewPainter::paintDimensions(QPainter *painter, const KTPreviewModel::Figure &figure,
                                       const QPointF &corner) const
{
    constexpr double RIGHTWARDS = 0.0;
    constexpr double UPWARDS = -90.0;
    const QRectF total = scaled(figure.total, corner);
    const double top = total.top() - DIMENSION_STRIP * 0.35;
    for (const KTPreviewModel::Panel &panel : figure.panels) {
        const QRectF usable = scaled(panel.usable, corner);
        // Beside each other they would run into one another; the legend has them too.
        if (figure.panels.size() > 1 && usable.width() < 2 * DIMENSION_STRIP)
            continue;
        paintDimension(painter, QPointF(usable.left(), top), usable.width(), RIGHTWARDS, usable.top() - top,
                       millimeters(panel.usable.width()));
    }
    double bottom = total.bottom() + DIMENSION_STRIP * 0.8;
    if (!figure.spine.isEmpty()) {
        const QRectF spine = scaled(figure.spine, corner);
        paintDimension(painter, QPointF(spine.left(), bottom), spine.width(), RIGHTWARDS,
                       spine.bottom() - bottom,
                       KTToolText::tr("spine %1").arg(millimeters(figure.spine.width())));
        bottom += DIMENSION_STRIP;
    }
    paintDimension(painter, QPointF(total.left(), bottom), total.width(), RIGHTWARDS, total.bottom() - bottom,
                   millimeters(figure.total.width()));
    const QRectF usable = scaled(figure.panels.constFirst().usable, corner);
    const double left = total.left() - DIMENSION_STRIP * 0.35;
    paintDimension(painter, QPointF(left, usable.bottom()), usable.height(), UPWARDS, usable.left() - left,
                   millimeters(figure.panels.constFirst().usable.height()));
    const double right = total.right() + DIMENSION_STRIP * 0.8;
    paintDimension(painter, QPointF(right, total.bottom()), total.height(), UPWARDS, total.right() - right,
                   millimeters(figure.total.height()));
}

/**
 * A dimension line from the point, with its text beside it, and extension lines that reach so far across
 * (right of the line's direction is positive for a line to the right, left of it for one upwards).
 */
void KTPreviewPainter::paintDimension(QPainter *painter, const QPointF &from, double length, double angle,
                                      double reach, const QString &text) const
{
    painter->save();
    painter->translate(from);
    painter->rotate(angle);
    painter->setPen(pen(EXTENSION_COLOR, 2.0));
    for (const double x : {0.0, length})
        painter->drawLine(QPointF(x, reach < 0.0 ? 12.0 : -12.0), QPointF(x, reach));

    painter->setFont(sized(myFont, TEXT_SIZE));
    const QColor color = QColor::fromRgba(DIMENSION_COLOR);
    painter->setPen(pen(DIMENSION_COLOR, 2.5));
    // Arrows that find no room inside point inwards from outside.
    const bool isInside = length > 3 * ARROW;
    const double outside = isInside ? 0.0 : 2 * ARROW;
    painter->drawLine(QPointF(-outside, 0.0), QPointF(length + outside, 0.0));
    const double tip = isInside ? ARROW : -ARROW;
    painter->setPen(Qt::NoPen);
    painter->setBrush(color);
    for (const QPointF &end : {QPointF(0.0, tip), QPointF(length, -tip)}) {
        const QPointF arrow[]
            = {QPointF(end.x(), 0.0), QPointF(end.x() + end.y(), -5.0), QPointF(end.x() + end.y(), 5.0)};
        painter->drawPolygon(arrow, static_cast<int>(std::size(arrow)));
    }
    const QFontMetricsF metrics(painter->font());
    const double width = metrics.horizontalAdvance(text);
    // Between the extension lines, or else behind the arrow.
    const QPointF baseline = width + 2 * TEXT_DISTANCE < length
        ? QPointF((length - width) * 0.5, -TEXT_DISTANCE)
        : QPointF(length + outside + TEXT_DISTANCE, metrics.capHeight() * 0.5);
    painter->setPen(color);
    painter->drawText(baseline, text);
    painter->restore();
}

QVector<KTPreviewPainter::LegendRow> KTPreviewPainter::legend() const
{
    QVector<LegendRow> rows;
    const auto add
        = [&rows](LegendRow::Kind kind, const QString &text, const QString &detail = QString(),
                  const QPen &linePen = QPen(), const QColor &color = QColor(), bool isBold = false) {
              rows.append({kind, text, detail, linePen, color, isBold});
          };
    const auto contains = [this](auto predicate) {
        return std::any_of(myModel.figures.begin(), myModel.figures.end(), predicate);
    };

    add(LegendRow::Header, KTToolText::tr("Lines"));
    add(LegendRow::Line, KTToolText::tr("outer edge with bleed"), QString(), bleedPen(),
        QColor::fromRgba(BLEED_FILL));
    add(LegendRow::Line, KTToolText::tr("usable area"), QString(), usablePen(), Qt::white);
    if (!myModel.figures.constFirst().spine.isEmpty())
        add(LegendRow::Line, KTToolText::tr("spine"), QString(), usablePen(), QColor::fromRgba(SPINE_FILL));
    if (myModel.figures.constFirst().additionalSpineWidth > 0.0)
        add(LegendRow::Line, KTToolText::tr("additional width"), QString(), foldPen(),
            QColor::fromRgba(SPINE_FILL));
    if (contains([](const auto &figure) { return !figure.panels.constLast().slipcase.isEmpty(); }))
        add(LegendRow::Line, KTToolText::tr("slipcase cover"), QString(), slipcasePen(), Qt::white);
    if (contains([](const auto &figure) {
            return std::any_of(figure.barcodes.begin(), figure.barcodes.end(),
                               [](const auto &barcode) { return barcode.image.isNull(); });
        }))
        add(LegendRow::Hatch, KTToolText::tr("barcode without image"));

    add(LegendRow::Header, KTToolText::tr("Sizes in mm"));
    for (const QPair<QString, QString> &size : myModel.sizes)
        add(LegendRow::Text, size.first, size.second);
    if (!myModel.notes.isEmpty())
        add(LegendRow::Header, KTToolText::tr("Not drawn"));
    for (const QString &note : myModel.notes)
        add(LegendRow::Text, note);
    for (const KTPreviewModel::OptionGroup &group : myModel.optionGroups) {
        add(LegendRow::Header, group.name);
        for (const KTPreviewModel::Option &option : group.options) {
            QStringList flags;
            if (option.isPreselected)
                flags.append(KTToolText::tr("preselected"));
            if (option.isNotCharged)
                flags.append(KTToolText::tr("free"));
            add(LegendRow::Swatch, option.name, flags.join(QStringLiteral(", ")), QPen(), option.color,
                option.isPreselected);
        }
    }
    return linesOf(rows);
}

/** The same with a row for each line of the texts. */
QVector<KTPreviewPainter::LegendRow> KTPreviewPainter::linesOf(const QVector<LegendRow> &rows) const
{
    QVector<LegendRow> lines;
    for (const LegendRow &row : rows) {
        LegendRow line = row;
        for (const QString &text :
             ::wrapped(row.text, row.textFont(myFont), row.textRoom(myFont), MAX_LEGEND_LINES)) {
            line.text = text;
            lines.append(line);
            line.isBold = row.isBold || row.kind == LegendRow::Header;
            line.kind = LegendRow::Continuation;
            line.detail.clear();
        }
    }
    return lines;
}

/** The rows in columns with so many lines; fewer rows where they do not suffice. */
QVector<KTPreviewPainter::PlacedRow> KTPreviewPainter::placedRows(const QVector<LegendRow> &rows,
                                                                  int rowsPerColumn, bool keepsGroups)
{
    const auto isHeader = [](const LegendRow &row) { return row.kind == LegendRow::Header; };
    QVector<PlacedRow> placed;
    int column = 0;
    int line = 0;
    for (const LegendRow &row : rows) {
        int needed = 1;
        if (isHeader(row)) {
            const auto *const next = std::find_if(&row + 1, rows.constData() + rows.size(), isHeader);
            const auto size = static_cast<int>(next - &row);
            needed = keepsGroups ? size : std::min(size, 2);
            line += line > 0 ? 1 : 0;
        }
        if (line > 0 && line + needed > rowsPerColumn) {
            ++column;
            line = 0;
        }
        if (column >= COLUMNS || needed > rowsPerColumn)
            break;
        placed.append({row, column, line++});
    }
    return placed;
}

/**
 * The rows in columns of about the same height: the fewest rows per column that suffice. A group stays
 * together unless the columns become too long. Beyond the limit the last row says how many are left out.
 */
QVector<KTPreviewPainter::PlacedRow> KTPreviewPainter::placedLegend(int *rowsPerColumn) const
{
    const QVector<LegendRow> rows = legend();
    QVector<PlacedRow> placed;
    for (const bool keepsGroups : {true, false}) {
        const int most = keepsGroups ? MAX_ROWS_OF_WHOLE_GROUPS : MAX_ROWS_PER_COLUMN;
        for (*rowsPerColumn = LEAST_ROWS_PER_COLUMN; *rowsPerColumn <= most; ++*rowsPerColumn) {
            placed = placedRows(rows, *rowsPerColumn, keepsGroups);
            if (placed.size() == rows.size())
                return placed;
        }
    }
    *rowsPerColumn = MAX_ROWS_PER_COLUMN;
    placed.last().row
        = {LegendRow::Text, KTToolText::tr("... and %1 more").arg(rows.size() - placed.size() + 1),
           QString(),       QPen(),
           QColor(),        false};
    return placed;
}

void KTPreviewPainter::paintLegend(QPainter *painter) const
{
    int rows = 0;
    const QVector<PlacedRow> placed = placedLegend(&rows);
    const QPointF corner(MARGIN, MARGIN + TITLE_HEIGHT + figuresHeight());
    for (const PlacedRow &entry : placed)
        paintLegendRow(painter, entry.row,
                       corner + QPointF(entry.column * (COLUMN_WIDTH + COLUMN_GAP), entry.line * ROW_HEIGHT));
}

void KTPreviewPainter::paintLegendRow(QPainter *painter, const LegendRow &row, const QPointF &corner) const
{
    const QRectF symbol(corner + QPointF(0.0, (ROW_HEIGHT - SYMBOL_HEIGHT) * 0.5),
                        QSizeF(SYMBOL_WIDTH - 2 * TEXT_DISTANCE, SYMBOL_HEIGHT));
    if (row.kind == LegendRow::Hatch) {
        hatch(painter, symbol);
    } else if ((row.kind == LegendRow::Line || row.kind == LegendRow::Swatch) && row.color.alpha() > 0) {
        painter->setPen(row.kind == LegendRow::Line ? row.pen : pen(FAINT_INK, 2.0));
        painter->setBrush(row.color);
        painter->drawRect(symbol);
    }

    const double baseline = corner.y() + ROW_HEIGHT * 0.5 + TEXT_SIZE * 0.36;
    painter->setFont(sized(myFont, TEXT_SIZE));
    painter->setPen(QColor::fromRgba(FAINT_INK));
    painter->drawText(QPointF(corner.x() + COLUMN_WIDTH - row.detailWidth(myFont), baseline), row.detail);

    painter->setFont(row.textFont(myFont));
    painter->setPen(QColor::fromRgba(INK));
    painter->drawText(QPointF(corner.x() + row.indent(), baseline), row.text);
}
