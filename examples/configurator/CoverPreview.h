#pragma once

#include <KTOrderDraft.h>

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QVector>
#include <QWidget>

/** Draws the opened cover of an order to scale, in the chosen cover colour, with its production barcodes. */
class CoverPreview : public QWidget
{
    Q_OBJECT
public:
    struct Barcode
    {
        QRectF place;
        QImage image;
    };
    /** Where things lie on the flat sheet, in layout units (0.1 mm); what is not there is null. */
    struct Spread
    {
        /** The sheet with its bleed; its corner is the origin. */
        QRectF total;
        QRectF back;
        QRectF spine;
        QRectF front;
        QVector<Barcode> barcodes;
    };

    explicit CoverPreview(QWidget *parent = nullptr);

    void setOrder(const KTOrderDraft &order);
    const Spread &spread() const { return mySpread; }

    /** Fills the rectangle; what a translucent colour lets through is a chequered ground. */
    static void fill(QPainter *painter, const QRectF &rect, const QColor &color);

    QSize sizeHint() const override { return {420, 320}; }
    QSize minimumSizeHint() const override { return {200, 150}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Spread mySpread;
    QColor myColor;
    /** The sizes, or why there is no drawing. */
    QString myCaption;
};
