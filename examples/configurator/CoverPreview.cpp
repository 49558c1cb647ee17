#include "CoverPreview.h"

#include <KTMillimeterText.h>

#include <QPainter>
#include <QTransform>

#include <algorithm>

namespace {

// In layout units. Sides beyond these are mistakes of the catalogue, and would leave nothing to be seen.
constexpr double MIN_SIDE = 10.0;
constexpr double MAX_LENGTH = 50000.0;

constexpr int MARGIN = 12;
constexpr int CAPTION_LINES = 4;
constexpr int CHEQUER = 4;
constexpr int OPAQUE = 255;
constexpr int MIDDLE_GRAY = 128;

constexpr KTPageTypeEnum COVER_KINDS = KTPageTypeFullcover | KTPageTypeCromolinen | KTPageTypeLeather
    | KTPageTypeCalendarcoverfront | KTPageTypeCardfront;
constexpr auto ANYWHERE = static_cast<KTPageAlignmentEnum>(~0);

/** The cover's side that lies there; null when there is none. */
const KTPageSizeSpec *findSide(const KTArticle &article, KTPageAlignmentEnum alignment)
{
    for (const KTArticle::Page &page : article.pages()) {
        if (page.context.matchesWith(KTPageContext(COVER_KINDS, alignment)))
            return &page.size;
    }
    return nullptr;
}

bool isDrawable(const KTPageSizeSpec &side)
{
    const QSize size = side.usableSize();
    const KTMargins bleed = side.bleedMargins();
    const auto [shortest, longest] = std::minmax({size.width(), size.height()});
    const auto [least, most] = std::minmax({bleed.top(), bleed.bottom(), bleed.left(), bleed.right()});
    return shortest >= MIN_SIDE && longest <= MAX_LENGTH && least >= 0 && most <= MAX_LENGTH;
}

/** Back, spine and front side by side, or a side that lies alone; null when there are no such sizes. */
CoverPreview::Spread spreadOf(const KTArticle &article, int pages)
{
    if (article.pages().isEmpty())
        return {};
    const KTPageSizeSpec *back = findSide(article, KTPageAlignmentLeft);
    const KTPageSizeSpec *front = findSide(article, KTPageAlignmentRight);
    const bool isSpread = back && front;
    if (!isSpread) {
        const KTPageSizeSpec *side = findSide(article, ANYWHERE);
        back = front = side ? side : &article.pages().constFirst().size;
    }
    const double spineWidth = isSpread && article.hasSpine()
        ? article.spine().spineWidth(static_cast<unsigned int>(std::max(0, pages))).layoutUnits()
        : 0.0;
    const bool hasDrawableSpine = spineWidth >= 0.0 && spineWidth <= MAX_LENGTH;
    if (!isDrawable(*back) || !isDrawable(*front) || !hasDrawableSpine)
        return {};

    const KTMargins left = back->bleedMargins();
    const KTMargins right = front->bleedMargins();
    const QPointF corner(left.left(), std::max(left.top(), right.top()));
    CoverPreview::Spread spread;
    spread.front = QRectF(corner, front->usableSize());
    if (isSpread) {
        spread.back = QRectF(corner, back->usableSize());
        spread.spine = QRectF(spread.back.topRight(), QSizeF(spineWidth, spread.back.height()));
        spread.front.moveLeft(spread.spine.right());
    }
    const double bottom
        = std::max(spread.back.bottom() + left.bottom(), spread.front.bottom() + right.bottom());
    spread.total = QRectF(0.0, 0.0, spread.front.right() + right.right(), bottom);

    for (const KTBarcodeDefinition &barcode : article.barcodes().barcodesOnPage(0)) {
        // In doubles, because the width of a QRect may be more than an int.
        const QRectF place(corner + barcode.rect().topLeft(),
                           corner + barcode.rect().bottomRight() + QPointF(1.0, 1.0));
        if (spread.total.contains(place))
            spread.barcodes.append({place, barcode.image()});
    }
    return spread;
}

QString captionOf(const CoverPreview::Spread &spread)
{
    QStringList texts;
    const auto add = [&texts](const QString &name, const QRectF &part) {
        if (!part.isEmpty())
            texts.append(QStringLiteral("%1 %2").arg(name, KTMillimeterText::text(part.size().toSize())));
    };
    add(CoverPreview::tr("Back"), spread.back);
    add(CoverPreview::tr("Spine"), spread.spine);
    add(CoverPreview::tr("Front"), spread.front);
    add(CoverPreview::tr("With bleed"), spread.total);
    return texts.join(QLatin1Char('\n'));
}

} // namespace

CoverPreview::CoverPreview(QWidget *parent)
    : QWidget(parent)
{
    setAccessibleName(tr("Cover"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void CoverPreview::setOrder(const KTOrderDraft &order)
{
    const KTArticle &article = order.article();
    mySpread = spreadOf(article, order.pages().value_or(article.pageCounts().minPages()));

    const QString key = KTArticleVariants::coverColorKeyName();
    const KTArticleVariants chosen(key, order.choice().value(key, QString()));
    const QColor color = article.options().variant(chosen).color();
    myColor = color.isValid() ? color : QColor(Qt::white);

    if (!mySpread.total.isEmpty())
        myCaption = captionOf(mySpread);
    else if (article.pages().isEmpty())
        myCaption = tr("The catalogue gives no page sizes.");
    else
        myCaption = tr("The sizes in the catalogue are too small or too large to be drawn.");
    setAccessibleDescription(myCaption);
    update();
}

void CoverPreview::fill(QPainter *painter, const QRectF &rect, const QColor &color)
{
    if (color.alpha() < OPAQUE) {
        QImage chequers(2 * CHEQUER, 2 * CHEQUER, QImage::Format_RGB32);
        chequers.fill(Qt::white);
        QPainter squares(&chequers);
        squares.fillRect(0, 0, CHEQUER, CHEQUER, Qt::lightGray);
        squares.fillRect(CHEQUER, CHEQUER, CHEQUER, CHEQUER, Qt::lightGray);
        squares.end();
        painter->fillRect(rect, QBrush(chequers));
    }
    painter->fillRect(rect, color);
}

void CoverPreview::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QRectF room = QRectF(rect()).adjusted(MARGIN, MARGIN, -MARGIN, -MARGIN);
    if (mySpread.total.isEmpty()) {
        painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, myCaption);
        return;
    }

    // Only the rectangles are scaled, so that lines and texts look the same on every cover.
    const QSizeF sheet = mySpread.total.size();
    const double captionHeight = CAPTION_LINES * fontMetrics().lineSpacing() + MARGIN;
    const double scale = std::max(
        0.0, std::min(room.width() / sheet.width(), (room.height() - captionHeight) / sheet.height()));
    QTransform transform = QTransform::fromScale(scale, scale);
    transform
        *= QTransform::fromTranslate(room.center().x() - sheet.width() * scale / 2.0,
                                     room.center().y() - (sheet.height() * scale + captionHeight) / 2.0);
    const QRectF total = transform.mapRect(mySpread.total);
    const bool isDark = myColor.alpha() > MIDDLE_GRAY && qGray(myColor.rgb()) < MIDDLE_GRAY;
    const QColor ink = isDark ? Qt::white : Qt::black;

    fill(&painter, total, myColor);
    // What lies outside of the dashes is cut off; between them is the spine.
    const auto drawSide = [&](const QRectF &side, const QString &name) {
        painter.setPen(QPen(ink, 1.0, Qt::DashLine));
        painter.drawRect(side);
        painter.setPen(ink);
        painter.drawText(side, Qt::AlignCenter, name);
    };
    if (!mySpread.back.isNull())
        drawSide(transform.mapRect(mySpread.back), tr("Back"));
    drawSide(transform.mapRect(mySpread.front), tr("Front"));
    for (const Barcode &barcode : qAsConst(mySpread.barcodes)) {
        const QRectF place = transform.mapRect(barcode.place);
        painter.fillRect(place, Qt::white);
        painter.drawImage(place, barcode.image);
    }

    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(total);
    painter.drawText(QRectF(room.left(), total.bottom() + MARGIN, room.width(), captionHeight),
                     Qt::AlignHCenter | Qt::AlignTop, myCaption);
}
