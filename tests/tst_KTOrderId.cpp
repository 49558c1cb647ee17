#include <KTOrderIdList.h>
#include <KTOrderProjectInfo.h>

#include "KTTestSupport.h"

#include <QDataStream>
#include <QtTest>

class tst_KTOrderId : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsNullFromEmpty_data()
    {
        QTest::addColumn<QString>("session");
        QTest::addColumn<QString>("order");
        QTest::addColumn<int>("position");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QByteArray>("bytes");
        const QString s = u"s"_s;
        const QString e = u""_s;
        QTest::newRow("complete") << s << s << 0 << true << QByteArray("000000020073 00000000 000000020073");
        QTest::newRow("empty texts") << e << e << 258 << true << QByteArray("00000000 00000102 00000000");
        QTest::newRow("position") << s << e << -1 << false << QByteArray("00000000 ffffffff 000000020073");
        QTest::newRow("no order") << s << QString() << 1 << false
                                  << QByteArray("ffffffff 00000001 000000020073");
        QTest::newRow("no session") << QString() << e << 1 << false
                                    << QByteArray("00000000 00000001 ffffffff");
    }
    void tellsNullFromEmpty()
    {
        QFETCH(QString, session);
        QFETCH(QString, order);
        QFETCH(int, position);
        QFETCH(QByteArray, bytes);
        KTOrderId orderId(order);
        const KTOrderProjectInfo info(session, orderId, position);
        QTEST(info.isValid(), "valid");
        QCOMPARE(orderId.isValid(), !order.isNull());
        QByteArray written;
        QDataStream stream(&written, QIODevice::WriteOnly);
        orderId << stream;
        info << stream;
        QCOMPARE(written, QByteArray::fromHex(bytes.left(bytes.indexOf(' ')) + bytes));
        QString debug;
        QDebug(&debug) << info;
        QCOMPARE(debug, u"\"%1\" %2 \"%3\" "_s.arg(order).arg(position).arg(session));
        orderId.clear();
        QVERIFY(!orderId.isValid() && orderId == KTOrderId(u""_s));
    }

    void marksDeletion()
    {
        KTOrderProjectInfo mark = KTOrderProjectInfo::createDeletingProjetInfo();
        QVERIFY(mark.deleteProjectInfo() && mark.xtciSession().isNull() && !mark.orderId().isValid());
        mark.setOrderId(u"A"_s);
        QVERIFY(!mark.isValid() && mark.orderId().isValid() && mark.orderPosition() == 0);
    }

    void writesTexts()
    {
        const KTOrderId order(u"a-_-"_s);
        const KTOrderId later(u"b"_s);
        QCOMPARE(order.toString(true) + order.toString(false), u"a___a-_-"_s);
        QCOMPARE((KTOrderIdList {later, KTOrderId(), order, KTOrderId(u""_s)}).toString(), u"b,a-_-,"_s);
        QVERIFY(order < later && later > order && !(order > later) && order <= later && !(later <= order));
        QVERIFY(order >= order && order <= order && !(order < order) && order != later);
    }
};

QTEST_APPLESS_MAIN(tst_KTOrderId)
#include "tst_KTOrderId.moc"
