#include "KTFuzz.h"

#include <KTAngle.h>
#include <KTArticleClassList.h>
#include <KTArticleId.h>
#include <KTConfiguredArticleVariantList.h>
#include <KTCoverType.h>
#include <KTDirectoryConfig.h>
#include <KTDistance.h>
#include <KTDistanceUnit.h>
#include <KTDlpType.h>
#include <KTFontCreator.h>
#include <KTFotoPaperType.h>
#include <KTMaterialType.h>
#include <KTNamedColor.h>
#include <KTOrderIdList.h>
#include <KTOrientation.h>
#include <KTPageBinding.h>
#include <KTPageContext.h>
#include <KTPaperType.h>
#include <KTPriceClassSet.h>
#include <KTProductArrangement.h>
#include <KTProductTypeList.h>
#include <KTShippingGroupIdList.h>
#include <KTSpaceMagnitude.h>
#include <KTSpotColor.h>

#include <QColor>
#include <QDomDocument>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSizeF>

#include <algorithm>

using namespace KTFuzz;

namespace {

/** A number that the bits choose, among them those at which arithmetic goes wrong. */
template <typename TABLE>
auto chosenFrom(const TABLE &table, qint64 bits)
{
    const auto choice = static_cast<std::size_t>(bits & 0x1f);
    using Number = std::decay_t<decltype(*std::begin(table))>;
    return choice < std::size(table) ? table[choice] : static_cast<Number>(bits >> 5);
}

/** Reads and writes keywords of one classification; the bits stand for a value that came as a number. */
template <typename CLASS>
void askKeywords(const QString &text, const QString &, qint64 bits)
{
    using Enum = std::decay_t<decltype(CLASS().value())>;
    const CLASS read(text);
    const auto &table = *read.enumToStringTable();
    KT_REQUIRE(table.decode(text, Enum(-1)) == table.decode(text.trimmed().toLower(), Enum(-1)));
    // What reading a list means, with none of the table's short cuts.
    std::underlying_type_t<Enum> all = 0;
    for (const QString &part : text.split(u','))
        all |= table.decode(part, table.defaultValue);
    KT_REQUIRE(all == read.value() && table.decodeCSV(text) == read.value());

    for (const CLASS &value : {read, CLASS(static_cast<Enum>(bits))}) {
        checkHash(value, read);
        const QList<Enum> single = value.splitToBitsSorted();
        KT_REQUIRE(single.size() == value.countBits() && value.encodeBits().size() == single.size());
        KT_REQUIRE(value.splitToBits().size() == single.size());
        if (table.valueToKeyword.contains(value.value()))
            KT_REQUIRE(value.decodeOneElement(value.encode()) == value.value());
        const auto isWritten = [&table](Enum bit) { return table.valueToKeyword.contains(bit); };
        if (!single.isEmpty() && std::all_of(single.begin(), single.end(), isWritten))
            KT_REQUIRE(value.decodeCSV(value.encodeCSV()) == value.value());
        CLASS changed(value);
        changed.toggleBits(read);
        changed.toggleBits(read);
        KT_REQUIRE(changed == value || value.value() < 0);
        use(value.allPossibleKeywords(), value.allPossibleKeywordsOneElement(), debugText(value));
    }
}

/** The rules of the classifications, with a value of any bits. */
void askRules(const QString &text, const QString &other, qint64 bits)
{
    // Making a document would cost more than all the rest.
    static QDomDocument *const document = new QDomDocument;
    QDomElement parent = document->createElement(QStringLiteral("parent"));
    const auto small = static_cast<qint32>(bits);
    const KTArticleClass value = bits < 0 ? KTArticleClass(text) : KTArticleClassEnum(bits);
    use(value.shippingGroup(), value.toHumanReadable(), value.toPHProjectCategory(), value.maxAmount(),
        value.canModifyABK(), KTFotoPaperType::defaultFor(value));
    KT_REQUIRE(!KTArticleClass::lessThanShopCart(value.value(), value.value()));
    value.toTemplates2Format(parent);
    const KTPageType pageType(KTPageTypeEnum {small});
    const KTPageAlignment alignment(text);
    use(pageType.renderingRule(), pageType.productionRenderingRule(), pageType.explicitOrderPageNumber(),
        pageType.acceptTemplateRule(), pageType.acceptFotoRule(), KTPageContext(pageType, alignment).dump(),
        pageType.isSpotColorAllowed({KTSpotColor(text)}), alignment.describe(),
        alignment.modifyProductionPath(other, bits & 1));
    const KTCoverType cover(KTCoverTypeEnum {bits});
    use(cover.humanReadableName(), cover.toolTip(), cover.isFullCover(),
        KTCoverType::createFromHumanReadable(text), KTPaperType::createFromHumanReadable(text),
        KTSpaceMagnitude::createFromHumanReadable(text), KTFotoPaperType(text).encodeForProduction(),
        KTFotoPaperType::createFromXTCI(text), KTDlpType(text).dlpPath(bits & 1),
        KTDlpType(KTDlpTypeEnum {small}).describe(), KTDlpType(text).queryValue(),
        KTPriceClassSet::spotColorPriceClasses(KTSpotColorEnum {small}).toString());
    KTPageBinding(KTPageBindingEnum {small}).toTemplates2Format(parent);
    KTOrientation(text).toTemplates2Format(parent);
}

/** The rules that take numbers, with any of them. */
void askNumbers(const QString &text, const QString &other, qint64 bits)
{
    const int integer = chosenFrom(KTTest::INTS, bits);
    const double number = chosenFrom(KTTest::DOUBLES, bits >> 8);
    const KTSpaceMagnitude magnitude(static_cast<KTSpaceMagnitudeEnum>(bits >> 16));
    const KTOrientation orientation(other);
    static const QFont *const font = new QFont;
    QFont sized(*font);
    sized.setPointSizeF(number);
    const KTDistance distance(number, KTDistanceUnit(text));
    use(magnitude.adaptFont(sized, KTSpaceMagnitude(text)), magnitude.optimumFotosPerPage(orientation),
        orientation.reduceToBasics(), orientation.encodeForDLP(), KTDistanceUnit(text).units2Pixels(1e300),
        orientation.foldMargin(integer), KTSpaceMagnitude::fromSquareCentimeters(integer),
        KTFontCreator::instance()->createFont(text, integer), KTOrientation(text, QSizeF(number, integer)),
        KTOrientation(QSizeF(1, number)), debugText(distance), (distance * number).value(KTDistanceUnitPoint),
        KTSpaceMagnitude::estimateByAreaSizes(number), KTOrientation::createFromPageTilt(KTAngle(number)));
}

bool survivesMCF(const QString &text)
{
    const QString markers = QStringLiteral(",:|+%");
    return !text.isEmpty()
        && std::none_of(text.begin(), text.end(), [&](QChar c) { return markers.contains(c); });
}

void askVariants(const KTArticleVariants &variants, const KTArticleVariants &other)
{
    checkHash(variants, other);
    KT_REQUIRE(variants.contains(variants) && variants.containsAtLeastOne(variants));
    const KTArticleVariants back = KTArticleVariants::createFromMCF(variants.toMCF());
    const QStringList texts = variants.keys() + variants.values();
    KT_REQUIRE(back == variants || !std::all_of(texts.begin(), texts.end(), survivesMCF));
    // Once expanded, there is nothing left to expand.
    const KTArticleVariants expanded = variants.toXTCI();
    KT_REQUIRE(expanded.toXTCI() == expanded);
    KT_REQUIRE(variants.toOrderTxt().isEmpty() == !expanded.isValid());
    use(debugText(variants), variants.hasCoverColor(), other.containsAtLeastOne(variants));
}

void readVariants(const QString &text, const QString &other, qint64 bits)
{
    const KTArticleVariants variants(other);
    const bool isPair = (bits & 1) != 0;
    askVariants(isPair ? KTArticleVariants(text, other) : KTArticleVariants::createFromMCF(text), variants);
}

void readOffer(const QString &text, const QString &other, qint64)
{
    const KTConfiguredArticleVariantList offer = KTConfiguredArticleVariantList::createFromCSV(text);
    for (const KTConfiguredArticleVariant &option : offer) {
        const bool isPlain = survivesMCF(option.key()) && survivesMCF(option.value());
        KT_REQUIRE(!isPlain || KTConfiguredArticleVariant(option.toString()) == option);
        KT_REQUIRE(offer.contains(option.toArticleVariants()));
        use(option.describe());
    }
    use(offer.joinForOrderTxt(), offer.visibleNames(KTArticleVariants(other)), offer.possibleBoxStyles());
}

void readJSON(const QString &text, const QString &other, qint64)
{
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    QJsonObject object = document.object();
    const KTArticleId id(object);
    const KTShippingGroupId group(object);
    id.toJSON(object);
    KT_REQUIRE(KTArticleId(object) == id && KTArticleId(object, KTArticleId::defaultKey()) == id);
    group.toJSON(object);
    KT_REQUIRE(KTShippingGroupId(object) == group);
    const QJsonArray array = document.isArray() ? document.array() : QJsonArray {text, other};
    askVariants(KTArticleVariants(array), KTArticleVariants(other));
}

void readCodes(const QString &text, const QString &other, qint64)
{
    const KTProductType type(text);
    checkHash(type, KTProductType(other));
    KT_REQUIRE(KTProductType(type.toString()) == type && text.contains(type.toString()));
    KT_REQUIRE(!(type < type) && (!type.isAgenda() || type.isCalendar()));
    const KTProductTypeList types = KTProductTypeList::buildFromCSV(text);
    KT_REQUIRE(KTProductTypeList(types.toStringList()) == types);
    KTProductTypeList once;
    once.addWithoutDoubles(types);
    KT_REQUIRE(once.size() <= types.size());
    use(debugText(types), types.containsNotOnlyCalendars(), KTPriceClass(text).isFree());

    const KTShippingGroupId group = KTShippingGroupId::createFrom(text);
    KT_REQUIRE(KTShippingGroupId::createFrom(group.toString()) == group);
    use(KTArticleClass::createFromShippingGroupId(group),
        KTShippingGroupIdList(QList<int> {group.id()}).filter(group, true));
    use(KTArticleClassList::parseArticleClasses(text).filter(KTArticleClass(other)),
        KTOrderIdList({KTOrderId(text), KTOrderId(other)}).toString(), KTOrderId(text).toString(true),
        KTPriceClassSet({text, other}).toString(), KTNamedColor::renderColorPreviewHTML(QColor(text)));
    const QString path = KTDirectoryConfig::instance()->resource(text, true);
    KT_REQUIRE(path.isEmpty() || path.startsWith(KTDirectoryConfig::instance()->resourceRoot()));
}

template <typename... CLASS>
constexpr void (*QUESTIONS[])(const QString &text, const QString &other, qint64 bits)
    = {askRules, askNumbers, readVariants, readOffer, readJSON, readCodes, askKeywords<CLASS>...};

} // namespace

void KTFuzz::texts(Bytes input)
{
    const auto &questions
        = QUESTIONS<KTArticleClass, KTCoverType, KTDistanceUnit, KTDlpType, KTFotoPaperType, KTMaterialType,
                    KTOrientation, KTPageAlignment, KTPageBinding, KTPageType, KTPaperType,
                    KTProductArrangement, KTSpaceMagnitude, KTSpotColor>;
    const auto ask = questions[input.takeIndex(int(std::size(questions)))];
    const auto bits = input.take<qint64>();
    const QString text = input.takeLine();
    ask(text, input.takeLine(), bits);
}
