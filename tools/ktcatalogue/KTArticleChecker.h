#pragma once

#include "KTCatalogueArticle.h"
#include "KTFinding.h"

#include <KTBarcodeDefinition.h>
#include <KTCatalogueFormat.h>
#include <KTDistanceUnit.h>
#include <KTPageCountOrganization.h>

#include <array>

class KTArticleVariants;

/**
 * Finds what is wrong inside of single articles.
 *
 * What the library makes of a text is asked from the library itself. Texts that cannot be wrong, such as a
 * number of a few digits, are recognised beforehand, and the answers about keywords and images are kept for
 * the next articles, so that asking takes no longer than reading the file.
 */
class KTArticleChecker
{
public:
    /** The findings, without file, in the order of their places. */
    QVector<KTFinding> check(const KTCatalogueArticle &article);
    /** The same for the bare start tag of the root element or of another of its children. */
    QVector<KTFinding> checkOther(const KTCatalogueArticle &article, bool isRoot);
    /** The number of the article checked last, as the library reads it. */
    int articleId() const { return myArticleId; }

private:
    using Element = KTCatalogueArticle::Element;
    using Attribute = KTCatalogueArticle::Attribute;
    using Id = KTAttributeId;

    struct Preselection
    {
        int count = 0;
        /** The last one. */
        const Element *element = nullptr;
        const Attribute *attribute = nullptr;
    };

    void begin(const KTCatalogueArticle &article);
    QVector<KTFinding> sortedFindings();
    KTElementKind enterElement(int index);
    void enterAttributes(KTElementKind kind);
    void checkUnreadElement(KTElementKind parent);

    void checkAttribute(const Attribute &attribute, const KTAttributeRow &row);
    void checkUnknownAttribute(const Attribute &attribute, KTElementKind kind);
    void checkKeywords(const Attribute &attribute, const KTAttributeRow &row);
    void checkNumber(const Attribute &attribute, const KTAttributeRow &row);
    void checkUnit(const Attribute &attribute, const KTAttributeRow &row);
    void checkColor(const Attribute &attribute, const KTAttributeRow &row);

    void enterUnit(const KTAttributeRow &row);
    void beginArticle();
    void checkArticle();
    void checkPriceClass();
    void checkPageCountAttributes();
    void checkPageCounts();
    void checkSpine();
    void checkOption();
    void checkCompound(const QString &key, const QString &value);
    void reportLoss(const QString &form, const QString &text, const KTArticleVariants &readBack);
    void checkBarcode();
    bool hasImage(const KTBarcodeDefinition &barcode);
    void checkPreselections();

    const Attribute *attribute(Id id) const;
    const Attribute *firstOf(std::initializer_list<Id> ids) const;
    QStringView text(Id id) const;
    QDomElement probe(std::initializer_list<Id> ids);
    bool isLength(QStringView number) const;
    QString pageCountsText() const;
    void report(KTRule rule, const QString &message, const Attribute *attribute = nullptr);

    const KTCatalogueArticle *myArticle = nullptr;
    const Element *myElement = nullptr;
    QVector<KTFinding> myFindings;
    QVector<KTElementKind> myKinds;
    /** The places of the attributes of the present element, -1 for those that are missing. */
    std::array<int, KTCatalogueFormat::ATTRIBUTE_COUNT> myFound {};
    QDomDocument myProbes;

    int myArticleId = 0;
    KTPageCountOrganization myPageCounts;
    /** What the spine counts packages with. */
    KTPageCountOrganization mySpinePageCounts;
    /** Of the lengths of the present element and of those inside. */
    KTDistanceUnit myUnit;
    std::array<bool, static_cast<std::size_t>(KTElementKind::COUNT)> myHasElement {};
    QHash<QPair<QStringView, QStringView>, int> myOptionLines;
    QHash<QStringView, Preselection> myPreselections;
    QHash<KTBarcodeDefinition, int> myBarcodeLines;

    QHash<QPair<const KTAttributeRow *, QString>, QString> myKeywordMessages;
    QHash<QString, bool> myImages;
};
