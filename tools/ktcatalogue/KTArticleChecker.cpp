#include "KTArticleChecker.h"

#include "KTArticleModel.h"
#include "KTNearestWord.h"
#include "KTVariantsText.h"

#include <KTArticleClass.h>
#include <KTDirectoryConfig.h>
#include <KTPriceClassSet.h>
#include <KTXMLParser.h>

#include <QColor>
#include <QImage>
#include <QVarLengthArray>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const QString PROBE_ELEMENT = QStringLiteral("probe");
const QLatin1String XML_PREFIXES[] = {QLatin1String("xml:"), QLatin1String("xmlns")};
constexpr int ARTICLE_INDEX = 0;
constexpr KTAttributeId PAGE_COUNT_IDS[] = {KTAttributeId::ArticlePages, KTAttributeId::ArticleMaxPages,
                                            KTAttributeId::ArticlePageStep, KTAttributeId::ArticlePieces};
const QString UNITS = QStringLiteral("units");
constexpr QChar ORDER_TXT_SEPARATOR = u';';
// Nine digits always fit into an int.
constexpr int SAFE_DIGITS = 9;
// Enough for the texts that a catalogue repeats, and no more memory than a small one takes.
constexpr int MOST_KEPT_ANSWERS = 1000;
constexpr int LONGEST_KEPT_TEXT = 64;
constexpr int LONGEST_QUOTED_TEXT = 64;

/** The text without a copy of its own; it must not outlive the article. */
QString raw(QStringView text)
{
    return QString::fromRawData(text.data(), static_cast<int>(text.size()));
}

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

bool isPlainInteger(QStringView text)
{
    return !text.isEmpty() && text.size() <= SAFE_DIGITS && std::all_of(text.begin(), text.end(), &isDigit);
}

/** A few digits, among them at most one decimal point. */
bool isPlainNumber(QStringView text)
{
    if (text.isEmpty() || text.size() > SAFE_DIGITS || !isDigit(text.front()) || !isDigit(text.back()))
        return false;
    return std::count(text.begin(), text.end(), QChar(u'.')) <= 1
        && std::all_of(text.begin(), text.end(),
                       [](QChar character) { return character == u'.' || isDigit(character); });
}

bool isPlainBoolean(QStringView text)
{
    return text == QLatin1String("true") || text == QLatin1String("false") || text == QLatin1String("1")
        || text == QLatin1String("0");
}

/** True for a text that the library does not replace by a default. */
bool isReadable(KTAttributeType type, QStringView text)
{
    switch (type) {
    case KTAttributeType::Integer:
        return isPlainInteger(text) || KTXMLParser::parseInt(raw(text));
    case KTAttributeType::Length:
        return isPlainNumber(text) || KTXMLParser::parseDouble(raw(text));
    default:
        return isPlainBoolean(text) || KTXMLParser::parseBool(raw(text));
    }
}

/** True for the characters that can separate or fill in anything in one of the forms of an option. */
bool isSeparator(QChar character)
{
    switch (character.unicode()) {
    case u',':
    case u':':
    case u';':
    case u'|':
    case u'+':
    case u'%':
        return true;
    default:
        return false;
    }
}

bool hasSeparator(QStringView text)
{
    return std::any_of(text.begin(), text.end(), &isSeparator);
}

/** In quotes, shortened where nobody would read on. */
QString quoted(const QString &text)
{
    return QStringLiteral("'%1'").arg(
        text.size() <= LONGEST_QUOTED_TEXT ? text : text.left(LONGEST_QUOTED_TEXT) + QStringLiteral("[...]"));
}

/** "; did you mean 'alcolor'?", or nothing. */
QString suggestion(const QString &word, const QStringList &candidates)
{
    if (word.size() > LONGEST_QUOTED_TEXT)
        return QString();
    // A word that is changed as a whole was not meant.
    const QString nearest = KTNearestWord::find(word, candidates, std::clamp(word.size() - 1, 0, 2));
    return nearest.isEmpty() ? QString() : QStringLiteral("; did you mean '%1'?").arg(nearest);
}

/** What is wrong with the number, in words. */
QString numberFault(const QString &text, KTAttributeType type)
{
    bool ok = false;
    const double number = text.toDouble(&ok);
    if (std::isnan(number) || (ok && std::isinf(number)))
        return QStringLiteral("is not finite");
    if (std::isinf(number))
        return QStringLiteral("is out of range");
    // A number that is finite itself may not be so in layout units.
    if (type == KTAttributeType::Length)
        return ok ? QStringLiteral("is out of range") : QStringLiteral("is no number");
    return ok && number == std::floor(number) && std::abs(number) > std::numeric_limits<int>::max()
        ? QStringLiteral("is out of range")
        : QStringLiteral("is no whole number");
}

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

/** What an unreadable text counts as, in the words of a message. */
QString defaultOf(const KTAttributeRow &row)
{
    return row.defaultText().replace(QLatin1Char('`'), QLatin1Char('\''));
}

/** What the classification makes of entries that are no keywords; empty when there are none. */
QString keywordMessage(const KTAttributeRow &row, const QString &text)
{
    // A text without any entry stands for the default, as a missing one does.
    if (text.trimmed().isEmpty())
        return QString();
    const KTClassification &classification = KTClassification::of(row.classification);
    const QStringList unknown = classification.unknownEntries(text);
    if (unknown.isEmpty())
        return QString();
    const QString &word = unknown.constFirst();
    QString message = word.isEmpty() ? QStringLiteral("an empty entry in %1").arg(quoted(text))
                                     : QStringLiteral("%1 is no keyword of %2").arg(quoted(word), row.name);
    if (unknown.size() > 1)
        message += unknown.size() == 2 ? QStringLiteral(" (nor is 1 more)")
                                       : QStringLiteral(" (nor are %1 more)").arg(unknown.size() - 1);
    const QString readAs = classification.unknownReadAs();
    message += readAs.isEmpty()
        ? QStringLiteral("; the application reads nothing from it")
        : QStringLiteral("; the application reads it as the default, '%1'").arg(readAs);
    return message + suggestion(word, classification.readableKeywords());
}

} // namespace

QVector<KTFinding> KTArticleChecker::check(const KTCatalogueArticle &article)
{
    begin(article);
    for (int i = 0; i < article.elements().size(); ++i) {
        const KTElementKind kind = enterElement(i);
        myKinds.append(kind);
        if (kind == KTElementKind::Unread)
            continue;
        enterAttributes(kind);
        switch (kind) {
        case KTElementKind::Article:
            checkArticle();
            break;
        case KTElementKind::Spine:
            checkSpine();
            break;
        case KTElementKind::Barcode:
            checkBarcode();
            break;
        case KTElementKind::Form:
            checkOption();
            break;
        default:
            break;
        }
    }
    checkPreselections();
    return sortedFindings();
}

QVector<KTFinding> KTArticleChecker::checkOther(const KTCatalogueArticle &article, bool isRoot)
{
    begin(article);
    myElement = &article.elements().constFirst();
    if (isRoot)
        enterAttributes(KTElementKind::Catalogue);
    else
        checkUnreadElement(KTElementKind::Catalogue);
    return sortedFindings();
}

void KTArticleChecker::begin(const KTCatalogueArticle &article)
{
    myArticle = &article;
    myArticleId = 0;
    myFindings.clear();
    myKinds.resize(0);
    myHasElement.fill(false);
    myOptionLines.clear();
    myPreselections.clear();
    myBarcodeLines.clear();
}

QVector<KTFinding> KTArticleChecker::sortedFindings()
{
    std::stable_sort(myFindings.begin(), myFindings.end(),
                     [](const KTFinding &first, const KTFinding &second) {
                         return first.position.line != second.position.line
                             ? first.position.line < second.position.line
                             : first.position.column < second.position.column;
                     });
    return myFindings;
}

/** The kind of the element, Unread for one that is skipped; what nobody expects there is reported. */
KTElementKind KTArticleChecker::enterElement(int index)
{
    myElement = &myArticle->elements().at(index);
    if (index == ARTICLE_INDEX)
        return KTElementKind::Article;
    const KTElementKind parent = myKinds.at(myElement->parent);
    if (parent == KTElementKind::Unread)
        return KTElementKind::Unread;
    const KTElementRow *const row = KTCatalogueFormat::element(parent, myArticle->view(myElement->name));
    if (!row) {
        checkUnreadElement(parent);
        return KTElementKind::Unread;
    }
    bool &hasElement = myHasElement[static_cast<std::size_t>(row->kind)];
    if (row->isSingle && hasElement) {
        report(
            KTRule::RepeatedElement,
            QStringLiteral("a further '%1'; the application reads the first one only and skips this one with "
                           "everything inside")
                .arg(row->name));
        return KTElementKind::Unread;
    }
    hasElement = true;
    return row->kind;
}

void KTArticleChecker::checkUnreadElement(KTElementKind parent)
{
    const QString name = myArticle->view(myElement->name).toString();
    const KTElementRow *const elsewhere = KTCatalogueFormat::element(name);
    const QString place = elsewhere
        ? QStringLiteral("; it belongs into '%1'").arg(KTCatalogueFormat::elementName(elsewhere->parent))
        : suggestion(name, KTCatalogueFormat::elementNames(parent));
    report(KTRule::UnknownElement,
           QStringLiteral("nothing reads %1 in '%2'; the application skips it with everything inside")
                   .arg(quoted(name), KTCatalogueFormat::elementName(parent))
               + place);
}

/** Finds the attributes of the present element and checks each by itself. */
void KTArticleChecker::enterAttributes(KTElementKind kind)
{
    myFound.fill(-1);
    const int end = myElement->firstAttribute + myElement->attributeCount;
    QVarLengthArray<const KTAttributeRow *, 32> rows;
    for (int i = myElement->firstAttribute; i < end; ++i) {
        const KTAttributeRow *const row
            = KTCatalogueFormat::attribute(kind, myArticle->view(myArticle->attributes().at(i).name));
        rows.append(row);
        if (row)
            myFound[static_cast<std::size_t>(row->id)] = i;
    }
    if (kind == KTElementKind::Article)
        beginArticle();
    if (const KTAttributeRow *const units = KTCatalogueFormat::attribute(kind, UNITS))
        enterUnit(*units);
    for (int i = myElement->firstAttribute; i < end; ++i) {
        const Attribute &attribute = myArticle->attributes().at(i);
        if (const KTAttributeRow *const row = rows.at(i - myElement->firstAttribute))
            checkAttribute(attribute, *row);
        else
            checkUnknownAttribute(attribute, kind);
    }
}

void KTArticleChecker::checkAttribute(const Attribute &attribute, const KTAttributeRow &row)
{
    const QStringView text = myArticle->view(attribute.value);
    switch (row.type) {
    case KTAttributeType::Text:
        break;
    case KTAttributeType::Keywords:
        checkKeywords(attribute, row);
        break;
    case KTAttributeType::Integer:
    case KTAttributeType::Length:
        checkNumber(attribute, row);
        break;
    case KTAttributeType::Boolean:
        if (!isReadable(row.type, text)) {
            report(KTRule::UnreadableBoolean,
                   QStringLiteral("%1 is neither true nor false; the application takes %2")
                       .arg(quoted(text.toString()), defaultOf(row)),
                   &attribute);
        }
        break;
    case KTAttributeType::Unit:
        checkUnit(attribute, row);
        break;
    case KTAttributeType::Color:
        checkColor(attribute, row);
        break;
    }
}

void KTArticleChecker::checkUnknownAttribute(const Attribute &attribute, KTElementKind kind)
{
    const QString name = myArticle->view(attribute.name).toString();
    // Declarations and attributes of XML itself are for everyone.
    if (std::any_of(std::begin(XML_PREFIXES), std::end(XML_PREFIXES),
                    [&name](QLatin1String prefix) { return name.startsWith(prefix); }))
        return;
    report(KTRule::UnknownAttribute,
           QStringLiteral("nothing reads %1 of '%2'; the application behaves as if it were not there")
                   .arg(quoted(name), KTCatalogueFormat::elementName(kind))
               + suggestion(name, KTCatalogueFormat::attributeNames(kind)),
           &attribute);
}

void KTArticleChecker::checkKeywords(const Attribute &attribute, const KTAttributeRow &row)
{
    const QStringView text = myArticle->view(attribute.value);
    const auto known = myKeywordMessages.constFind({&row, raw(text)});
    const QString message
        = known == myKeywordMessages.constEnd() ? keywordMessage(row, text.toString()) : *known;
    if (known == myKeywordMessages.constEnd() && text.size() <= LONGEST_KEPT_TEXT) {
        if (myKeywordMessages.size() >= MOST_KEPT_ANSWERS)
            myKeywordMessages.clear();
        myKeywordMessages.insert({&row, text.toString()}, message);
    }
    if (!message.isEmpty())
        report(KTRule::UnknownKeyword, message, &attribute);
}

void KTArticleChecker::checkNumber(const Attribute &attribute, const KTAttributeRow &row)
{
    const QStringView view = myArticle->view(attribute.value);
    if (isReadable(row.type, view) && (row.type == KTAttributeType::Integer || isLength(view)))
        return;
    const QString text = view.toString();
    const bool isPageCount = std::holds_alternative<std::monostate>(row.defaultValue);
    QString message
        = QStringLiteral("%1 %2; the application takes %3")
              .arg(quoted(text), numberFault(text, row.type),
                   isPageCount ? QStringLiteral("the default: %1").arg(pageCountsText()) : defaultOf(row));
    const QString withPoint = QString(text).replace(QLatin1Char(','), QLatin1Char('.'));
    if (row.type == KTAttributeType::Length && withPoint != text && isReadable(row.type, withPoint))
        message += QStringLiteral("; did you mean '%1'?").arg(withPoint);
    report(row.id == KTAttributeId::ArticleShippingGroup ? KTRule::ShippingGroup : KTRule::UnreadableNumber,
           message, &attribute);
}

void KTArticleChecker::checkUnit(const Attribute &attribute, const KTAttributeRow &row)
{
    const QString text = myArticle->view(attribute.value).toString();
    if (KTArticleModel::readUnit(probe({row.id})).hasExactlyOneBit())
        return;
    report(KTRule::UnknownUnit,
           QStringLiteral("%1 is no unit; the application takes the numbers as layout units of 0.1 mm")
                   .arg(quoted(text))
               + suggestion(text, KTClassification::of(row.classification).readableKeywords()),
           &attribute);
}

void KTArticleChecker::checkColor(const Attribute &attribute, const KTAttributeRow &row)
{
    const QStringView text = myArticle->view(attribute.value);
    if (text.isEmpty() || QColor::isValidColor(raw(text)))
        return;
    report(KTRule::UnknownColor,
           QStringLiteral("%1 is no colour; the application takes %2")
                   .arg(quoted(text.toString()), defaultOf(row))
               + suggestion(text.toString(), QColor::colorNames()),
           &attribute);
}

/** Reads the unit of the lengths here and inside. */
void KTArticleChecker::enterUnit(const KTAttributeRow &row)
{
    myUnit = KTArticleModel::readUnit(probe({row.id}));
    // The library takes it so as well, but with a warning for each number.
    if (!myUnit.hasExactlyOneBit())
        myUnit = KTDistanceUnitLayout;
}

/** Reads what the checks of the article's attributes need to know. */
void KTArticleChecker::beginArticle()
{
    const QDomElement article = probe({Id::ArticleArtId, Id::ArticleId, Id::ArticleClass, Id::ArticlePages,
                                       Id::ArticleMaxPages, Id::ArticlePageStep, Id::ArticlePieces});
    myArticleId = KTArticleId::findId(article).id();
    myPageCounts = KTArticleModel::readPageCounts(article);
    mySpinePageCounts = KTPageCountOrganization::createFromProductsXML(article);
}

void KTArticleChecker::checkArticle()
{
    const QDomElement article = probe({Id::ArticleArtId, Id::ArticleId});
    const KTArticleId artId = KTArticleId::fromArtIdAttribute(article);
    const KTArticleId id = KTArticleId::fromIdAttribute(article);
    if (!KTArticleId(myArticleId).isValid()) {
        report(
            KTRule::NoArticleId,
            QStringLiteral("neither 'art_id' nor 'id' is a positive number; no order can name the article"),
            firstOf({Id::ArticleArtId, Id::ArticleId}));
    } else if (artId.isValid() && id.isValid() && artId != id) {
        report(KTRule::ConflictingIds,
               QStringLiteral("'art_id' is %1 and 'id' is %2; the application takes %3")
                   .arg(artId.id())
                   .arg(id.id())
                   .arg(myArticleId),
               attribute(Id::ArticleId));
    }
    if (!attribute(Id::ArticleProductName)) {
        report(KTRule::NoProductName,
               QStringLiteral("there is no 'productname'; the application takes '%1'")
                   .arg(KTProductType::fromMcf(article).orderTxtName()));
    }
    checkPriceClass();
    checkPageCountAttributes();
}

void KTArticleChecker::checkPriceClass()
{
    const QString code = text(Id::ArticlePriceClass).toString();
    if (KTPriceClass(code).isFree())
        return;
    const QString family = priceClassFamily(code);
    if (!priceClassFamilies().contains(family)) {
        report(KTRule::UnknownPriceClass,
               QStringLiteral("%1 is no known family of price classes; the application bills %2 as it stands")
                       .arg(quoted(family), quoted(code))
                   + suggestion(family, priceClassFamilies()),
               attribute(Id::ArticlePriceClass));
    }
}

void KTArticleChecker::checkPageCountAttributes()
{
    if (KTArticleId(myArticleId).isAdventCalendarWithDoorBackPrint()) {
        for (const Id id : PAGE_COUNT_IDS) {
            if (attribute(id)) {
                report(KTRule::IgnoredAttribute,
                       QStringLiteral(
                           "the application does not read '%1' here: this calendar always has %2 pages")
                           .arg(KTCatalogueFormat::attributeName(id))
                           .arg(myPageCounts.minPages()),
                       attribute(id));
            }
        }
        return;
    }
    if (attribute(Id::ArticlePieces)
        && KTArticleClass(text(Id::ArticleClass).toString()).matches(KTArticleClassPictureBox)) {
        report(KTRule::IgnoredAttribute,
               QStringLiteral("the application reads the page counts of a picture box without 'pieces': %1")
                   .arg(pageCountsText()),
               attribute(Id::ArticlePieces));
    }
    if (std::any_of(std::begin(PAGE_COUNT_IDS), std::end(PAGE_COUNT_IDS),
                    [this](Id id) { return attribute(id); }))
        checkPageCounts();
}

void KTArticleChecker::checkPageCounts()
{
    constexpr int HIGHEST = std::numeric_limits<int>::max();
    const int min = myPageCounts.minPages();
    const int max = myPageCounts.maxPages();
    const int step = myPageCounts.pageIncrement();
    const QString counts
        = QStringLiteral("the page counts are %1%2")
              .arg(pageCountsText(),
                   myPageCounts.isValid() ? QString() : QStringLiteral(", which is not valid"));
    const QString wish
        = QStringLiteral("; a wish for %1 pages becomes %2").arg(max).arg(myPageCounts.constrain(max));
    const Attribute *const stepOrUpper
        = firstOf({Id::ArticlePageStep, Id::ArticleMaxPages, Id::ArticlePages});
    if (min < 1 || max < 1) {
        report(KTRule::PageCountRange, counts + QStringLiteral("; they begin at 1"),
               firstOf({Id::ArticlePages, Id::ArticlePieces, Id::ArticleMaxPages}));
    } else if (attribute(Id::ArticlePieces) && (min == HIGHEST || max == HIGHEST)) {
        report(KTRule::PageCountRange,
               QStringLiteral("'pages' times 'pieces' is too large, so the application cuts it off; ")
                   + counts,
               attribute(Id::ArticlePieces));
    } else if (min > max) {
        report(KTRule::PagesInverted, counts + wish, firstOf({Id::ArticleMaxPages, Id::ArticlePages}));
    } else if (step < 0) {
        report(KTRule::NegativePageStep, counts + wish, attribute(Id::ArticlePageStep));
    } else if (step == 0 && min < max) {
        report(KTRule::NoPageStep, counts + wish, stepOrUpper);
    } else if (min < max && !myPageCounts.isConsistent()) {
        const int last = myPageCounts.pagesWithNExtraPackages(myPageCounts.numberOfPackages() - 1);
        report(KTRule::UnevenPageStep,
               counts + QStringLiteral(", but the last one offered is %1").arg(last) + wish
                   + QStringLiteral(", which exceeds the maximum"),
               stepOrUpper);
    }
}

void KTArticleChecker::checkSpine()
{
    const QStringView packages = text(Id::SpinePackagesPerBlock);
    if (mySpinePageCounts.pageIncrement() != 0 || KTXMLParser::parseInt(raw(packages)).value_or(0) == 0)
        return;
    report(KTRule::SpineWithoutStep,
           QStringLiteral(
               "a block has %1 packages of pages, but the article has no 'page_step'; the spine never "
               "grows")
               .arg(packages.toString()),
           attribute(Id::SpinePackagesPerBlock));
}

void KTArticleChecker::checkOption()
{
    const QStringView key = text(Id::FormKey);
    const QStringView value = text(Id::FormValue);
    if (key.isEmpty() || value.isEmpty()) {
        report(KTRule::IncompleteOption,
               QStringLiteral("the option has no %1; the application skips it")
                   .arg(key.isEmpty() ? QStringLiteral("key") : QStringLiteral("value")));
        return;
    }
    const QPair<QStringView, QStringView> option(key, value);
    const auto earlier = myOptionLines.constFind(option);
    if (earlier != myOptionLines.constEnd()) {
        report(KTRule::DuplicateOption,
               QStringLiteral("%1 with %2 stands in line %3 already; the application lists it again, but an "
                              "order cannot tell the two")
                   .arg(quoted(key.toString()), quoted(value.toString()), QString::number(*earlier)));
    } else {
        myOptionLines.insert(option, myElement->position.line);
    }
    if (hasSeparator(key) || hasSeparator(value))
        checkCompound(key.toString(), value.toString());
    const QStringView isPreselected = text(Id::FormPreselected);
    if (isPreselected != QLatin1String("false")
        && KTXMLParser::parseBool(raw(isPreselected)).value_or(false)) {
        Preselection &preselection = myPreselections[key];
        ++preselection.count;
        preselection.element = myElement;
        preselection.attribute = attribute(Id::FormPreselected);
    }
}

/** Lets the library write the option and looks whether it can be read back. */
void KTArticleChecker::checkCompound(const QString &key, const QString &value)
{
    const KTArticleVariants option(key, value);
    const KTArticleVariants production = option.toXTCI();
    if (!production.isValid()) {
        report(KTRule::CompoundParts,
               QStringLiteral("%1 and %2 have different numbers of parts; the order text and the production "
                              "form leave the option out")
                   .arg(quoted(key), quoted(value)),
               attribute(Id::FormValue));
        return;
    }
    const QString mcf = option.toMCF();
    const KTArticleVariants fromMcf = KTArticleVariants::createFromMCF(mcf);
    if (fromMcf != option) {
        reportLoss(QStringLiteral("MCF"), mcf, fromMcf);
        return;
    }
    const QString orderText = option.toOrderTxt();
    KTArticleVariants fromOrderText;
    for (const QString &pair : orderText.split(ORDER_TXT_SEPARATOR))
        fromOrderText.insert(KTArticleVariants(pair));
    if (fromOrderText != production)
        reportLoss(QStringLiteral("the order text"), orderText, fromOrderText);
}

void KTArticleChecker::reportLoss(const QString &form, const QString &text, const KTArticleVariants &readBack)
{
    const QString result
        = readBack.isValid() ? quoted(KTVariantsText::mcf(readBack)) : QStringLiteral("nothing");
    report(KTRule::ReservedCharacter,
           QStringLiteral("the application writes the option as %1 in %2, which reads back as %3")
               .arg(quoted(text), form, result),
           attribute(hasSeparator(this->text(Id::FormKey)) ? Id::FormKey : Id::FormValue));
}

void KTArticleChecker::checkBarcode()
{
    const KTBarcodeDefinition barcode = KTBarcodeDefinition::createFromProductsXML(
        probe({Id::BarcodePositionX, Id::BarcodePositionY, Id::BarcodeWidth, Id::BarcodeHeight,
               Id::BarcodeImage}),
        myUnit);
    if (barcode.imageName().isEmpty()) {
        report(KTRule::BarcodeDropped,
               QStringLiteral("the barcode has an empty image name; the application skips it"),
               attribute(Id::BarcodeImage));
        return;
    }
    if (!barcode.isValid()) {
        report(
            KTRule::BarcodeDropped,
            QStringLiteral("the barcode is smaller than one layout unit (0.1 mm); the application skips it"),
            firstOf({barcode.rect().width() < 1 ? Id::BarcodeWidth : Id::BarcodeHeight, Id::BarcodeWidth,
                     Id::BarcodeHeight}));
        return;
    }
    // Page and image do not count: the library finds a barcode by its rectangle.
    const KTBarcodeDefinition place(barcode.rect(), 0, QString());
    const auto earlier = myBarcodeLines.constFind(place);
    if (earlier == myBarcodeLines.constEnd()) {
        myBarcodeLines.insert(place, myElement->position.line);
    } else {
        report(KTRule::BarcodeSamePlace,
               QStringLiteral("the barcode in line %1 has the same rectangle; the application, which finds a "
                              "barcode by its rectangle, always takes that one")
                   .arg(*earlier));
    }
    if (!hasImage(barcode)) {
        report(
            KTRule::BarcodeImage,
            QStringLiteral("%1 is no picture below 'icons/picshelf' of the resources; the application shows "
                           "no barcode")
                .arg(quoted(barcode.imageName())),
            attribute(Id::BarcodeImage));
    }
}

bool KTArticleChecker::hasImage(const KTBarcodeDefinition &barcode)
{
    // Without resources nothing can be told about any image.
    if (KTSingleton<KTDirectoryConfig>::instance()->resourceRoot().isEmpty())
        return true;
    const auto known = myImages.constFind(barcode.imageName());
    if (known != myImages.constEnd())
        return *known;
    const bool hasImage = !barcode.image().isNull();
    if (myImages.size() >= MOST_KEPT_ANSWERS)
        myImages.clear();
    if (barcode.imageName().size() <= LONGEST_KEPT_TEXT)
        myImages.insert(barcode.imageName(), hasImage);
    return hasImage;
}

void KTArticleChecker::checkPreselections()
{
    const bool isAmbiguous
        = std::any_of(myPreselections.begin(), myPreselections.end(),
                      [](const Preselection &preselection) { return preselection.count > 1; });
    if (!isAmbiguous)
        return;
    const KTArticleVariants winners = KTConfiguredArticleVariantList(myArticle->element()).defaultVariants();
    for (auto it = myPreselections.begin(); it != myPreselections.end(); ++it) {
        if (it->count < 2)
            continue;
        myElement = it->element;
        const QString key = it.key().toString();
        report(KTRule::SeveralPreselected,
               QStringLiteral("%1 options of %2 are preselected; the application takes the last one, %3")
                   .arg(it->count)
                   .arg(quoted(key), quoted(winners.value(key, QString()))),
               it->attribute);
    }
}

const KTArticleChecker::Attribute *KTArticleChecker::attribute(Id id) const
{
    const int place = myFound[static_cast<std::size_t>(id)];
    return place < 0 ? nullptr : &myArticle->attributes().at(place);
}

/** The first of the attributes that is there; null when none is. */
const KTArticleChecker::Attribute *KTArticleChecker::firstOf(std::initializer_list<Id> ids) const
{
    for (const Id id : ids) {
        if (const Attribute *const found = attribute(id))
            return found;
    }
    return nullptr;
}

QStringView KTArticleChecker::text(Id id) const
{
    const Attribute *const found = attribute(id);
    return found ? myArticle->view(found->value) : QStringView();
}

/** An element with these attributes of the present one, to ask the library with. */
QDomElement KTArticleChecker::probe(std::initializer_list<Id> ids)
{
    QDomElement element = myProbes.createElement(PROBE_ELEMENT);
    for (const Id id : ids) {
        if (const Attribute *const found = attribute(id)) {
            element.setAttribute(KTCatalogueFormat::attributeName(id),
                                 myArticle->view(found->value).toString());
        }
    }
    return element;
}

/** True for a readable number that is finite as a length, too. */
bool KTArticleChecker::isLength(QStringView number) const
{
    return isPlainNumber(number) || std::isfinite(myUnit.units2Pixels(raw(number).toDouble()));
}

QString KTArticleChecker::pageCountsText() const
{
    return QStringLiteral("%1 to %2, step %3")
        .arg(myPageCounts.minPages())
        .arg(myPageCounts.maxPages())
        .arg(myPageCounts.pageIncrement());
}

void KTArticleChecker::report(KTRule rule, const QString &message, const Attribute *attribute)
{
    myFindings.append({rule, KTCheckRules::row(rule).severity, QString(),
                       attribute ? attribute->position : myElement->position, myArticleId,
                       myArticle->view(myElement->name).toString(),
                       attribute ? myArticle->view(attribute->name).toString() : QString(), message});
}
