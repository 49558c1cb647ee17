#pragma once

#include "KTPageCountOrganization.h"

#include <QAbstractListModel>

/**
 * The page counts of an organisation as a list of choices, one row for each: row r has r packages more than
 * the minimum.
 *
 * Rows and page counts only agree for a consistent organisation. The model belongs to the user interface's
 * thread.
 */
class KTPRODUCTBASE_EXPORT KTPageCountOrganizationListModel : public QAbstractListModel
{
    Q_OBJECT
public:
    /** Shows the default organisation, counting pages. */
    KTPageCountOrganizationListModel();
    ~KTPageCountOrganizationListModel() override;

    /** The rows are the same below any index; there are never less than 0. */
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex &child) const override;
    /** The row's page count as a text, translated at each call, for a valid index and Qt::DisplayRole. */
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

    int pagesAtIndex(int row) const;
    int indexForPages(int pages) const;
    int highestValue() const;
    int lowestValue() const;
    /** Resets the model; the texts count photos instead of pages when told so. */
    void setPageOrganization(const KTPageCountOrganization &organization, bool countsPhotos);

private:
    KTPageCountOrganization myOrganization;
    bool myCountsPhotos = false;
};
