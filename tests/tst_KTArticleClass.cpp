#include <KTArticleClassList.h>
#include <KTShippingGroupId.h>

#include "KTClassificationTest.h"
#include "KTTestSupport.h"

#include <QtTest>

class tst_KTArticleClass : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void groupsKinds()
    {
        using KTTest::bitsWhere;
        QCOMPARE(qint64(KTArticleClass(u"fullrange"_s).value()), 32767);
        QCOMPARE(qint64(KTArticleClass(u"article"_s).value()), 262143);
        QCOMPARE(qint64(KTArticleClass(u"add_on"_s).value()), 274873712640);
        QCOMPARE(bitsWhere<KTArticleClass>([](auto kind) { return kind.maxAmount() == 1; }), 549630001152);
        QCOMPARE(bitsWhere<KTArticleClass>([](auto kind) { return kind.canModifyABK(); }), 229376);
        QCOMPARE(KTArticleClass(u"book,giftWrap_addOn"_s).maxAmount(), 1);
        QCOMPARE(KTArticleClass().maxAmount(), 2147483647);
    }

    void knowsItsCategory_data()
    {
        QTest::addColumn<QString>("kinds");
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("name");
        QTest::newRow("book before prints") << u"foto,book"_s << u"book"_s << u"Fotobuch"_s;
        QTest::newRow("prints before wall decor") << u"posterfoto,deko"_s << u"prints"_s << u"Fotos"_s;
        QTest::newRow("wall before card") << u"canvas,card"_s << u"walldecor"_s << u"Poster und Wandbilder"_s;
        QTest::newRow("calendar before card") << u"agenda,card"_s << u"calendar"_s << u"Kalender"_s;
        QTest::newRow("card before gift") << u"card,gift"_s << u"card"_s << u"Gru\u00dfkarten"_s;
        QTest::newRow("advent calendar") << u"advent_calendar"_s << u"other"_s << u"Fotogeschenke"_s;
        QTest::newRow("none") << u"none"_s << u"other"_s << u"Fotogeschenke"_s;
    }
    void knowsItsCategory()
    {
        QFETCH(QString, kinds);
        QTEST(KTArticleClass(kinds).toPHProjectCategory(), "category");
        QTEST(KTArticleClass(kinds).toHumanReadable(), "name");
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
    }

    void sortsShoppingCart()
    {
        // Where the cart leaves the order of the bits.
        const QStringList sorted = u"card spotColor_addOn matt_cover_addOn giftBox_addOn flyleafcolor "
                                   "video_addOn locrMap_addOn design_addOn frame_addOn giftWrap_addOn "
                                   "envelope_addOn slipcase"_s.split(u' ');
        const auto less = KTArticleClass::lessThanShopCart;
        for (int i = 0; i < sorted.size(); ++i) {
            for (int j = 0; j < sorted.size(); ++j)
                QCOMPARE(less(KTArticleClass(sorted.at(i)).value(), KTArticleClass(sorted.at(j)).value()),
                         i < j);
        }
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
        QDomElement element = KTTest::element(u"<t/>"_s);
        KTArticleClass(KTArticleClassFullrange).toTemplates2Format(element);
        KTArticleClass().toTemplates2Format(element);
        QVERIFY(element.firstChild().isNull());
        KTArticleClass(KTArticleClassCalendar).toTemplates2Format(element);
        QCOMPARE(KTTest::xml(element), u"<t><type>normal_calendar</type><type>agenda</type></t>"_s);
    }

    void parsesAndFiltersLists()
    {
        const auto written = [](const KTArticleClassList &list) {
            QString keywords;
            for (const KTArticleClass &articleClass : list)
                keywords += articleClass.encode() + u' ';
            return keywords;
        };
        const auto list = KTArticleClassList::parseArticleClasses(u"Book,, card ,bock,gift,book"_s);
        QCOMPARE(written(list), u"book card none gift book "_s);
        QCOMPARE(written(list.filter(KTArticleClassFullrange)), u"book card gift book "_s);
        QCOMPARE(written(list.filter(KTArticleClassPuzzle)), u"gift "_s);
        QVERIFY(list.filter(KTArticleClassNone).isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_KTArticleClass)
#include "tst_KTArticleClass.moc"
