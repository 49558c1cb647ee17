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

    void knowsItsRules()
    {
        const auto rules = [](int bits) {
            const auto pageType = KTTest::withBits<KTPageType>(bits);
            const auto allows
                = [&](const QList<KTSpotColor> &colors) { return pageType.isSpotColorAllowed(colors); };
            return KTTest::text(
                pageType.productionRenderingRule(), QString::number(pageType.renderingRule(), 16),
                pageType.explicitOrderPageNumber(), pageType.acceptTemplateRule(), pageType.acceptFotoRule(),
                allows({}), allows({KTSpotColorGloss}), allows({KTSpotColorGold}),
                allows({KTSpotColorSilverInk}), allows({KTSpotColorGloss, KTSpotColorSilverInk}),
                allows({KTTest::withBits<KTSpotColor>(3)}));
        };
        KTTest::checkTable<int>(u"pagetypes.tsv"_s, rules);
    }
};

QTEST_APPLESS_MAIN(tst_KTPageType)
#include "tst_KTPageType.moc"
