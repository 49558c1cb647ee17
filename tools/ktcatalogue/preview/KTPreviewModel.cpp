#include "KTPreviewModel.h"

#include "KTTerminalText.h"
#include "KTToolText.h"

#include <KTArithmetic.h>
#include <KTArticle.h>
#include <KTMillimeterText.h>

#include <QMap>

#include <algorithm>
#include <cmath>

using KTTerminalText::escaped;

namespace {

constexpr int COVER_PAGE = 0;

// The first kind that an article has is what its preview shows; any page is better than none.
constexpr KTPageTypeEnum COVER_KINDS[] = {
    KTPageTypeFullcover | KTPageTypeCromolinen | KTPageTypeLeather,
    KTPageTypeCalendarcoverfront | KTPageTypeCardfront,
};

using Page = KTArticle::Page;

QString millimeters(const QSizeF &size)
{
    return QStringLiteral("%1 × %2").arg(KTMillimeterText::text(size.width()),
                                         KTMillimeterText::text(size.height()));
}

bool isDrawable(double length, double minimum)
{
    return std::isfinite(length) && length >= minimum && length <= KTPreviewModel::MAX_LENGTH;
}

bool isDrawable(const QSize &size)
{
    return isDrawable(size.width(), KTPreviewModel::MIN_LENGTH)
        && isDrawable(size.height(), KTPreviewModel::MIN_LENGTH);
}

QString objectionTo(const QString &part, const QString &size)
{
    return KTToolText::tr("has a %1 of %2 mm; a preview shows sides from %3 to %4 mm")
        .arg(part, size, KTMillimeterText::text(KTPreviewModel::MIN_LENGTH),
             KTMillimeterText::text(KTPreviewModel::MAX_LENGTH));
}

/** What cannot be drawn of the page; empty for nothing. */
QString objectionTo(const Page &page)
{
    const QString kind = page.context.pageType().encode();
    if (!isDrawable(page.size.usableSize()))
        return objectionTo(KTToolText::tr("page '%1'").arg(kind), millimeters(page.size.usableSize()));
    const KTMargins bleed = page.size.bleedMargins();
    for (const int margin : {bleed.top(), bleed.bottom(), bleed.left(), bleed.right()}) {
        if (!isDrawable(margin, 0.0))
            return KTToolText::tr("has a bleed of %1 mm; a preview shows 0.0 to %2 mm")
                .arg(KTMillimeterText::text(margin), KTMillimeterText::text(KTPreviewModel::MAX_LENGTH));
    }
    const QSize slipcase = page.size.usableSlipcaseCoverSize();
    if (slipcase != QSize(-1, -1) && !isDrawable(slipcase))
        return objectionTo(KTToolText::tr("slipcase cover"), millimeters(slipcase));
    return QString();
}

KTPreviewModel::Panel panelOf(const Page &page, const QString &name, const QPointF &corner)
{
    KTPreviewModel::Panel panel {name, QRectF(corner, page.size.usableSize()), QRectF()};
    if (page.size.usableSlipcaseCoverSize().isValid())
        panel.slipcase = QRectF(corner + page.size.slipcaseTranslationPoint(),
                                QSizeF(page.size.usableSlipcaseCoverSize()));
    return panel;
}

/** The keyword of the type, or those of its parts. */
QString typeName(const KTPageType &type)
{
    if (type.value() == 0)
        return KTToolText::tr("page without type");
    const QString keyword = type.encode();
    return keyword.isEmpty() ? type.encodeCSV() : keyword;
}

/** "normalpage (left)", or without what the catalogue does not say. */
QString nameOf(const Page &page)
{
    const KTPageType type = page.context.pageType();
    const KTPageAlignment alignment = page.context.alignment();
    const QString name = typeName(type);
    return alignment.value() == 0 ? name : QStringLiteral("%1 (%2)").arg(name, alignment.encodeCSV());
}

KTPreviewModel::Figure figureOf(const Page &page)
{
    const QString name = nameOf(page);
    KTPreviewModel::Figure figure;
    figure.type = page.context.pageType();
    figure.name = name;
    figure.total = QRectF(QPointF(), page.size.totalSize());
    figure.panels = {panelOf(page, name, page.size.topLeftOffsetOfUsablePrintArea())};
    return figure;
}

/** Back, spine and front as they lie side by side; bleed is only on the outside. */
KTPreviewModel::Figure spreadOf(const Page &back, const Page &front, double spineWidth)
{
    const KTMargins backBleed = back.size.bleedMargins();
    const KTMargins frontBleed = front.size.bleedMargins();
    const double top = std::max(backBleed.top(), frontBleed.top());
    KTPreviewModel::Figure figure;
    figure.type = front.context.pageType();
    figure.name = KTToolText::tr("Cover");
    figure.panels = {panelOf(back, KTToolText::tr("Back"), QPointF(backBleed.left(), top))};
    const QRectF left = figure.panels.constFirst().usable;
    figure.panels.append(panelOf(front, KTToolText::tr("Front"), QPointF(left.right() + spineWidth, top)));
    const QRectF right = figure.panels.constLast().usable;
    figure.spine = QRectF(left.right(), top, spineWidth, std::max(left.height(), right.height()));
    const double height = std::max(left.bottom() + backBleed.bottom(), right.bottom() + frontBleed.bottom());
    figure.total = QRectF(0.0, 0.0, right.right() + frontBleed.right(), height);
    return figure;
}

const Page *findPage(const QVector<Page> &pages, KTPageTypeEnum kind, KTPageAlignmentEnum alignment)
{
    const auto found = std::find_if(pages.begin(), pages.end(), [=](const Page &page) {
        return page.context.pageType().matches(kind) && page.context.alignment().matches(alignment);
    });
    return found == pages.end() ? nullptr : &*found;
}

/** The sides of the cover; one that lies alone stands for the front. */
struct Cover
{
    const Page *back;
    const Page *front;
};

Cover coverOf(const QVector<Page> &pages)
{
    for (const KTPageTypeEnum kind : COVER_KINDS) {
        const auto any = static_cast<KTPageAlignmentEnum>(~0);
        const Page *const left = findPage(pages, kind, KTPageAlignmentLeft);
        const Page *const right = findPage(pages, kind, KTPageAlignmentRight);
        if (left && right)
            return {left, right};
        if (const Page *const page = findPage(pages, kind, any))
            return {nullptr, page};
    }
    return {nullptr, &pages.constFirst()};
}

/** The bounds of QRect are ints, so its far edges are off by one and may overflow. */
QRectF exactRect(const QRect &rect)
{
    return QRectF(rect.left(), rect.top(), double(rect.right()) - rect.left() + 1.0,
                  double(rect.bottom()) - rect.top() + 1.0);
}

/** By key, as QMap sorts them. */
QVector<KTPreviewModel::OptionGroup> groupsOf(const KTConfiguredArticleVariantList &options)
{
    const KTArticleVariants defaults = options.defaultVariants();
    QMap<QString, KTPreviewModel::OptionGroup> groups;
    for (const KTConfiguredArticleVariant &option : options) {
        KTPreviewModel::OptionGroup &group = groups[option.key()];
        if (group.options.isEmpty())
            group.name = option.keyName().isEmpty()
                ? escaped(option.key())
                : QStringLiteral("%1 (%2)").arg(escaped(option.keyName()), escaped(option.key()));
        const QString name = option.visibleName().isEmpty() ? option.value() : option.visibleName();
        group.options.append(
            {escaped(name), option.color().isValid() ? option.color() : QColor(Qt::transparent),
             defaults.value(option.key(), QString()) == option.value(), option.isNotAccountable()});
    }
    return groups.values().toVector();
}

void addSizes(KTPreviewModel *model, const Page &front, int pages)
{
    const auto add = [model](const QString &label, const QString &text) {
        model->sizes.append({label, text});
    };
    const KTPreviewModel::Figure &cover = model->figures.constFirst();
    const KTPreviewModel::Panel &first = cover.panels.constFirst();
    const KTPreviewModel::Panel &last = cover.panels.constLast();
    if (first.name != last.name && first.usable.size() == last.usable.size()) {
        add(KTToolText::tr("Back and front, each"), millimeters(first.usable.size()));
    } else {
        for (const KTPreviewModel::Panel &panel : cover.panels)
            add(panel.name, millimeters(panel.usable.size()));
    }
    if (!cover.spine.isEmpty())
        add(KTToolText::tr("Spine at %1 pages").arg(pages), KTMillimeterText::text(cover.spine.width()));
    if (cover.additionalSpineWidth > 0.0)
        add(KTToolText::tr("added on each side"), KTMillimeterText::text(cover.additionalSpineWidth));
    add(KTToolText::tr("With bleed"), millimeters(cover.total.size()));
    const KTMargins bleed = front.size.bleedMargins();
    add(KTToolText::tr("Bleed top, bottom"),
        QStringLiteral("%1, %2").arg(KTMillimeterText::text(bleed.top()),
                                     KTMillimeterText::text(bleed.bottom())));
    add(KTToolText::tr("Bleed left, right"),
        QStringLiteral("%1, %2").arg(KTMillimeterText::text(bleed.left()),
                                     KTMillimeterText::text(bleed.right())));
    if (!last.slipcase.isEmpty())
        add(KTToolText::tr("Slipcase cover"), millimeters(last.slipcase.size()));
}

/** The other figures, and what lies on all of them. */
void addOtherSizes(KTPreviewModel *model, bool hasCover)
{
    for (const KTPreviewModel::Figure &figure : qAsConst(model->figures)) {
        const KTPreviewModel::Panel &panel = figure.panels.constFirst();
        if (!hasCover || &figure != &model->figures.constFirst()) {
            model->sizes.append({figure.name, millimeters(panel.usable.size())});
            if (figure.total.size() != panel.usable.size())
                model->sizes.append({KTToolText::tr("with bleed"), millimeters(figure.total.size())});
            if (!panel.slipcase.isEmpty())
                model->sizes.append({KTToolText::tr("slipcase cover"), millimeters(panel.slipcase.size())});
        }
        for (const KTPreviewModel::Barcode &barcode : figure.barcodes)
            model->sizes.append({KTToolText::tr("Barcode on page %1").arg(barcode.pageText()),
                                 millimeters(barcode.rect.size())});
    }
}

/** Puts each barcode on the figure of its page, or into the notes. */
void addBarcodes(KTPreviewModel *model, const KTArticle &article, int pages)
{
    const auto inner = std::find_if(model->figures.begin(), model->figures.end(), [](const auto &figure) {
        return figure.type.matches(KTPageTypeNormalpage);
    });
    for (const KTBarcodeDefinition &barcode : article.barcodes()) {
        const int pageNr = barcode.pageNr();
        const auto note = [&](const QString &reason) {
            model->notes.append(KTToolText::tr("Barcode on page %1: %2").arg(pageNr).arg(reason));
        };
        if (pageNr < COVER_PAGE || pageNr > std::max(COVER_PAGE, pages)) {
            note(KTToolText::tr("no such page"));
            continue;
        }
        if (pageNr != COVER_PAGE && inner == model->figures.end()) {
            note(KTToolText::tr("its size is not known"));
            continue;
        }
        KTPreviewModel::Figure &figure = pageNr == COVER_PAGE ? model->figures.first() : *inner;
        const QRectF rect = exactRect(barcode.rect()).translated(figure.panels.constFirst().usable.topLeft());
        if (!figure.total.contains(rect)) {
            note(KTToolText::tr("outside, at %1, %2")
                     .arg(KTMillimeterText::text(barcode.rect().left()),
                          KTMillimeterText::text(barcode.rect().top())));
            continue;
        }
        const auto known = std::find_if(figure.barcodes.begin(), figure.barcodes.end(),
                                        [&](const auto &other) { return other.rect == rect; });
        if (known == figure.barcodes.end())
            figure.barcodes.append({rect, {pageNr}, barcode.image()});
        else
            known->pageNrs.append(pageNr);
    }
}

/** Adds the sizes that are no part of the cover. */
void addOtherFigures(KTPreviewModel *model, const QVector<Page> &pages, const Cover &cover)
{
    int left = 0;
    for (const Page &page : pages) {
        if (&page == cover.back || &page == cover.front)
            continue;
        const QString objection = objectionTo(page);
        if (!objection.isEmpty())
            model->notes.append(KTToolText::tr("%1: the article %2").arg(nameOf(page), objection));
        else if (model->figures.size() < KTPreviewModel::MAX_FIGURES)
            model->figures.append(figureOf(page));
        else
            ++left;
    }
    if (left > 0)
        model->notes.append(KTToolText::tr("%1 more page sizes").arg(left));
}

} // namespace

QString KTPreviewModel::Barcode::pageText() const
{
    QVector<int> sorted = pageNrs;
    std::sort(sorted.begin(), sorted.end());
    QStringList numbers;
    for (const int pageNr : qAsConst(sorted))
        numbers.append(QString::number(pageNr));
    return numbers.join(QStringLiteral(", "));
}

std::optional<KTPreviewModel> KTPreviewModel::create(const KTArticle &article, int pages, QString *objection,
                                                     const std::optional<KTPageType> &only)
{
    if (article.pages().isEmpty()) {
        *objection = KTToolText::tr("has no page sizes");
        return std::nullopt;
    }
    const Cover cover = coverOf(article.pages());
    const Page &front = *cover.front;
    *objection = cover.back ? objectionTo(*cover.back) : QString();
    if (objection->isEmpty())
        *objection = objectionTo(front);
    if (!objection->isEmpty())
        return std::nullopt;

    KTPreviewModel model;
    if (cover.back) {
        const double width = article.hasSpine()
            ? article.spine().spineWidth(static_cast<unsigned int>(std::max(0, pages))).layoutUnits()
            : 0.0;
        if (!isDrawable(width, 0.0)) {
            *objection = KTToolText::tr("has a spine of %1 mm; a preview shows 0.0 to %2 mm")
                             .arg(KTMillimeterText::text(width), KTMillimeterText::text(MAX_LENGTH));
            return std::nullopt;
        }
        model.figures.append(spreadOf(*cover.back, front, width));
        const double additional
            = article.hasSpine() ? article.spine().additionalSpineWidth().layoutUnits() : 0.0;
        if (additional > 0.0 && additional * 2.0 < width)
            model.figures[0].additionalSpineWidth = additional;
    } else {
        model.figures.append(figureOf(front));
    }
    addOtherFigures(&model, article.pages(), cover);

    model.title
        = QStringLiteral("%1  %2").arg(article.articleId().toString(), escaped(article.name())).trimmed();
    model.subtitle = QStringLiteral("%1, %2").arg(pages == 1 ? KTToolText::tr("1 page")
                                                             : KTToolText::tr("%1 pages").arg(pages),
                                                  typeName(front.context.pageType()));
    addBarcodes(&model, article, pages);
    const auto isLeftOut
        = [&only](const Figure &figure) { return only && !figure.type.matches(only->value()); };
    const bool hasCover = !isLeftOut(model.figures.constFirst());
    model.figures.erase(std::remove_if(model.figures.begin(), model.figures.end(), isLeftOut),
                        model.figures.end());
    if (model.figures.isEmpty()) {
        *objection = KTToolText::tr("has no page of type '%1'").arg(only->encodeCSV());
        return std::nullopt;
    }
    if (hasCover)
        addSizes(&model, front, pages);
    addOtherSizes(&model, hasCover);
    model.optionGroups = groupsOf(article.options());
    return model;
}
