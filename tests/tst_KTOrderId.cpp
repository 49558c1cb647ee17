#include <KTOrderIdList.h>
#include <KTOrderProjectInfo.h>

#include "KTTestSupport.h"

class tst_KTOrderId : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsNullFromEmpty_data()
    {
        const KTTest::Rows<QString, QString, int, bool, QByteArray> row;
        const QString s = u"-"_s;
        const QString e = u""_s;
        row("complete", s, s, 0, true, "00000002002d 00000000 00000002002d");
        row("empty texts", e, e, 258, true, "00000000 00000102 00000000");
        row("position", s, e, -1, false, "00000000 ffffffff 00000002002d");
        row("no order", s, QString(), 1, false, "ffffffff 00000001 00000002002d");
        row("no session", QString(), e, 1, false, "00000000 00000001 ffffffff");
    }
    void tellsNullFromEmpty()
    {
        const auto [session, order, position, valid, bytes]
            = KTTest::row<QString, QString, int, bool, QByteArray>();
        KTOrderId orderId(order);
        const KTOrderProjectInfo info(session, orderId, position);
        QCOMPARE(info.isValid(), valid);
        QCOMPARE(orderId.isValid(), !order.isNull());
        QCOMPARE(KTTest::streamed(info), QByteArray(bytes).replace(' ', ""));
        QCOMPARE(KTTest::streamed(orderId), bytes.left(bytes.indexOf(' ')));
        QCOMPARE(KTTest::logged(info), u"\"%1\" %2 \"%3\" "_s.arg(order).arg(position).arg(session));
        orderId.clear();
        QVERIFY(!orderId.isValid() && orderId == KTOrderId(u""_s));
    }

    void marksDeletion()
    {
        KTOrderProjectInfo mark = KTOrderProjectInfo::createDeletingProjetInfo();
        QVERIFY(mark.deleteProjectInfo() && mark.xtciSession().isNull() && !mark.orderId().isValid());
        const KTOrderProjectInfo none;
        QVERIFY(!none.deleteProjectInfo() && KTTest::streamed(none) == KTTest::streamed(mark));
        mark.setOrderId(u"A"_s);
        QVERIFY(!mark.isValid() && mark.orderId().isValid() && mark.orderPosition() == 0);
    }

    void writesTexts()
    {
        const KTOrderId order(u"a-_-"_s);
        const KTOrderId later(u"b"_s);
        QCOMPARE(order.toString(true) + order.toString(false), u"a___a-_-"_s);
        const KTOrderIdList ids = KTOrderIdList({order, later, KTOrderId(), order, u""_s}).mid(1);
        QCOMPARE(ids.toString(), u"b,a-_-,"_s);
        QVERIFY(KTTest::isLess(order, later));
        QVERIFY(qHash(order, 5u) == qHash(u"a-_-"_s, 5u) && qHash(KTOrderId(), 5u) == qHash(ids.last(), 5u));
        QCOMPARE(std::hash<KTOrderId>()(order), std::size_t(qHash(order)));
    }
};

QTEST_APPLESS_MAIN(tst_KTOrderId)
#include "tst_KTOrderId.moc"
