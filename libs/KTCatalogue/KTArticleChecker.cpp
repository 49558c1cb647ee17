#include "KTArticleChecker.h"

#include "KTCatalogueText.h"
#include "KTCheckText.h"

#include <KTArticleId.h>
#include <KTPriceClassSet.h>
#include <KTProductType.h>

#include <algorithm>

using KTCheckText::isDigit;
using KTCheckText::quoted;
using KTCheckText::suggestion;

namespace {

using Id = KTAttributeId;

constexpr int ARTICLE_INDEX = 0;

/** The letters before the number; a code that begins with a digit is a family of its own. */
QString priceClassFamily(const QString &code)
{
    const auto *const end = std::find_if(code.begin(), code.end(), &isDigit);
    return end == code.begin() ? code : code.left(static_cast<int>(end - code.begin()));
}

/** The families of the add-ons that the library knows, and of the albums and calendars. */
const QStringList &priceClassFamilies()
{
    static const QStringList myFamilies = [] {
        QStringList families {QStringLiteral("ALB"), QStringLiteral("ALBS"), QStringLiteral("CAL")};
        const KTPriceClassSet groups[] = {KTPriceClassSet::spotColorAll(),
                                          KTPriceClassSet::bookGiftBoxes(),
                                          KTPriceClassSet::calendarGiftBoxes(),
                                          KTPriceClassSet::framePassepartout(),
                                          KTPriceClassSet::frameGlasses(),
                                          KTPriceClassSet::calendarFrameClasses(),
                                          KTPriceClassSet::posterWoddenStrips(),
                                          KTPriceClassSet::wallholderPriceClasses(),
                                          KTPriceClassSet::maps(),
                                          KTPriceClassSet::envelops(),
                                          KTPriceClassSet::mattCoverPriceClasses(),
                                          KTPriceClassSet::flyleafPriceClasses(),
                                          KTPriceClassSet::designPriceClasses(),
                                          KTPriceClassSet::videoNames()};
        for (const KTPriceClassSet &group : groups) {
            for (const KTPriceClass &priceClass : group)
                families.append(priceClassFamily(priceClass.toString()));
        }
        families.removeDuplicates();
        families.sort();
        return families;
    }();
    return myFamilies;
}

} // namespace

QVector<KTFinding> KTArticleChecker::check(const KTCatalogueArticle &article)
{
    myCursor.begin(article);
    myKinds.resize(0);
    myHasElement.fill(false);
    myOptionChecker.begin();
    myBarcodeChecker.begin();
    for (int i = 0; i < article.fragment().elements.size(); ++i) {
        const KTElementKind kind = enter(i);
        myKinds.append(kind);
        if (kind != KTElementKind::Unread)
            checkElement(kind);
    }
    myOptionChecker.end(&myCursor);
    return myCursor.findings(myArticleId);
}

QVector<KTFinding> KTArticleChecker::checkOther(const KTCatalogueArticle &tag, bool isRoot)
{
    myCursor.begin(tag);
    if (isRoot) {
        myCursor.enter(0, KTElementKind::Catalogue);
        myAttributeChecker.check(&myCursor, KTPageCountOrganization());
    } else {
        reportUnread(KTElementKind::Catalogue);
    }
    return myCursor.findings(0);
}

/** Goes to the element and tells its kind, Unread for one that is skipped, which is reported. */
KTElementKind KTArticleChecker::enter(int index)
{
    if (index == ARTICLE_INDEX) {
        myCursor.enter(index, KTElementKind::Article);
        return KTElementKind::Article;
    }
    myCursor.enter(index, KTElementKind::Unread);
    const KTElementKind parent = myKinds.at(myCursor.parent());
    if (parent == KTElementKind::Unread)
        return KTElementKind::Unread;
    const KTElementRow *const row = KTCatalogueFormat::element(parent, myCursor.name());
    if (!row) {
        reportUnread(parent);
        return KTElementKind::Unread;
    }
    bool &hasElement = myHasElement[static_cast<std::size_t>(row->kind)];
    if (row->isSingle && hasElement) {
        myCursor.report(
            KTRule::RepeatedElement,
            KTCatalogueText::tr(
                "a further '%1'; the application reads the first one only and skips this one with "
                "everything inside")
                .arg(row->name));
        return KTElementKind::Unread;
    }
    hasElement = true;
    myCursor.enter(index, row->kind);
    return row->kind;
}

void KTArticleChecker::checkElement(KTElementKind kind)
{
    if (kind == KTElementKind::Article) {
        myArticleId = KTArticleId::findId(myCursor.element()).id();
        myPageCountChecker.begin(myCursor);
    }
    myAttributeChecker.check(&myCursor, myPageCountChecker.pageCounts());
    switch (kind) {
    case KTElementKind::Article:
        checkArticle();
        break;
    case KTElementKind::Spine:
        myPageCountChecker.checkSpine(&myCursor);
        break;
    case KTElementKind::Barcode:
        myBarcodeChecker.check(&myCursor);
        break;
    case KTElementKind::Form:
        myOptionChecker.check(&myCursor);
        break;
    default:
        break;
    }
}

void KTArticleChecker::reportUnread(KTElementKind parent)
{
    const QString name = myCursor.name().toString();
    const KTElementRow *const elsewhere = KTCatalogueFormat::element(name);
    const QString place = elsewhere && elsewhere->parent != KTElementKind::Unread
        ? KTCatalogueText::tr("; it belongs into '%1'").arg(KTCatalogueFormat::elementName(elsewhere->parent))
        : suggestion(name, KTCatalogueFormat::elementNames(parent));
    myCursor.report(
        KTRule::UnknownElement,
        KTCatalogueText::tr("nothing reads %1 in '%2'; the application skips it with everything inside")
                .arg(quoted(name), KTCatalogueFormat::elementName(parent))
            + place);
}

void KTArticleChecker::checkArticle()
{
    const KTXMLElement article = myCursor.element();
    const KTArticleId artId = KTArticleId(article, KTCatalogueFormat::attributeName(Id::ArticleArtId));
    const KTArticleId id = KTArticleId(article, KTCatalogueFormat::attributeName(Id::ArticleId));
    if (!KTArticleId(myArticleId).isValid()) {
        myCursor.report(KTRule::NoArticleId,
                        KTCatalogueText::tr(
                            "neither 'art_id' nor 'id' is a positive number; no order can name the article"),
                        myCursor.firstOf({Id::ArticleArtId, Id::ArticleId}));
    } else if (artId.isValid() && id.isValid() && artId != id) {
        myCursor.report(KTRule::ConflictingIds,
                        KTCatalogueText::tr("'art_id' is %1 and 'id' is %2; the application takes %3")
                            .arg(artId.id())
                            .arg(id.id())
                            .arg(myArticleId),
                        myCursor.attribute(Id::ArticleId));
    }
    if (!myCursor.has(Id::ArticleProductName)) {
        myCursor.report(KTRule::NoProductName,
                        KTCatalogueText::tr("there is no 'productname'; the application takes '%1'")
                            .arg(KTProductType::fromMcf(article).orderTxtName()));
    }
    checkPriceClass();
    myPageCountChecker.checkArticle(&myCursor);
}

void KTArticleChecker::checkPriceClass()
{
    const QString code = myCursor.value(Id::ArticlePriceClass).toString();
    if (KTPriceClass(code).isFree())
        return;
    const QString family = priceClassFamily(code);
    if (!priceClassFamilies().contains(family)) {
        myCursor.report(KTRule::UnknownPriceClass,
                        KTCatalogueText::tr(
                            "%1 is no known family of price classes; the application bills %2 as it stands")
                                .arg(quoted(family), quoted(code))
                            + suggestion(family, priceClassFamilies()),
                        myCursor.attribute(Id::ArticlePriceClass));
    }
}
