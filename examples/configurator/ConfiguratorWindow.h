#pragma once

#include <KTOrderDraft.h>
#include <KTPageCountOrganizationListModel.h>

#include <QPair>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QVector>
#include <QWidget>

#include <optional>

class CoverPreview;
class KTCatalogue;
class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QPlainTextEdit;
class QRadioButton;
class QScrollArea;

/**
 * The window in which a product is configured: on the left the articles of a catalogue, on the right one of
 * them with its options, page counts, cover and order texts.
 *
 * What is chosen is in the order alone. Each change goes to the order first, and then the window shows what
 * the order has become.
 */
class ConfiguratorWindow : public QWidget
{
    Q_OBJECT
public:
    /** Shows the first article. The catalogue must live longer than the window. */
    explicit ConfiguratorWindow(KTCatalogue *catalogue, QWidget *parent = nullptr);

    /** Says so in the window when there is no article with the number. */
    void chooseArticle(const QString &number);

private:
    QWidget *createArticlePane();
    QWidget *createOrderPane();
    void listArticles();
    /** Invalid for one that the filter does not let through. */
    QModelIndex findArticle(int articleId) const;
    void filterArticles(const QString &text);
    void showCurrentArticle();
    void showOptions();
    /** Shows all that depends on what is chosen. */
    void showOrder();
    QStringList openChoices() const;

    void takeOverMCF();
    /** Shows what has become of the order, and what there is to say about it. */
    void showAnswer(const QString &notice);
    /** Empty for none. */
    QString refusalText(const std::optional<KTOrderRefusal> &refusal) const;

    KTCatalogue *myCatalogue;
    KTOrderDraft myOrder;
    QStandardItemModel myArticles;
    QSortFilterProxyModel myFilteredArticles;
    KTPageCountOrganizationListModel myPageCounts;
    QVector<QPair<KTConfiguredArticleVariant, QRadioButton *>> myOptionButtons;

    QLineEdit *myFilter;
    QListView *myArticleList;
    QLabel *myTitle;
    QScrollArea *myOptions;
    CoverPreview *myCover;
    QComboBox *myPages;
    QLabel *mySpine;
    QLabel *myState;
    QLineEdit *myOrderText;
    QLineEdit *myMCF;
    QPlainTextEdit *myNotice;
};
