#pragma once

#include "KTArticle.h"

#include <QSharedData>

/** What copies of a KTArticle share; see there. Not part of the library's interface. */
class KTArticleImpl : public QSharedData
{
public:
    explicit KTArticleImpl(const KTXMLElement &article);

    KTArticleId articleId;
    QString name;
    KTArticleClass articleClass;
    QVector<KTArticle::Classified> classifications;
    KTProductType productType;
    KTPriceClass priceClass;
    KTShippingGroupId shippingGroup;
    KTPageCountOrganization pageCounts;
    KTSpineConfig spine;
    bool hasSpine;
    QVector<KTArticle::Page> pages;
    KTBarcodeDefinitionList barcodes;
    KTConfiguredArticleVariantList options;
};
