#include <KTPageType.h>
#include <KTSpotColor.h>

#include "KTClassificationTest.h"

class tst_KTPageType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void expandsToKeywords()
    {
        KTPageType pageType(u"spine"_s);
        QCOMPARE(&pageType.expandToKeyword(u"cardfront, duplexcard"_s), &pageType);
        QCOMPARE(int(pageType.value()), 0x1003);
    }

    void allowsSpotColors()
    {
        // Of: no colour, gloss, gold, silver ink, gloss and silver ink, gloss or gold as one colour.
        const QList<KTSpotColor> lists[] = {
            {                   },
            {KTSpotColorGloss    },
            {KTSpotColorGold     },
            {KTSpotColorSilverInk},
            {KTSpotColorGloss,     KTSpotColorSilverInk},
            {KTTest::withBits<KTSpotColor>(3)                   }
        };
        const auto allowed = [&](int bits) {
            QString text;
            for (const QList<KTSpotColor> &list : lists)
                text.append(KTTest::withBits<KTPageType>(bits).isSpotColorAllowed(list) ? u'+' : u'-');
            return text;
        };
        KTTest::check<int>(allowed,
                           {"0x8 -> ---++-", "0x2 -> ++++++", "0x4 -> ---++-", "0x20 -> ++++++",
                            "0x100 -> +-+--+", "0x200 -> +-+--+", "0x120 -> +-+--+"});
    }

    void knowsItsRules()
    {
        const auto rules = [](int bits) {
            const auto pageType = KTTest::withBits<KTPageType>(bits);
            return KTTest::text(
                pageType.productionRenderingRule(), QString::number(pageType.renderingRule(), 16),
                pageType.explicitOrderPageNumber(), pageType.acceptTemplateRule(), pageType.acceptFotoRule());
        };
        KTTest::check<int>(rules,
                           {"0 -> 1|1c00|-1|0|3", "0x1 -> 1|80001e00|0|7|3", "0x2 -> 1|1c00|-1|7|3",
                            "0xa -> 0|1e00|-1|3|3", "0x10 -> 2|0|-1|0|0", "0x40 -> 0|1e00|1|3|3",
                            "0x80 -> 2|0|1|0|0", "0x200 -> 1|0|0|7|0", "0x10000 -> 0|1c00|2|7|3",
                            "0x20000 -> 2|1c00|-1|7|3", "0x80000 -> 0|1c00|1|7|3", "0xc0000 -> 1|1c00|-1|7|3",
                            "0xf03e1 -> 1|1c00|0|7|3", "0x9 -> 1|1c00|0|7|3", "0xe -> 1|1c00|-1|7|3",
                            "0x408 -> 1|1c00|-1|7|3"});
    }
};

QTEST_APPLESS_MAIN(tst_KTPageType)
#include "tst_KTPageType.moc"
