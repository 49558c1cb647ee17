#include <KTArticleClassList.h>
#include <KTShippingGroupId.h>

#include "KTClassificationTest.h"

#include <limits>

class tst_KTArticleClass : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsAndWritesKeywords()
    {
        KTTest::check(
            KTTest::readKeywords<KTArticleClass>,
            {" FotoBook -> 1|book|book", "poster -> 16|deko|deko",
             "express_fee -> 262144|expressFee|expressFee",
             "shipment_method_fee -> 2097152|shipmentMethodFee|shipmentMethodFee",
             "wall_holder_gallery_print -> 2147483648|wallholder_addOn|wallholder_addOn",
             "pre_assembled -> 274877906944|pre_assembled|pre_assembled",
             "calendar -> 6|calendar|normal_calendar, agenda",
             "gift -> 16320|gift|art_print, simple_gift, advent_calendar, playing_card, doublepage, "
             "picture_box, nature_bundle, puzzle",
             "fee -> 3932160|fee|expressFee, transferFee, paymentFee, shipmentMethodFee", "none -> 0|none|",
             "bock -> 0|none|", " -> 0|none|", "card,foto, -> 32776||card, foto"});
    }

    void groupsKinds()
    {
        const auto value = [](const QString &text) { return qint64(KTArticleClass(text).value()); };
        KTTest::check(
            value, {"photo -> 229376", "fullrange -> 32767", "article -> 262143", "add_on -> 274873712640"});
        using KTTest::bitsWhere;
        QCOMPARE(bitsWhere<KTArticleClass>([](auto kind) { return kind.maxAmount() == 1; }), 549630001152);
        QCOMPARE(bitsWhere<KTArticleClass>([](auto kind) { return kind.canModifyABK(); }), 229376);
    }

    void knowsItsCategory()
    {
        const auto category = [](qint64 value) {
            const auto articleClass = KTTest::withBits<KTArticleClass>(value);
            return KTTest::text(articleClass.toPHProjectCategory(), articleClass.toHumanReadable());
        };
        // Where several bits are set, the first of these categories counts; an advent calendar is a gift.
        KTTest::check<qint64>(
            category,
            {"32769 -> book|Fotobuch", "131088 -> prints|Fotos", "40 -> walldecor|Poster und Wandbilder",
             "18 -> walldecor|Poster und Wandbilder", "12 -> calendar|Kalender", "136 -> card|Grußkarten",
             "256 -> other|Fotogeschenke", "0 -> other|Fotogeschenke"});
    }

    void belongsToShippingGroup()
    {
        for (const auto &pair : {std::pair(1, 32768), std::pair(18, 65536), std::pair(3, 131072)}) {
            const KTArticleClass articleClass = KTArticleClass::createFromShippingGroupId(pair.first);
            QCOMPARE(int(articleClass.value()), pair.second);
            QCOMPARE(articleClass.shippingGroup().id(), pair.first);
        }
        for (const int id : {-1, 0, 2, 17})
            QVERIFY(KTArticleClass::createFromShippingGroupId(id).isNull());
        QVERIFY(!KTArticleClass(KTArticleClassPhoto).shippingGroup().isValid());
        QVERIFY(!KTArticleClass(KTArticleClassBook).shippingGroup().isValid());
    }

    void sortsShoppingCart()
    {
        // Where the cart leaves the order of the bits.
        const QStringList sorted = u"card spotColor_addOn matt_cover_addOn giftBox_addOn "
                                   "flyleafcolor video_addOn locrMap_addOn design_addOn "
                                   "frame_addOn giftWrap_addOn envelope_addOn slipcase"_s.split(u' ');
        for (int i = 0; i < sorted.size(); ++i) {
            for (int j = 0; j < sorted.size(); ++j) {
                QCOMPARE(KTArticleClass::lessThanShopCart(KTArticleClass(sorted.at(i)).value(),
                                                          KTArticleClass(sorted.at(j)).value()),
                         i < j);
            }
        }
        const auto less = KTArticleClass::lessThanShopCart;
        QVERIFY(less(KTArticleClassFrameConstruction, KTArticleClassReserved29));
        QVERIFY(less(KTArticleClassReserved29, KTArticleClassWallholderAddOn));
        QVERIFY(less(KTArticleClassWallholderAddOn, KTArticleClassReserved30));
        QVERIFY(less(KTArticleClassReserved30, KTArticleClassGiftWrapAddOn));
        QVERIFY(!less(KTArticleClassBook, KTArticleClassCard));
        QVERIFY(!less(KTArticleClassCard, KTArticleClassReserved37));
        QVERIFY2(less(KTArticleClassAddOn, KTArticleClassPagePackageAddOn), "a union is not listed");
    }

    void writesTemplate()
    {
        KTTest::check<qint64>(KTTest::templateOf<KTArticleClass>,
                              {"0 -> <t/>", "32767 -> <t/>",
                               "6 -> <t><type>normal_calendar</type><type>agenda</type></t>",
                               "536870912 -> <t><type></type></t>"});
    }

    void parsesAndFiltersLists()
    {
        const auto written = [](const KTArticleClassList &list) {
            QStringList keywords;
            for (const KTArticleClass &articleClass : list)
                keywords.append(articleClass.encode());
            return keywords.join(u' ');
        };
        const auto list = KTArticleClassList::parseArticleClasses(u"Book,, card ,bock,gift,book"_s);
        QCOMPARE(written(list), u"book card none gift book"_s);
        QCOMPARE(written(list.filter(KTArticleClassFullrange)), u"book card gift book"_s);
        QCOMPARE(written(list.filter(KTArticleClassPuzzle)), u"gift"_s);
        QVERIFY(list.filter(KTArticleClassNone).isEmpty());
        QVERIFY(KTArticleClassList::parseArticleClasses(u",,"_s).isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_KTArticleClass)
#include "tst_KTArticleClass.moc"
