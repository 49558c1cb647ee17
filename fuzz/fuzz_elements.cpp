#include "KTFuzz.h"

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

constexpr int MAXIMUM_ELEMENTS = 12;

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ');
}

const QStringList TAGS = words("article composition spine barcodes barcode forms form page");
const QStringList NAMES = words(
    "pages max_pages page_step pieces packages_per_block base_width block_width additional_width units "
    "position_x position_y width height pageNr image key value key_name value_name editor_name preview "
    "color preselected not_accountable id art_id article_id shipping_group productname bleed_top "
    "bleed_left slipcase_height");
const QStringList VALUES = words(
    "-2147483648 -2147483647 -1 0 1 2 7 2000 1000000000 2147483640 2147483646 2147483647 4294967295 nan "
    "inf -inf 1e300 -1e300 1e-300 -1.5 214748364.7 1e999 mm inch pt parsec alcolor coverphoto boxstyle "
    "giftboxcolor;boxstyle black;wood gold true #80ff8000 ALB9_30 CAL29 dummy-barcode.png ../x.png %1%2 ");

/** Takes the next byte, 0 at the end. */
uchar take(QByteArray *input)
{
    const uchar byte = input->isEmpty() ? 0 : static_cast<uchar>(input->front());
    input->remove(0, 1);
    return byte;
}

/**
 * The elements of the document in their order. A byte begins a child, ends it or names an attribute, whose
 * value the next one chooses from the table; otherwise it is the text up to the end of the line.
 */
QVector<QDomElement> elementsOf(QByteArray input, QDomDocument *document)
{
    QDomElement element = document->createElement(QStringLiteral("catalogue"));
    document->appendChild(element);
    QVector<QDomElement> elements {element};
    while (!input.isEmpty()) {
        const int choice = take(&input);
        if (choice < TAGS.size() && elements.size() < MAXIMUM_ELEMENTS) {
            element = element.appendChild(document->createElement(TAGS.at(choice))).toElement();
            elements.append(element);
        } else if (choice == TAGS.size() && element != elements.constFirst()) {
            element = element.parentNode().toElement();
        } else {
            const int value = take(&input);
            const QByteArray line = input.left(qMax(0, input.indexOf('\n')));
            if (value >= VALUES.size())
                input.remove(0, line.size());
            element.setAttribute(NAMES.at(choice % NAMES.size()),
                                 VALUES.value(value, QString::fromUtf8(line)));
        }
    }
    return elements;
}

int number(const QDomElement &element, const char *attribute)
{
    return KTXMLParser::intAttribute(element, QString::fromLatin1(attribute), -1);
}

void readIds(const QDomElement &element)
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
    const KTConfiguredArticleVariant otherOption(other);
    checkHash(option, otherOption);
    KTConfiguredArticleVariant merged(option);
    merged.merge(otherOption);
    KT_REQUIRE(merged == option);
    use(option.describe(), option.isSpotColor(KTSpotColorGold), debugText(option));

    KTConfiguredArticleVariantList list(element);
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
    for (const KTConfiguredArticleVariant &variant : list)
        KT_REQUIRE(KTConfiguredArticleVariantList::createForProduction(variant).size()
                   == KTConfiguredArticleVariantList::createFromReduced(variant).size());
    for (const KTArticleVariants &style : list.possibleBoxStyles())
        KT_REQUIRE(list.contains(style) && list.possibleBoxStyles().containsBoxStyle(style));
    list.intersect(otherList, other.hasChildNodes());
    KT_REQUIRE(otherList.contains(list));
}

void askPageCounts(const KTPageCountOrganization &counts, const KTPageCountOrganization &other)
{
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
    if (element.hasChildNodes())
        use(spine.spineMaxFontHeigth(static_cast<unsigned int>(number(element, "pages")), element.tagName()));
}

void readBarcodes(const QDomElement &element, const QDomElement &other, const KTDistanceUnit &unit)
{
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

void readSizes(const QDomElement &element)
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

} // namespace

void KTFuzz::elements(const QByteArray &input)
{
    QDomDocument document;
    QDomElement other;
    for (const QDomElement &element : elementsOf(input, &document)) {
        readIds(element);
        readOptions(element, other);
        const KTPageCountOrganization counts = KTPageCountOrganization::createFromProductsXML(element);
        askPageCounts(counts, KTPageCountOrganization::createFromProductsXMLForPictureBox(other));
        askPageCounts(KTPageCountOrganization::createFromProductsXMLForPictureBox(element), counts);
        readSpine(element, other);
        readBarcodes(element, other, KTXMLParser::attribute(element, QStringLiteral("units"), QString()));
        readSizes(element);
        other = element;
    }
}
