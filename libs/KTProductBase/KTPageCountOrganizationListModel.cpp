#include "KTPageCountOrganizationListModel.h"

#include <QCoreApplication>

KTPageCountOrganizationListModel::KTPageCountOrganizationListModel() = default;
KTPageCountOrganizationListModel::~KTPageCountOrganizationListModel() = default;

int KTPageCountOrganizationListModel::rowCount(const QModelIndex &) const
{
    // A negative increment gives a negative number, on which proxy models crash.
    return qMax(0, myOrganization.numberOfPackages());
}

int KTPageCountOrganizationListModel::columnCount(const QModelIndex &) const
{
    return 1;
}

QModelIndex KTPageCountOrganizationListModel::parent(const QModelIndex &) const
{
    return QModelIndex();
}

QVariant KTPageCountOrganizationListModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || role != Qt::DisplayRole)
        return QVariant();
    const QString text = myCountsPhotos
        ? QCoreApplication::translate("KTPageCountOrganizationListModel", "%1 Fotos")
        : QCoreApplication::translate("KTPageCountOrganizationListModel", "%1 Seiten");
    return text.arg(pagesAtIndex(index.row()));
}

int KTPageCountOrganizationListModel::pagesAtIndex(int row) const
{
    return myOrganization.pagesWithNExtraPackages(row);
}

int KTPageCountOrganizationListModel::indexForPages(int pages) const
{
    return myOrganization.countPackages(pages);
}

int KTPageCountOrganizationListModel::highestValue() const
{
    return myOrganization.maxPages();
}

int KTPageCountOrganizationListModel::lowestValue() const
{
    return myOrganization.minPages();
}

void KTPageCountOrganizationListModel::setPageOrganization(const KTPageCountOrganization &organization,
                                                           bool countsPhotos)
{
    beginResetModel();
    myOrganization = organization;
    myCountsPhotos = countsPhotos;
    endResetModel();
}
