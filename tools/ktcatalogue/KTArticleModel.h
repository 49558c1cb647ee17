#pragma once

#include <KTArticleId.h>
#include <KTBarcodeDefinitionList.h>
#include <KTCatalogueFormat.h>
#include <KTConfiguredArticleVariantList.h>
#include <KTDistanceUnit.h>
#include <KTPageContext.h>
#include <KTPageCountOrganization.h>
#include <KTPageSizeSpec.h>
#include <KTPriceClass.h>
#include <KTProductType.h>
#include <KTShippingGroupId.h>
#include <KTSpineConfig.h>

#include <QPair>

class QDomElement;

/** What the library makes of one article of a catalogue. */
struct KTArticleModel
{
    /** A kind of page and its size. */
    struct Page
    {
        KTPageContext context;
        KTPageSizeSpec size;
    };

    /** What the library reads from a classification attribute. */
    struct Classified
    {
        KTAttributeId attribute;
        QString text;
        qint64 value;
    };

    /** Reads everything; what is missing or malformed takes the library's defaults. */
    explicit KTArticleModel(const QDomElement &article);

    /** The page counts of the article, which are read in the way of its kind. */
    [[nodiscard]] static KTPageCountOrganization readPageCounts(const QDomElement &article);
    /** The unit of an element's lengths; millimetres where none is given. */
    [[nodiscard]] static KTDistanceUnit readUnit(const QDomElement &element);

    /** The valid page counts next below and above the wish; twice the wish if it is one itself. */
    QPair<int, int> validPagesAround(int pages) const;
    /** What is wrong with the page count, as a predicate of the article; empty for a valid one. */
    QString objectionToPages(int pages) const;

    KTArticleId articleId;
    QString name;
    /** Only those whose attribute is there. */
    QVector<Classified> classifications;
    KTProductType productType;
    KTPriceClass priceClass;
    KTShippingGroupId shippingGroup;
    KTConfiguredArticleVariantList options;
    KTPageCountOrganization pageCounts;
    KTSpineConfig spine;
    bool hasSpine;
    QVector<Page> pages;
    KTBarcodeDefinitionList barcodes;
};
