#include "KTPreviewWriter.h"

#include "KTMakingTime.h"
#include "KTPreviewPainter.h"

#include <KTQtTypes.h>

#include <QHash>
#include <QImage>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace {

/** At this resolution a dot is a layout unit, so vector formats need no scaling. */
constexpr int LAYOUT_UNITS_PER_INCH = 254;
constexpr int LAYOUT_UNITS_PER_MILLIMETER = 10;
constexpr int IMAGE_DOTS_PER_MILLIMETER = 6;

const QString SVG = QStringLiteral("svg");
const QString PNG = QStringLiteral("png");
const QString PDF = QStringLiteral("pdf");

bool paintOn(QPaintDevice *device, const KTPreviewPainter &preview, double scale)
{
    QPainter painter;
    if (!painter.begin(device))
        return false;
    painter.scale(scale, scale);
    preview.paint(&painter);
    return painter.end();
}

/** Puts the date asked for in place of the present one, which Qt writes in one piece with its label. */
class DatedDevice : public QIODevice
{
public:
    DatedDevice(QIODevice *device, const QByteArray &date)
        : myDevice(device)
        , myDate(date)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 length) override
    {
        static const QByteArray LABEL = "/CreationDate (D:";
        QByteArray bytes(data, static_cast<KTSize>(length));
        const KTSize place = myDate.isEmpty() ? -1 : bytes.indexOf(LABEL);
        if (place >= 0) {
            bytes.replace(place + LABEL.size(), myDate.size(), myDate);
            myDate.clear();
        }
        return myDevice->write(bytes);
    }

private:
    QIODevice *myDevice;
    QByteArray myDate;
};

} // namespace

QStringList KTPreviewWriter::formats()
{
    return {SVG, PNG, PDF};
}

KTPreviewWriter::KTPreviewWriter(const QString &format, QIODevice *device, const QString &title,
                                 std::optional<int> imageWidth)
    : myFormat(format)
    , myDevice(device)
    , myTitle(title)
    , myImageWidth(imageWidth)
{
}

KTPreviewWriter::~KTPreviewWriter() = default;

bool KTPreviewWriter::add(const KTPreviewModel &model)
{
    if (myFormat == PDF)
        return addPdf(model);
    return myFormat == PNG ? addPng(model) : addSvg(model);
}

bool KTPreviewWriter::end()
{
    return myFormat != PDF || myPainter.end();
}

bool KTPreviewWriter::addSvg(const KTPreviewModel &model)
{
    const KTPreviewPainter preview(model);
    QSvgGenerator generator;
    generator.setOutputDevice(myDevice);
    generator.setResolution(LAYOUT_UNITS_PER_INCH);
    generator.setSize(preview.sheetSize());
    generator.setViewBox(QRect(QPoint(), preview.sheetSize()));
    // Qt writes the title as it is.
    generator.setTitle(myTitle.toHtmlEscaped());
    return paintOn(&generator, preview, 1.0);
}

bool KTPreviewWriter::addPng(const KTPreviewModel &model)
{
    const KTPreviewPainter preview(model);
    const QSize sheet = preview.sheetSize();
    const double scale = myImageWidth ? double(*myImageWidth) / sheet.width()
                                      : double(IMAGE_DOTS_PER_MILLIMETER) / LAYOUT_UNITS_PER_MILLIMETER;
    QImage image(sheet * scale, QImage::Format_RGB32);
    // The last row of dots may be covered in part only.
    image.fill(Qt::white);
    const int dotsPerMeter = qRound(scale * LAYOUT_UNITS_PER_MILLIMETER * 1000);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    image.setText(QStringLiteral("Title"), myTitle);
    return paintOn(&image, preview, scale) && image.save(myDevice, "PNG");
}

bool KTPreviewWriter::addPdf(const KTPreviewModel &model)
{
    const KTPreviewPainter preview(model);
    const QPageSize sheet(QSizeF(preview.sheetSize()) / LAYOUT_UNITS_PER_MILLIMETER, QPageSize::Millimeter,
                          QString(), QPageSize::ExactMatch);
    const bool isFirst = !myPdf;
    if (isFirst) {
        const std::optional<QDateTime> made = KTMakingTime::demanded();
        const QByteArray date
            = made ? made->toString(QStringLiteral("yyyyMMddhhmmss")).toLatin1() : QByteArray();
        if (made) {
            // Fonts are written in the order of a hash table. In UTC, Qt's date is as long as the other one.
            qSetGlobalQHashSeed(0);
            qputenv("TZ", "UTC");
        }
        myPdfDevice = std::make_unique<DatedDevice>(myDevice, date);
        myPdf = std::make_unique<QPdfWriter>(myPdfDevice.get());
        myPdf->setResolution(LAYOUT_UNITS_PER_INCH);
        myPdf->setTitle(myTitle);
    }
    myPdf->setPageSize(sheet);
    myPdf->setPageMargins(QMarginsF());
    if (!(isFirst ? myPainter.begin(myPdf.get()) : myPdf->newPage()))
        return false;
    preview.paint(&myPainter);
    return true;
}
