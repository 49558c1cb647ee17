#include "ConfiguratorWindow.h"

#include "CoverPreview.h"

#include <KTCatalogue.h>
#include <KTMillimeterText.h>

#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMap>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QSplitter>

#include <algorithm>

namespace {

constexpr int ARTICLE_ID_ROLE = Qt::UserRole;
/** More page counts than a product can have are a mistake of the catalogue, and no list to choose from. */
constexpr int MAX_PAGE_COUNTS = 10000;
constexpr int SWATCH_SIDE = 16;
constexpr int MARGIN = 12;

/** A name of the catalogue on a button or frame, where "&" would mark a shortcut. */
QString caption(const QString &name)
{
    return name.simplified().replace(QLatin1Char('&'), QStringLiteral("&&"));
}

/** The swatch of an option; an empty one of the same size where it has no colour. */
QIcon swatch(const QColor &color)
{
    QPixmap pixmap(SWATCH_SIDE, SWATCH_SIDE);
    pixmap.fill(Qt::transparent);
    if (color.isValid()) {
        QPainter painter(&pixmap);
        CoverPreview::fill(&painter, pixmap.rect(), color);
        painter.setPen(Qt::gray);
        painter.drawRect(0, 0, SWATCH_SIDE - 1, SWATCH_SIDE - 1);
    }
    return pixmap;
}

/** The name of an option's key, or the key itself where the catalogue gives none. */
QString keyCaption(const KTConfiguredArticleVariant &option)
{
    return option.keyName().isEmpty() ? option.key() : option.keyName();
}

/** A text of the catalogue in one line, which is cut off rather than making the window wider. */
QLabel *createLine()
{
    auto *line = new QLabel;
    line->setTextFormat(Qt::PlainText);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    line->setMinimumWidth(1);
    return line;
}

} // namespace

ConfiguratorWindow::ConfiguratorWindow(KTCatalogue *catalogue, QWidget *parent)
    : QWidget(parent)
    , myCatalogue(catalogue)
{
    setWindowTitle(tr("Configurator"));
    auto *splitter = new QSplitter;
    splitter->addWidget(createArticlePane());
    splitter->addWidget(createOrderPane());
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({320, 680});
    splitter->setChildrenCollapsible(false);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(splitter);

    listArticles();
    connect(myArticleList->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &ConfiguratorWindow::showCurrentArticle);
    if (myCatalogue->articleIds().isEmpty())
        showAnswer(tr("The catalogue has no articles."));
    else
        filterArticles(QString());
}

QWidget *ConfiguratorWindow::createArticlePane()
{
    myFilter = new QLineEdit;
    myFilter->setPlaceholderText(tr("Number or name"));
    myFilter->setClearButtonEnabled(true);
    auto *label = new QLabel(tr("&Articles"));
    label->setBuddy(myFilter);

    myFilteredArticles.setSourceModel(&myArticles);
    myFilteredArticles.setFilterCaseSensitivity(Qt::CaseInsensitive);
    myArticleList = new QListView;
    myArticleList->setAccessibleName(tr("Found articles"));
    myArticleList->setModel(&myFilteredArticles);
    myArticleList->setEditTriggers(QAbstractItemView::NoEditTriggers);
    myArticleList->setUniformItemSizes(true);

    connect(myFilter, &QLineEdit::textChanged, this, &ConfiguratorWindow::filterArticles);
    connect(myFilter, &QLineEdit::returnPressed, myArticleList, qOverload<>(&QWidget::setFocus));

    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(myFilter);
    layout->addWidget(myArticleList);
    return pane;
}

QWidget *ConfiguratorWindow::createOrderPane()
{
    myTitle = createLine();
    QFont font = myTitle->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    font.setBold(true);
    myTitle->setFont(font);

    myOptions = new QScrollArea;
    myOptions->setAccessibleName(tr("Options"));
    myOptions->setWidgetResizable(true);
    myOptions->setFrameShape(QFrame::NoFrame);
    myCover = new CoverPreview;
    auto *middle = new QHBoxLayout;
    middle->addWidget(myOptions, 2);
    middle->addWidget(myCover, 3);

    myPages = new QComboBox;
    myPages->setModel(&myPageCounts);
    // The widest text is that of the highest count; no need to measure them all.
    myPages->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    myPages->setMinimumContentsLength(12);
    mySpine = createLine();
    myState = createLine();
    myOrderText = new QLineEdit;
    myOrderText->setReadOnly(true);
    myMCF = new QLineEdit;
    myMCF->setToolTip(tr("A saved choice is taken over when it is entered here."));
    myNotice = new QPlainTextEdit;
    myNotice->setReadOnly(true);
    myNotice->setTabChangesFocus(true);
    myNotice->setFixedHeight(3 * myNotice->fontMetrics().lineSpacing());
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    auto *pages = new QHBoxLayout;
    pages->addWidget(myPages);
    pages->addSpacing(MARGIN);
    pages->addWidget(mySpine);
    auto *pagesLabel = new QLabel(tr("&Pages:"));
    pagesLabel->setBuddy(myPages);
    form->addRow(pagesLabel, pages);
    form->addRow(QString(), myState);
    form->addRow(tr("&Order text:"), myOrderText);
    form->addRow(tr("&MCF:"), myMCF);
    form->addRow(tr("&Notice:"), myNotice);

    // Only what the user does: what the window shows itself is no choice.
    connect(myPages, qOverload<int>(&QComboBox::activated), this,
            [this](int row) { showAnswer(refusalText(myOrder.setPages(myPageCounts.pagesAtIndex(row)))); });
    connect(myMCF, &QLineEdit::editingFinished, this, &ConfiguratorWindow::takeOverMCF);

    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(MARGIN, 0, 0, 0);
    layout->setSpacing(MARGIN);
    layout->addWidget(myTitle);
    layout->addLayout(middle, 1);
    layout->addLayout(form);
    return pane;
}

void ConfiguratorWindow::listArticles()
{
    for (const int articleId : myCatalogue->articleIds()) {
        const QString name = myCatalogue->article(articleId).value_or(KTArticle()).name();
        auto *item = new QStandardItem(QStringLiteral("%1  %2").arg(articleId).arg(name.simplified()));
        item->setData(articleId, ARTICLE_ID_ROLE);
        myArticles.appendRow(item);
    }
}

QModelIndex ConfiguratorWindow::findArticle(int articleId) const
{
    return myFilteredArticles
        .match(myFilteredArticles.index(0, 0), ARTICLE_ID_ROLE, articleId, 1, Qt::MatchExactly)
        .value(0);
}

void ConfiguratorWindow::filterArticles(const QString &text)
{
    myFilteredArticles.setFilterFixedString(text);
    // The article that is shown stays current where it is found, so that nothing that was chosen is lost.
    const QModelIndex shown = findArticle(myOrder.article().articleId().id());
    myArticleList->setCurrentIndex(shown.isValid() ? shown : myFilteredArticles.index(0, 0));
}

void ConfiguratorWindow::chooseArticle(const QString &number)
{
    myFilter->clear();
    const QModelIndex found = findArticle(number.toInt());
    if (found.isValid())
        myArticleList->setCurrentIndex(found);
    else
        showAnswer(tr("The catalogue has no article '%1'.").arg(number));
}

void ConfiguratorWindow::showCurrentArticle()
{
    const int articleId = myArticleList->currentIndex().data(ARTICLE_ID_ROLE).toInt();
    if (articleId <= 0 || myOrder.article().articleId() == articleId)
        return;
    const KTArticle article = myCatalogue->article(articleId).value_or(KTArticle());
    myOrder = KTOrderDraft(article);
    myTitle->setText(QStringLiteral("%1  %2").arg(articleId).arg(article.name().simplified()));
    showOptions();

    QStringList notices {myCatalogue->error().text};
    KTPageCountOrganization counts = article.pageCounts();
    if (counts.numberOfPackages() > MAX_PAGE_COUNTS) {
        notices.append(tr("Of %1 page counts only the least one is offered.").arg(counts.numberOfPackages()));
        counts = counts.clone(true);
    }
    myPageCounts.setPageOrganization(counts, article.articleClass().hasValue(KTArticleClassPictureBox));
    notices.append(refusalText(myOrder.setPages(counts.minPages())));
    showAnswer(notices.join(QLatin1Char('\n')).trimmed());
}

void ConfiguratorWindow::showOptions()
{
    // In the order of the keys, as in the order text.
    QMap<QString, KTConfiguredArticleVariantList> groups;
    for (const KTConfiguredArticleVariant &option : myOrder.article().options())
        groups[option.key()].append(option);

    myOptionButtons.clear();
    auto *pane = new QWidget;
    auto *layout = new QVBoxLayout(pane);
    layout->setContentsMargins(0, 0, MARGIN, 0);
    for (const KTConfiguredArticleVariantList &options : qAsConst(groups)) {
        // Radio buttons with the same parent exclude each other.
        auto *box = new QGroupBox(caption(keyCaption(options.constFirst())));
        layout->addWidget(box);
        auto *column = new QVBoxLayout(box);
        const bool hasColors = std::any_of(options.begin(), options.end(),
                                           [](const auto &option) { return option.color().isValid(); });
        for (const KTConfiguredArticleVariant &option : options) {
            const QString name = option.visibleName().isEmpty() ? option.value() : option.visibleName();
            auto *button
                = new QRadioButton(caption(option.isNotAccountable() ? tr("%1 (free)").arg(name) : name));
            if (hasColors)
                button->setIcon(swatch(option.color()));
            connect(button, &QRadioButton::clicked, this, [this, option] {
                showAnswer(refusalText(myOrder.choose(option.key(), option.value())));
            });
            column->addWidget(button);
            myOptionButtons.append({option, button});
        }
    }
    if (groups.isEmpty())
        layout->addWidget(new QLabel(tr("There is nothing to choose.")));
    layout->addStretch();
    myOptions->setWidget(pane);
    // Qt asks for it where the area is already seen.
    pane->show();

    // The keyboard reaches the buttons here, although they are newer than what stands below.
    QWidget *previous = myOptions;
    for (const auto &[option, button] : qAsConst(myOptionButtons)) {
        setTabOrder(previous, button);
        previous = button;
    }
}

void ConfiguratorWindow::showOrder()
{
    const KTArticle &article = myOrder.article();
    for (const auto &[option, button] : qAsConst(myOptionButtons)) {
        if (myOrder.choice().value(option.key(), QString()) == option.value())
            button->setChecked(true);
    }
    myPages->setCurrentIndex(myOrder.pages() ? myPageCounts.indexForPages(*myOrder.pages()) : -1);
    if (article.hasSpine() && myOrder.pages()) {
        const KTDistance width = article.spine().spineWidth(static_cast<unsigned int>(*myOrder.pages()));
        mySpine->setText(tr("Spine: %1 mm").arg(KTMillimeterText::text(width.layoutUnits())));
    } else {
        mySpine->setText(tr("Spine: none"));
    }
    const QStringList open = openChoices();
    myState->setText(open.isEmpty() ? tr("The order is complete.")
                                    : tr("Still open: %1").arg(open.join(QStringLiteral(", "))));
    myOrderText->setText(myOrder.orderText());
    myMCF->setText(myOrder.mcf());
    for (QLineEdit *text : {myOrderText, myMCF})
        text->setCursorPosition(0);
    myCover->setOrder(myOrder);
}

QStringList ConfiguratorWindow::openChoices() const
{
    if (!myOrder.article().articleId().isValid())
        return {tr("article")};
    QStringList names;
    for (const QString &key : myOrder.openKeys())
        names.append(keyCaption(myOrder.article().options().variantByKey(key)).simplified());
    if (!myOrder.pages())
        names.append(tr("page count"));
    return names;
}

void ConfiguratorWindow::takeOverMCF()
{
    // The field is also done with when it is merely left.
    if (!myMCF->isModified())
        return;
    QStringList texts;
    for (const KTOrderRefusal &refusal : myOrder.readMCF(myMCF->text()))
        texts.append(refusalText(refusal));
    showAnswer(texts.join(QLatin1Char('\n')));
}

void ConfiguratorWindow::showAnswer(const QString &notice)
{
    myNotice->setPlainText(notice);
    showOrder();
}

QString ConfiguratorWindow::refusalText(const std::optional<KTOrderRefusal> &refusal) const
{
    return refusal ? tr("Article %1 %2.").arg(myOrder.article().articleId().toString(), refusal->toString())
                   : QString();
}
