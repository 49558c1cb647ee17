#include "KTFuzz.h"

#include <KTArithmetic.h>
#include <KTArticleId.h>
#include <KTBarcodeDefinitionList.h>
#include <KTConfiguredArticleVariantList.h>
#include <KTDistanceUnit.h>
#include <KTPageCountOrganizationListModel.h>
#include <KTPageSizeSpec.h>
#include <KTProductType.h>
#include <KTShippingGroupId.h>
#include <KTSpineConfig.h>
#include <KTSpotColor.h>
#include <KTXMLParser.h>

#include <QDomDocument>
#include <QImage>
#include <QRegion>

using namespace KTFuzz;

namespace {

constexpr int MAX_ELEMENTS = 8;

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

// Those that arithmetic fears most stand twice, because some faults need several of them together.
const QStringList NUMBERS = words(
    "-2147483648 -2147483648 -2147483647 -1 -1 0 1 2 7 2000 1000000000 2147483640 2147483646 2147483647 "
    "4294967295 nan inf -inf 1e300 -1e300 1e-300 -1.5 214748364.7 1e999 1.7e308 mm inch pt parsec ");
const QStringList VALUES = NUMBERS
    + words("alcolor coverphoto boxstyle giftboxcolor;boxstyle black;wood gold true #80ff8000 ALB9_30 CAL29 "
            "dummy-barcode.png ../x.png %1%2");

/** What is asked, the way down to the elements that it reads, the attributes that it knows, their values. */
struct Question
{
    void (*ask)(const QDomElement &element, const QDomElement &other);
    QStringList tags;
    QStringList names;
    QStringList values;
};

/**
 * An article as the bytes say: each of them ends it, or goes on to a child on the question's way down and at
 * its end to a sibling, or names an attribute, whose value is one of the table or else stands in the line.
 */
QDomElement takeArticle(const Question &question, Bytes *input)
{
    // Making a document costs more than most questions.
    static QDomDocument *const document = new QDomDocument;
    const QDomElement article = document->createElement(QStringLiteral("article"));
    QDomElement element = article;
    int count = 0;
    while (const int choice = input->takeIndex(KTArithmetic::sizeOf(question.names) + 2)) {
        if (choice > 1) {
            const int value = input->takeIndex(KTArithmetic::sizeOf(question.values) + 1);
            element.setAttribute(question.names.at(choice - 2),
                                 value > 0 ? question.values.at(value - 1) : input->takeLine());
        } else if (++count <= question.tags.size()) {
            element = element.appendChild(document->createElement(question.tags.at(count - 1))).toElement();
        } else if (count <= MAX_ELEMENTS && element != article) {
            element = element.parentNode().appendChild(element.cloneNode(false)).toElement();
        }
    }
    return article;
}

int number(const QDomElement &element, const char *attribute)
{
    return KTXMLParser::intAttribute(element, QString::fromLatin1(attribute), -1);
}

void readIds(const QDomElement &element, const QDomElement &)
{
    const QDomNamedNodeMap attributes = element.attributes();
    QDomElement copy = element.cloneNode().toElement();
    const QString name = QStringLiteral("shipping_group");
    for (const KTArticleId &id :
         {KTArticleId::findId(element), KTArticleId::fromArticleIdAttribute(attributes)}) {
        id.toIdAttribute(copy);
        id.toArtIdAttribute(copy);
        id.toAttribute(copy, name);
        KT_REQUIRE(KTArticleId::fromIdAttribute(copy) == id && KTArticleId::fromArtIdAttribute(copy) == id);
        KT_REQUIRE(KTArticleId(copy.attributes(), name) == id && KTArticleId::findId(copy) == id);
        KT_REQUIRE(KTArticleId::fromIdAttribute(id.createSubElement(copy, name)) == id);
        use(id.isFotoWithoutVariableLength(), id.isAdventCalendarWithDoorBackPrint(), debugText(id));
    }
    for (const KTShippingGroupId &id : {KTShippingGroupId(attributes), KTShippingGroupId(element, name)}) {
        id.toXML(copy);
        KT_REQUIRE(KTShippingGroupId(copy) == id);
        use(id.isCombinedTransfer(), debugText(id));
    }
    const KTProductType type = KTProductType::fromMcf(element);
    use(type.orderTxtName(), type.isAgenda(), type.isCalendar());
}

void readOptions(const QDomElement &element, const QDomElement &other)
{
    const KTConfiguredArticleVariant option(element);
    checkHash(option, KTConfiguredArticleVariant(other));
    KTConfiguredArticleVariant merged(option);
    merged.merge(KTConfiguredArticleVariant(other));
    KT_REQUIRE(merged == option);
    KT_REQUIRE(KTConfiguredArticleVariantList::createForProduction(option).size()
               == KTConfiguredArticleVariantList::createFromReduced(option).size());
    use(option.describe(), option.isSpotColor(KTSpotColorGold), debugText(option));

    KTConfiguredArticleVariantList list(other);
    list.readVariants(element);
    KT_REQUIRE(list == KTConfiguredArticleVariantList(element));
    const KTConfiguredArticleVariantList otherList(other);
    const KTArticleVariants chosen = list.defaultVariants();
    KT_REQUIRE(list.contains(list) && list.contains(chosen) && list.containsAtLeastOne(list));
    use(list.joinForOrderTxt(), list.notAccountableVariant(), otherList.contains(chosen), debugText(list),
        list.editorNames(chosen), list.visibleNames(KTArticleVariants(element)));
    for (const QString &key : list.keys()) {
        KT_REQUIRE(list.variantByKey(key).isValid() && !list.filter(key).isEmpty());
        KT_REQUIRE(list.variantByValue(chosen.value(key, QString())).isValid()
                   || chosen.value(key, QString()).isEmpty());
    }
    const KTArticleVariantsList styles = list.possibleBoxStyles();
    for (const KTArticleVariants &style : styles)
        KT_REQUIRE(list.contains(style) && styles.containsBoxStyle(style));
    list.intersect(otherList, other.hasChildNodes());
    KT_REQUIRE(otherList.contains(list));
}

void readPageCounts(const QDomElement &element, const QDomElement &otherElement)
{
    const bool isBox = number(element, "pieces") < 0;
    const KTPageCountOrganization counts = isBox
        ? KTPageCountOrganization::createFromProductsXMLForPictureBox(element)
        : KTPageCountOrganization::createFromProductsXML(element);
    const KTPageCountOrganization other = KTPageCountOrganization::createFromProductsXML(otherElement);
    checkEquality(counts, other);
    KTPageCountOrganizationListModel model;
    model.setPageOrganization(counts, counts.isValid());
    KT_REQUIRE(model.rowCount() >= 0 && (!counts.isConsistent() || counts.isValid()));
    use(counts.numberOfPackages(), counts.clone(true), counts.isOnePageProduct(), debugText(counts),
        model.lowestValue(), model.highestValue(), counts.range().intersects(other.range()),
        counts.range() < other.range(), counts.range().contains(other.range()), counts.range().center());
    for (const int argument : KTTest::INTS) {
        KT_REQUIRE(!counts.isConsistent() || counts.isValidPageCount(counts.constrain(argument)));
        use(counts.adaptedTo(argument), counts.pagesWithNExtraPackages(argument),
            counts.countPackages(argument), counts.isValidPageCount(argument), model.pagesAtIndex(argument),
            model.indexForPages(argument), model.data(model.index(argument, 0)),
            counts.range().stretched(argument), counts.range().shifted(argument),
            counts.range().shifted(argument * qint64(INT_MAX)));
        const KTSpineConfig spine(counts, argument, KTDistance(), KTDistance(), KTDistance());
        use(spine.additionalPagePackageBlocks(INT_MAX));
        KTPageCountOrganization moved(counts);
        moved -= argument;
        KTIntRange range = counts.range();
        range.expandTo(argument);
        KT_REQUIRE(!counts.range().isValid() || range.contains(argument));
    }
}

void readSpine(const QDomElement &element, const QDomElement &other)
{
    const KTSpineConfig spine = KTSpineConfig::createFromProductsXML(element);
    KT_REQUIRE((spine == KTSpineConfig::createFromProductsXML(other))
               == (KTSpineConfig::createFromProductsXML(other) == spine));
    use(spine.isValid(), spine.coverReduceSize(), spine.additionalSpineWidth());
    for (const int argument : KTTest::INTS)
        use(spine.additionalPagePackageBlocks(static_cast<unsigned int>(argument)),
            debugText(spine.spineWidth(static_cast<unsigned int>(argument))));
    if (other.hasChildNodes())
        use(spine.spineMaxFontHeigth(static_cast<unsigned int>(number(element, "pages")), element.tagName()));
}

void readBarcodes(const QDomElement &element, const QDomElement &other)
{
    const KTDistanceUnit unit(KTXMLParser::attribute(element, QStringLiteral("units"), QString()));
    const KTBarcodeDefinition barcode = KTBarcodeDefinition::createFromProductsXML(element, unit);
    checkHash(barcode, KTBarcodeDefinition::createFromProductsXML(other, unit));
    KTBarcodeDefinitionList list = KTBarcodeDefinitionList::createFromProductsXML(element, unit);
    for (const KTBarcodeDefinition &entry : list) {
        const QRect rect = entry.rect();
        KT_REQUIRE(entry.isValid() && rect.left() <= rect.right() && rect.top() <= rect.bottom());
        KT_REQUIRE(rect.width() > 0 && rect.height() > 0);
        KT_REQUIRE(list.findDefinition(rect).isValid());
    }
    list.updateDefinitions(KTBarcodeDefinitionList::createFromXTCI(element, unit));
    const KTBarcodeDefinitionList otherList = KTBarcodeDefinitionList::createFromProductsXML(other, unit);
    list.updateDefinitions(otherList);
    use(list < otherList, list.barcodesOnPage(barcode.pageNr()), list.occupiedRegion(), debugText(barcode));
    if (element.hasAttribute(QStringLiteral("image")))
        use(barcode.image());
}

void readSizes(const QDomElement &element, const QDomElement &)
{
    for (const int argument : KTTest::INTS) {
        const KTMargins margins(number(element, "bleed_top"), argument, number(element, "bleed_left"),
                                argument);
        KTPageSizeSpec size(QSize(number(element, "width"), argument), margins);
        size.setUsableSlipcaseCoverSize(QSize(argument, number(element, "slipcase_height")));
        checkEquality(size, KTPageSizeSpec(size.usableSize(), KTMargins(argument, argument)));
        use(size.totalSize(), size.topLeftOffsetOfUsablePrintArea(), size.slipcaseTranslationPoint(),
            margins.totalMarginWH(), debugText(size), debugText(margins));
    }
}

// clang-format off
const Question QUESTIONS[] = {
    {&readIds, {}, words("id art_id article_id shipping_group productname"), VALUES},
    {&readOptions, words("forms form"),
     words("key value key_name value_name name editor_name preview color preselected not_accountable"), VALUES},
    {&readPageCounts, {}, words("pages max_pages page_step pieces"), NUMBERS},
    {&readSpine, words("composition spine"),
     words("pages max_pages page_step packages_per_block base_width block_width additional_width units"), NUMBERS},
    {&readBarcodes, words("barcode"), words("position_x position_y width height pageNr image units"), VALUES},
    {&readSizes, {}, words("width bleed_top bleed_left slipcase_height"), NUMBERS},
};
// clang-format on

} // namespace

void KTFuzz::elements(Bytes input)
{
    const Question &question = QUESTIONS[input.takeIndex(int(std::size(QUESTIONS)))];
    const QDomElement element = takeArticle(question, &input);
    question.ask(element, takeArticle(question, &input));
}
