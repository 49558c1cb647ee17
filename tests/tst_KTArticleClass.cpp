#include <KTArticleClassList.h>
#include <KTShippingGroupId.h>

#include "KTClassificationTest.h"
#include "KTTestSupport.h"

#include <QtTest>

#include <limits>

class tst_KTArticleClass : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsAndWritesKeywords_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("value");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("bits");
        const auto row
            = [](const char *name, const char *text, qint64 value, const char *written, const char *bits) {
                  QTest::newRow(name) << QString::fromLatin1(text) << value << QString::fromLatin1(written)
                                      << QString::fromLatin1(bits);
              };
        row("alias", " FotoBook", 1, "book", "book");
        row("two aliases", "poster", 16, "deko", "deko");
        row("fee written first", "express_fee", 262144, "expressFee", "expressFee");
        row("last fee", "shipment_method_fee", 2097152, "shipmentMethodFee", "shipmentMethodFee");
        row("beyond 31 bits", "wall_holder_gallery_print", 2147483648, "wallholder_addOn",
            "wallholder_addOn");
        row("highest bit", "pre_assembled", 274877906944, "pre_assembled", "pre_assembled");
        row("composite", "calendar", 6, "calendar", "normal_calendar, agenda");
        row("gift", "gift", 16320, "gift",
            "art_print, simple_gift, advent_calendar, playing_card, doublepage, picture_box, nature_bundle, "
            "puzzle");
        row("fee", "fee", 3932160, "fee", "expressFee, transferFee, paymentFee, shipmentMethodFee");
        row("none", "none", 0, "none", "");
        row("unknown word", "bock", 0, "none", "");
        row("empty", "", 0, "none", "");
        row("union", "card,foto,", 32776, "", "card, foto");
    }
    void readsAndWritesKeywords()
    {
        QFETCH(QString, text);
        const KTArticleClass articleClass(text);
        QTEST(qint64(articleClass.value()), "value");
        QTEST(articleClass.encode(), "written");
        QTEST(articleClass.encodeCSV(), "bits");
    }

    void groupsKinds()
    {
        const auto value
            = [](const char *text) { return qint64(KTArticleClass(QString::fromLatin1(text)).value()); };
        QCOMPARE(value("photo"), 229376);
        QCOMPARE(value("fullrange"), 32767);
        QCOMPARE(value("article"), 262143);
        QCOMPARE(value("add_on"), 274873712640);
        using KTTest::bitsWhere;
        QCOMPARE(bitsWhere<KTArticleClass>([](auto kind) { return kind.maxAmount() == 1; }), 549630001152);
        QCOMPARE(bitsWhere<KTArticleClass>([](auto kind) { return kind.canModifyABK(); }), 229376);
    }

    void knowsItsCategory_data()
    {
        QTest::addColumn<qint64>("value");
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *name, qint64 value, const char *category, const char *display) {
            QTest::newRow(name) << value << QString::fromLatin1(category) << QString::fromUtf8(display);
        };
        row("book before prints", 1 | 32768, "book", "Fotobuch");
        row("prints before wall decor", 131072 | 16, "prints", "Fotos");
        row("wall decor before card", 32 | 8, "walldecor", "Poster und Wandbilder");
        row("wall decor before calendar", 16 | 2, "walldecor", "Poster und Wandbilder");
        row("calendar before card", 4 | 8, "calendar", "Kalender");
        row("card before gift", 8 | 128, "card", "Grußkarten");
        row("advent calendar is a gift", 256, "other", "Fotogeschenke");
        row("none", 0, "other", "Fotogeschenke");
    }
    void knowsItsCategory()
    {
        QFETCH(qint64, value);
        const KTArticleClass articleClass(static_cast<KTArticleClassEnum>(value));
        QTEST(articleClass.toPHProjectCategory(), "category");
        QTEST(articleClass.toHumanReadable(), "name");
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

    void writesTemplate_data()
    {
        QTest::addColumn<qint64>("value");
        QTest::addColumn<QString>("xml");
        QTest::newRow("none") << qint64(0) << u"<t/>"_s;
        QTest::newRow("full range") << qint64(32767) << u"<t/>"_s;
        QTest::newRow("composite") << qint64(6)
                                   << u"<t><type>normal_calendar</type><type>agenda</type></t>"_s;
        QTest::newRow("reserved") << qint64(536870912) << u"<t><type></type></t>"_s;
    }
    void writesTemplate()
    {
        QFETCH(qint64, value);
        QDomElement element = KTTest::element(u"<t/>"_s);
        KTArticleClass(static_cast<KTArticleClassEnum>(value)).toTemplates2Format(element);
        QTEST(KTTest::xml(element), "xml");
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
