#include <KTPageCountOrganization.h>

#include "KTBoundaries.h"
#include "KTTestSupport.h"

#include <QRandomGenerator>

using KTTest::toInt;
using KTTest::Wide;
using Numbers = QVector<int>;

namespace {

/** All answers for a page count: six numbers, two organisations, five flags. */
Numbers answers(const KTPageCountOrganization &pages, int p)
{
    const KTPageCountOrganization adapted = pages.adaptedTo(p);
    KTPageCountOrganization changed = pages;
    const KTPageCountOrganization shifted = changed -= p;
    if (changed != shifted || adapted.pageIncrement() != pages.pageIncrement())
        return {};
    Numbers result {pages.constrain(p), pages.countPackages(p), pages.numberOfPackages()};
    result << pages.pagesWithNExtraPackages(p) << adapted.minPages() << adapted.maxPages();
    result << shifted.minPages() << shifted.maxPages() << pages.isValid() << pages.isConsistent();
    return result << pages.isOnePageProduct() << pages.inRange(p) << pages.isValidPageCount(p);
}

/** The rules as they are written down, in numbers that never overflow. */
Numbers expectedAnswers(Wide min, Wide max, Wide step, Wide p)
{
    const bool isInside = min <= p && p <= max;
    const bool isValid = (min != 0 && min == max) || (min < max && step > 0);
    const auto isStep = [=](Wide count) { return step == 0 || std::fmod(count - min, step) == 0; };
    const Wide next = step == 0 ? min : min + std::ceil((p - min) / step) * step;
    const bool shifts = min - p >= 1;
    const Wide raised = p > max ? std::fmax(min, max) : next;
    Numbers result {toInt(isInside ? next : std::fmax(min, std::fmin(p, max)))};
    result << toInt(step == 0 || p <= min ? 0 : (p - min) / step);
    result << toInt(step == 0 ? 1 : std::trunc((max - min) / step) + 1) << toInt(p * step + min);
    result << toInt(min >= p ? min : raised) << toInt(max);
    result << toInt(shifts ? min - p : min) << toInt(shifts ? max - p : max) << isValid;
    return result << (max >= min && isValid && isStep(max)) << (min < 2) << isInside
                  << (isInside && isStep(p));
}

} // namespace

class tst_KTPageCountOrganization : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsElement()
    {
        // In general, and for a picture box.
        const auto read = [](const QString &attributes) {
            const QDomElement element = KTTest::element(u"<page %1/>"_s.arg(attributes));
            return KTTest::text(KTPageCountOrganization::createFromProductsXML(element).dump(),
                                KTPageCountOrganization::createFromProductsXMLForPictureBox(element).dump());
        };
        KTTest::checkTable(u"pagecounts.tsv"_s, read);
    }

    void agreesWithTheModel()
    {
        const auto check = [](int min, int max, int step, int p) {
            QCOMPARE(answers(KTPageCountOrganization(KTIntRange(min, max), step), p),
                     expectedAnswers(min, max, step, p));
        };
        for (const int min : KTTest::INTS)
            for (const int max : KTTest::INTS)
                for (const int step : KTTest::INTS)
                    for (const int p : KTTest::INTS)
                        check(min, max, step, p);
        QRandomGenerator random(17);
        for (int i = 0; i < 5000; ++i)
            check(random.bounded(-2, 40), random.bounded(-2, 80), random.bounded(-3, 9),
                  random.bounded(-2, 99));
    }

    void copiesAndDumps()
    {
        const KTPageCountOrganization pages(KTIntRange(24, 96), 4);
        QCOMPARE(pages.clone(false), pages);
        QCOMPARE(pages.clone(true), KTPageCountOrganization(KTIntRange(24, 24), 4));
        QVERIFY(pages != pages.clone(true) && pages != KTPageCountOrganization(pages.range(), 3));
        QCOMPARE(KTTest::logged(KTPageCountOrganization::createForAdventCalendarWithDoorBackPrint()),
                 u"min: 25; max: 25; increment: 0 "_s);
    }
};

QTEST_APPLESS_MAIN(tst_KTPageCountOrganization)
#include "tst_KTPageCountOrganization.moc"
