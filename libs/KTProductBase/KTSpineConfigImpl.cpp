#include "KTSpineConfigImpl.h"

#include <KTArithmetic.h>
#include <KTDistanceUnit.h>
#include <KTFontCreator.h>
#include <KTFontSizeManager.h>
#include <KTStringLiteral.h>
#include <KTXMLElement.h>
#include <KTXMLParser.h>

#include <QDebug>
#include <QDomElement>
#include <QFont>
#include <QFontMetrics>
#include <QMessageLogger>

#include <algorithm>
#include <limits>

namespace {

constexpr KTStringLiteral COMPOSITION_TAG = "composition";
constexpr KTStringLiteral SPINE_TAG = "spine";
constexpr KTStringLiteral PACKAGES_PER_BLOCK_ATTRIBUTE = "packages_per_block";
constexpr KTStringLiteral BASE_WIDTH_ATTRIBUTE = "base_width";
constexpr KTStringLiteral BLOCK_WIDTH_ATTRIBUTE = "block_width";
constexpr KTStringLiteral ADDITIONAL_WIDTH_ATTRIBUTE = "additional_width";

constexpr double SPINE_SIDES = 2.0;
/** The share of the bare spine that may be printed on. */
constexpr double PRINTABLE_SHARE = 0.85;

int bounded(unsigned int pages)
{
    constexpr auto HIGHEST = static_cast<unsigned int>(std::numeric_limits<int>::max());
    return static_cast<int>(std::min(pages, HIGHEST));
}

} // namespace

KTSpineConfigImpl::KTSpineConfigImpl(const KTPageCountOrganization &pageOrganization, int packagesPerBlock,
                                     const KTDistance &baseWidth, const KTDistance &blockWidth,
                                     const KTDistance &additionalWidth)
    : myPageOrganization(pageOrganization)
    , myPackagesPerBlock(packagesPerBlock)
    , myBaseWidth(baseWidth)
    , myBlockWidth(blockWidth)
    , myAdditionalWidth(additionalWidth)
{
}

KTSpineConfigImpl::~KTSpineConfigImpl() = default;

KTSpineConfigImpl KTSpineConfigImpl::createFromProductsXML(const QDomElement &element)
{
    return createFromProductsXML(KTXMLElement(element));
}

KTSpineConfigImpl KTSpineConfigImpl::createFromProductsXML(const KTXMLElement &element)
{
    const KTXMLElement composition = element.firstChildElement(COMPOSITION_TAG);
    const KTDistanceUnit unit = KTXMLParser::readUnit(composition);
    const KTXMLElement spine = composition.firstChildElement(SPINE_TAG);
    return KTSpineConfigImpl(KTPageCountOrganization::createFromProductsXML(element),
                             KTXMLParser::intAttribute(spine, PACKAGES_PER_BLOCK_ATTRIBUTE, 0),
                             KTXMLParser::readDistance(spine, BASE_WIDTH_ATTRIBUTE, 0.0, unit),
                             KTXMLParser::readDistance(spine, BLOCK_WIDTH_ATTRIBUTE, 0.0, unit),
                             KTXMLParser::readDistance(spine, ADDITIONAL_WIDTH_ATTRIBUTE, 0.0, unit));
}

bool KTSpineConfigImpl::isValid() const
{
    return myPageOrganization.isValid();
}

int KTSpineConfigImpl::additionalPagePackageBlocks(unsigned int pages) const
{
    if (myPackagesPerBlock == 0)
        return 0;
    const qint64 packages = myPageOrganization.countPackages(bounded(pages));
    return KTArithmetic::saturated(packages / myPackagesPerBlock);
}

KTDistance KTSpineConfigImpl::additionalWithForPages(unsigned int pages) const
{
    return myBlockWidth * additionalPagePackageBlocks(pages);
}

KTDistance KTSpineConfigImpl::spineWidth(unsigned int pages) const
{
    return myBaseWidth + additionalWithForPages(pages) + myAdditionalWidth * SPINE_SIDES;
}

int KTSpineConfigImpl::spineMaxFontHeigth(unsigned int pages, const QString &fontFamily) const
{
    const KTFontCreator *const fonts = KTSingleton<KTFontCreator>::instance();
    const QString family = fontFamily.isEmpty() ? fonts->defaultFontFamily() : fontFamily;
    KTDistance width = spineWidth(pages);
    width -= myAdditionalWidth * SPINE_SIDES;
    width *= PRINTABLE_SHARE;
    // Layout units against the pixels of the font metrics: they are compared as they are.
    const int limit = KTArithmetic::rounded(width.layoutUnits());

    const QList<int> sizes = KTSingleton<KTFontSizeManager>::instance()->defaultFontSizes();
    if (sizes.size() > 1 && !fonts->canMeasure()) {
        QMessageLogger("libs/KTProductBase/KTSpineConfigImpl", __LINE__, Q_FUNC_INFO, "default").warning()
            << "fonts cannot be measured without a QGuiApplication (using the smallest size)";
        return sizes.constFirst();
    }
    // The first size is never measured: smaller text is not offered even where it does not fit.
    for (int i = 1; i < sizes.size(); ++i) {
        if (QFontMetrics(fonts->createFont(family, sizes.at(i))).lineSpacing() > limit)
            return sizes.at(i - 1);
    }
    return sizes.isEmpty() ? 0 : sizes.last();
}

int KTSpineConfigImpl::coverReduceSize() const
{
    return KTArithmetic::truncated(myAdditionalWidth.layoutUnits());
}

QString KTSpineConfigImpl::dump() const
{
    return QStringLiteral("%1; packages per block: %2; widths: %3 %4 %5")
        .arg(myPageOrganization.dump())
        .arg(myPackagesPerBlock)
        .arg(myBaseWidth.layoutUnits())
        .arg(myBlockWidth.layoutUnits())
        .arg(myAdditionalWidth.layoutUnits());
}

bool KTSpineConfigImpl::operator==(const KTSpineConfigImpl &other) const
{
    return myPageOrganization == other.myPageOrganization && myPackagesPerBlock == other.myPackagesPerBlock
        && qFuzzyCompare(myBaseWidth.layoutUnits(), other.myBaseWidth.layoutUnits())
        && qFuzzyCompare(myBlockWidth.layoutUnits(), other.myBlockWidth.layoutUnits())
        && myAdditionalWidth == other.myAdditionalWidth;
}
