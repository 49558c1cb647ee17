#pragma once

#include "KTPreviewModel.h"

#include <QPainter>
#include <QStringList>

#include <memory>

class QIODevice;
class QPdfWriter;

/** Writes previews as SVG, PNG or PDF, the last of which may have several sheets. */
class KTPreviewWriter
{
public:
    static constexpr int LEAST_IMAGE_WIDTH = 100;
    static constexpr int MAX_IMAGE_WIDTH = 8000;

    /** "svg", "png" and "pdf"; the first is the default. */
    static QStringList formats();

    /**
     * The device is open and outlives the writer; the title is that of the document. Without a width in
     * pixels images have six to the millimetre.
     */
    KTPreviewWriter(const QString &format, QIODevice *device, const QString &title,
                    std::optional<int> imageWidth = std::nullopt);
    ~KTPreviewWriter();

    /** Adds a sheet; false when it cannot be drawn. */
    [[nodiscard]] bool add(const KTPreviewModel &model);
    /** After the last sheet; false when it cannot be drawn. */
    [[nodiscard]] bool end();

private:
    Q_DISABLE_COPY(KTPreviewWriter)

    bool addSvg(const KTPreviewModel &model);
    bool addPng(const KTPreviewModel &model);
    bool addPdf(const KTPreviewModel &model);

    QString myFormat;
    QIODevice *myDevice;
    QString myTitle;
    std::optional<int> myImageWidth;
    std::unique_ptr<QIODevice> myPdfDevice;
    std::unique_ptr<QPdfWriter> myPdf;
    /** On the PDF, from the first sheet to the last. */
    QPainter myPainter;
};
