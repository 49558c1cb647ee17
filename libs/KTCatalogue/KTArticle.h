#pragma once

#include "KTCatalogueFormat.h"
#include "ktcatalogue_export.h"

#include <KTArticleClass.h>
#include <KTArticleId.h>
#include <KTBarcodeDefinitionList.h>
#include <KTConfiguredArticleVariantList.h>
#include <KTPageContext.h>
#include <KTPageCountOrganization.h>
#include <KTPageSizeSpec.h>
#include <KTPriceClass.h>
#include <KTProductType.h>
#include <KTShippingGroupId.h>
#include <KTSpineConfig.h>

#include <QExplicitlySharedDataPointer>
#include <QMetaType>
#include <QVector>

#include <utility>

class KTArticleImpl;
class KTCatalogueArticle;
class KTXMLElement;
class QDomElement;

/**
 * What the library makes of one article of a catalogue; what is missing or malformed takes the library's
 * defaults.
 *
 * An article never changes, and copies share it, so it may be handed from thread to thread. A moved-from one
 * may only be assigned to or destroyed.
 */
class KTCATALOGUE_EXPORT KTArticle
{
public:
    /** A kind of page and its size. */
    struct Page
    {
        KTPageContext context;
        KTPageSizeSpec size;
    };

    /** A classification as the article gives it, see KTClassification. */
    struct Classified
    {
        KTAttributeId attribute;
        /** As it is written, unknown keywords included. */
        QString text;
        qint64 value;
    };

    /** Without a number: reads as an element without attributes and children. */
    KTArticle();
    explicit KTArticle(const QDomElement &article);
    explicit KTArticle(const KTXMLElement &article);
    explicit KTArticle(const KTCatalogueArticle &article);
    KTArticle(const KTArticle &other);
    KTArticle(KTArticle &&other) noexcept;
    KTArticle &operator=(const KTArticle &other);
    KTArticle &operator=(KTArticle &&other) noexcept;
    ~KTArticle();

    /** "art_id" where it is positive, else "id". */
    KTArticleId articleId() const;
    QString name() const;
    KTArticleClass articleClass() const;
    /** Only those whose attribute is there, in the order of their ids. */
    const QVector<Classified> &classifications() const;
    KTProductType productType() const;
    KTPriceClass priceClass() const;
    KTShippingGroupId shippingGroup() const;
    const KTPageCountOrganization &pageCounts() const;
    /** Also where there is no spine, see hasSpine(). */
    const KTSpineConfig &spine() const;
    /** True when the article describes a spine. */
    bool hasSpine() const;
    const QVector<Page> &pages() const;
    const KTBarcodeDefinitionList &barcodes() const;
    const KTConfiguredArticleVariantList &options() const;

    /**
     * The page counts of an article, read in the way of its kind: those of an advent calendar with printed
     * door backs are fixed, a picture box never comes in pieces, and all others are read as they stand.
     */
    [[nodiscard]] static KTPageCountOrganization readPageCounts(const KTXMLElement &article);

private:
    QExplicitlySharedDataPointer<KTArticleImpl> myImpl;
};

Q_DECLARE_TYPEINFO(KTArticle, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTArticle)
