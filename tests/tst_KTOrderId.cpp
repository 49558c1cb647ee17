#include <KTOrderIdList.h>
#include <KTOrderProjectInfo.h>

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
        const QString s = QStringLiteral("s");
        const QString e = QStringLiteral("");
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
        QCOMPARE(debug, QStringLiteral("\"%1\" %2 \"%3\" ").arg(order).arg(position).arg(session));
        orderId.clear();
        QVERIFY(!orderId.isValid() && orderId == KTOrderId(QStringLiteral("")));
    }

    void marksDeletion()
    {
        KTOrderProjectInfo mark = KTOrderProjectInfo::createDeletingProjetInfo();
        QVERIFY(mark.deleteProjectInfo() && mark.xtciSession().isNull() && !mark.orderId().isValid());
        mark.setOrderId(QStringLiteral("A"));
        QVERIFY(!mark.isValid() && mark.orderId().isValid() && mark.orderPosition() == 0);
    }

    void writesTexts()
    {
        const KTOrderId order(QStringLiteral("a-_-"));
        const KTOrderId later(QStringLiteral("b"));
        QCOMPARE(order.toString(true) + order.toString(false), QStringLiteral("a___a-_-"));
        QCOMPARE((KTOrderIdList {later, KTOrderId(), order, KTOrderId(QStringLiteral(""))}).toString(),
                 QStringLiteral("b,a-_-,"));
        QVERIFY(order < later && later > order && !(order > later) && order <= later && !(later <= order));
        QVERIFY(order >= order && order <= order && !(order < order) && order != later);
    }
};

QTEST_APPLESS_MAIN(tst_KTOrderId)
#include "tst_KTOrderId.moc"
