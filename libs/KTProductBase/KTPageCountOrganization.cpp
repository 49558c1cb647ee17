#include "KTPageCountOrganization.h"

#include <KTArithmetic.h>
#include <KTStringLiteral.h>
#include <KTXMLElement.h>
#include <KTXMLParser.h>

#include <QDebug>
#include <QDomElement>

#include <cmath>

using KTArithmetic::saturated;

namespace {

constexpr KTStringLiteral PIECES_ATTRIBUTE = "pieces";
constexpr KTStringLiteral PAGES_ATTRIBUTE = "pages";
constexpr KTStringLiteral MAX_PAGES_ATTRIBUTE = "max_pages";
constexpr KTStringLiteral PAGE_STEP_ATTRIBUTE = "page_step";

constexpr int DEFAULT_PIECES = 1;
constexpr int DEFAULT_PAGES = 1;
constexpr int DEFAULT_PAGE_STEP = 0;
constexpr int DEFAULT_PICTURE_BOX_SPAN = 29;
constexpr int DEFAULT_PICTURE_BOX_STEP = 1;
constexpr int ADVENT_CALENDAR_PAGES = 25;

} // namespace

KTPageCountOrganization::KTPageCountOrganization(const KTIntRange &range, int pageIncrement)
    : myRange(range)
    , myPageIncrement(pageIncrement)
{
}

KTPageCountOrganization::~KTPageCountOrganization() = default;

KTPageCountOrganization KTPageCountOrganization::createFromProductsXML(const QDomElement &element)
{
    return createFromProductsXML(KTXMLElement(element));
}

KTPageCountOrganization KTPageCountOrganization::createFromProductsXML(const KTXMLElement &element)
{
    const int pieces = KTXMLParser::intAttribute(element, PIECES_ATTRIBUTE, DEFAULT_PIECES);
    const int pages = KTXMLParser::intAttribute(element, PAGES_ATTRIBUTE, DEFAULT_PAGES);
    const int maxPages = KTXMLParser::intAttribute(element, MAX_PAGES_ATTRIBUTE, pages);
    const int step = KTXMLParser::intAttribute(element, PAGE_STEP_ATTRIBUTE, DEFAULT_PAGE_STEP);
    return KTPageCountOrganization(KTIntRange(pages, maxPages).stretched(pieces), step);
}

KTPageCountOrganization
KTPageCountOrganization::createFromProductsXMLForPictureBox(const QDomElement &element)
{
    return createFromProductsXMLForPictureBox(KTXMLElement(element));
}

KTPageCountOrganization
KTPageCountOrganization::createFromProductsXMLForPictureBox(const KTXMLElement &element)
{
    const int pages = KTXMLParser::intAttribute(element, PAGES_ATTRIBUTE, DEFAULT_PAGES);
    const int maxPages = KTXMLParser::intAttribute(element, MAX_PAGES_ATTRIBUTE,
                                                   saturated(qint64(pages) + DEFAULT_PICTURE_BOX_SPAN));
    const int step = KTXMLParser::intAttribute(element, PAGE_STEP_ATTRIBUTE, DEFAULT_PICTURE_BOX_STEP);
    return KTPageCountOrganization(KTIntRange(pages, maxPages), step);
}

KTPageCountOrganization KTPageCountOrganization::createForAdventCalendarWithDoorBackPrint()
{
    return KTPageCountOrganization(KTIntRange(ADVENT_CALENDAR_PAGES, ADVENT_CALENDAR_PAGES), 0);
}

KTPageCountOrganization KTPageCountOrganization::clone(bool fixed) const
{
    return fixed ? KTPageCountOrganization(KTIntRange(minPages(), minPages()), myPageIncrement) : *this;
}

KTPageCountOrganization KTPageCountOrganization::adaptedTo(int pages) const
{
    if (minPages() >= pages)
        return *this;
    const int min = pages > maxPages() ? qMax(minPages(), maxPages()) : firstStepFrom(pages);
    return KTPageCountOrganization(KTIntRange(min, maxPages()), myPageIncrement);
}

int KTPageCountOrganization::constrain(int pages) const
{
    // An inverted range gives its minimum, so qBound(), which takes the ends in order, does not serve.
    return inRange(pages) ? firstStepFrom(pages) : qMax(minPages(), qMin(pages, maxPages()));
}

int KTPageCountOrganization::pagesWithNExtraPackages(int n) const
{
    return saturated(qint64(n) * myPageIncrement + minPages());
}

int KTPageCountOrganization::countPackages(int pages) const
{
    if (myPageIncrement == 0 || pages <= minPages())
        return 0;
    return saturated((qint64(pages) - minPages()) / myPageIncrement);
}

int KTPageCountOrganization::numberOfPackages() const
{
    if (myPageIncrement == 0)
        return 1;
    return saturated((qint64(maxPages()) - minPages()) / myPageIncrement + 1);
}

bool KTPageCountOrganization::isValid() const
{
    if (minPages() == maxPages())
        return minPages() != 0;
    return minPages() < maxPages() && myPageIncrement > 0;
}

bool KTPageCountOrganization::isConsistent() const
{
    return isValid() && isValidPageCount(maxPages());
}

bool KTPageCountOrganization::isValidPageCount(int pages) const
{
    if (!inRange(pages))
        return false;
    return myPageIncrement == 0 || (qint64(pages) - minPages()) % myPageIncrement == 0;
}

bool KTPageCountOrganization::isOnePageProduct() const
{
    return minPages() < 2;
}

QString KTPageCountOrganization::dump() const
{
    return QStringLiteral("min: %1; max: %2; increment: %3")
        .arg(minPages())
        .arg(maxPages())
        .arg(myPageIncrement);
}

KTPageCountOrganization KTPageCountOrganization::operator-=(int pages)
{
    const KTIntRange shifted = myRange.shifted(-qint64(pages));
    if (shifted.min() >= 1)
        myRange = shifted;
    return *this;
}

bool KTPageCountOrganization::operator==(const KTPageCountOrganization &other) const
{
    return myRange == other.myRange && myPageIncrement == other.myPageIncrement;
}

/** The pages lie in the range; the step need not. Without an increment it is the minimum. */
int KTPageCountOrganization::firstStepFrom(int pages) const
{
    if (myPageIncrement == 0)
        return minPages();
    const double packages = std::ceil((double(pages) - minPages()) / myPageIncrement);
    return saturated(static_cast<qint64>(packages) * myPageIncrement + minPages());
}

QDebug operator<<(QDebug stream, const KTPageCountOrganization &organization)
{
    const QDebugStateSaver saver(stream);
    stream.noquote() << organization.dump();
    return stream;
}
