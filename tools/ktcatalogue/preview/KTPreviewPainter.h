#pragma once

#include "KTPreviewModel.h"

#include <QFont>
#include <QSize>

class QPainter;

/**
 * Draws a preview as a technical drawing: figures to scale with their dimensions, and a legend below.
 *
 * The sheet has a fixed width, and a height that grows with the legend up to a limit, so its size is bounded
 * whatever the article is like. Needs a QGuiApplication.
 */
class KTPreviewPainter
{
public:
    explicit KTPreviewPainter(const KTPreviewModel &model);

    /** In layout units (0.1 mm), the coordinates in which paint() draws. */
    QSize sheetSize() const;
    /** Draws on the area from (0, 0) to the sheet's size. */
    void paint(QPainter *painter) const;

private:
    struct FigureRow;
    struct LegendRow;
    struct PlacedRow;

    bool fits(double scale) const;
    QVector<FigureRow> figureRows(double scale) const;
    static double rowHeight(const FigureRow &row);
    double figuresHeight() const;
    double titleHeight() const;
    QVector<LegendRow> legend() const;
    QVector<LegendRow> linesOf(const QVector<LegendRow> &rows) const;
    static QVector<PlacedRow> placedRows(const QVector<LegendRow> &rows, int rowsPerColumn, bool keepsGroups);
    QVector<PlacedRow> placedLegend(int *rowsPerColumn) const;

    void paintTitle(QPainter *painter) const;
    void paintScaleBar(QPainter *painter) const;
    void paintFigure(QPainter *painter, const KTPreviewModel::Figure &figure, const QPointF &corner) const;
    void paintName(QPainter *painter, const QString &name, const QRectF &area) const;
    void paintBarcode(QPainter *painter, const KTPreviewModel::Barcode &barcode, const QRectF &rect,
                      double figureTop) const;
    void paintDimensions(QPainter *painter, const KTPreviewModel::Figure &figure,
                         const QPointF &corner) const;
    void paintDimension(QPainter *painter, const QPointF &from, double length, double angle, double reach,
                        const QString &text) const;
    void paintLegend(QPainter *painter) const;
    void paintLegendRow(QPainter *painter, const LegendRow &row, const QPointF &corner) const;
    QRectF scaled(const QRectF &rect, const QPointF &corner) const;

    KTPreviewModel myModel;
    QFont myFont;
    /** Its lines. */
    QStringList myTitle;
    /** So many layout units of the product are one of the sheet. */
    double myScale;
};
