#include <KTArticleClassList.h>
#include <KTShippingGroupId.h>

#include "KTClassificationTest.h"

#include <algorithm>

class tst_KTArticleClass : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void knowsItsFacts()
    {
        const auto facts = [](qint64 value) {
            const auto articleClass = KTTest::withBits<KTArticleClass>(value);
            return KTTest::text(articleClass.toPHProjectCategory(), articleClass.toHumanReadable(),
                                articleClass.maxAmount(), articleClass.canModifyABK());
        };
        KTTest::checkTable<qint64>(u"articleclasses.tsv"_s, facts);
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
        const auto less = [](int first, int second) {
            return KTArticleClass::lessThanShopCart(KTTest::withBits<KTArticleClass>(1LL << first).value(),
                                                    KTTest::withBits<KTArticleClass>(1LL << second).value());
        };
        // What the cart does not name comes first, in no order among itself.
        QVector<int> bits;
        for (int bit = 0; bit <= 38; ++bit)
            bits.append(bit);
        std::stable_sort(bits.begin(), bits.end(), less);
        QCOMPARE(KTTest::text(bits),
                 u"(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 15, 16, 17, 18, 19, 20, 21, 37, 38, "
                 "22, 23, 33, 34, 36, 24, 26, 25, 27, 28, 29, 31, 30, 35, 32, 14)"_s);
        QVERIFY(!less(0, 3) && !less(3, 37) && less(3, 22));
        QVERIFY2(KTArticleClass::lessThanShopCart(KTArticleClassAddOn, KTArticleClassPagePackageAddOn),
                 "a union is not listed");
    }

    void writesTemplate()
    {
        KTTest::check<qint64>(KTTest::templateOf<KTArticleClass>,
                              {"0 -> <t/>", "32767 -> <t/>",
                               "6 -> <t><type>normal_calendar</type><type>agenda</type></t>",
                               "536870912 -> <t><type></type></t>"});
        QVERIFY(KTTest::templateOf<KTArticleClass>(65535).contains(u"foto"_s));
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
        QCOMPARE(written(list.mid(3)), written({KTArticleClassGift, KTArticleClassBook}));
    }
};

QTEST_APPLESS_MAIN(tst_KTArticleClass)
#include "tst_KTArticleClass.moc"
