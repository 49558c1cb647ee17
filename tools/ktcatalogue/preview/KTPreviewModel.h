#pragma once

#include <KTPageType.h>

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

class KTArticle;

/** What a preview draws of an article at one page count; lengths in layout units (0.1 mm), y downwards. */
struct KTPreviewModel
{
    /** Longer sides are refused: they are mistakes, and would leave nothing to be seen of the rest. */
    static constexpr int MAX_LENGTH = 50000;
    static constexpr int MIN_LENGTH = 10;
    /** More would leave no room for any; the rest stands in the notes. */
    static constexpr int MAX_FIGURES = 24;

    /** One side of a cover, or a page. */
    struct Panel
    {
        QString name;
        QRectF usable;
        /** Where the slipcase cover lies on it; null without one. */
        QRectF slipcase;
    };
    struct Barcode
    {
        QRectF rect;
        /** The pages that have one in this place, ascending. */
        QVector<int> pageNrs;
        /** "12, 14" */
        QString pageText() const;
        /** Null when there is none at its place. */
        QImage image;
    };
    /** A flat sheet with its bleed; its corner is the origin. */
    struct Figure
    {
        /** The kind of page. */
        KTPageType type;
        /** Names the figure among those of the article: "Cover", "normalpage (left)". */
        QString name;
        QRectF total;
        QVector<Panel> panels;
        /** Between two panels; as wide as they lie apart. */
        QRectF spine;
        /** The additional width on each side of the spine. */
        double additionalSpineWidth = 0.0;
        QVector<Barcode> barcodes;
    };
    struct Option
    {
        QString name;
        /** Transparent for an option without a swatch. */
        QColor color;
        bool isPreselected;
        bool isNotCharged;
    };
    struct OptionGroup
    {
        QString name;
        QVector<Option> options;
    };

    /**
     * The cover first, then every other page size in the order of the catalogue. Positions of barcodes count
     * from the corner of the usable area, on a cover from that of its left side; those of other pages stand
     * on the figure of the inside page. With kinds of pages, only figures of these. Nothing when there is no
     * such figure, or the cover cannot be drawn; the objection then says why, as a predicate of the article.
     */
    static std::optional<KTPreviewModel> create(const KTArticle &article, int pages, QString *objection,
                                                const std::optional<KTPageType> &only = std::nullopt);

    QString title;
    QString subtitle;
    QVector<Figure> figures;
    /** Sizes as label and text. */
    QVector<QPair<QString, QString>> sizes;
    /** What is not drawn, and why. */
    QStringList notes;
    QVector<OptionGroup> optionGroups;
};
