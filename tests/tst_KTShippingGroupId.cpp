#include <KTShippingGroupIdList.h>

#include "KTTestSupport.h"

#include <QDataStream>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class tst_KTShippingGroupId : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void reads_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("id");
        QTest::newRow("number") << QStringLiteral("18") << 18;
        QTest::newRow("blanks around") << QStringLiteral(" 18 ") << 18;
        QTest::newRow("negative") << QStringLiteral("-5") << -5;
        QTest::newRow("zero") << QStringLiteral("0") << 0;
        QTest::newRow("minus one") << QStringLiteral("-1") << -1;
        QTest::newRow("word") << QStringLiteral("abc") << -1;
        QTest::newRow("hexadecimal") << QStringLiteral("0x12") << -1;
        QTest::newRow("fraction") << QStringLiteral("18.5") << -1;
        QTest::newRow("beyond 32 bits") << QStringLiteral("2147483648") << -1;
        QTest::newRow("empty") << QStringLiteral("") << -1;
    }
    void reads()
    {
        QFETCH(QString, text);
        QFETCH(int, id);
        QCOMPARE(KTShippingGroupId::createFrom(text).id(), id);
        const QDomElement element = KTTest::element(QStringLiteral("<g id='%1' x='%1'/>").arg(text));
        QCOMPARE(KTShippingGroupId(element), KTShippingGroupId(id));
        QCOMPARE(KTShippingGroupId(element.attributes()), KTShippingGroupId(id));
        QCOMPARE(KTShippingGroupId(element, QStringLiteral("x")).id(), id);
        QCOMPARE(KTShippingGroupId(element.attributes(), QStringLiteral("x")).id(), id);
        QVERIFY(!KTShippingGroupId(element, QStringLiteral("y")).isValid());
        QCOMPARE(KTShippingGroupId(id).isValid(), id != -1);
        QCOMPARE(KTShippingGroupId(id).isCombinedTransfer(), id == 0);
    }

    void readsJson()
    {
        const auto read
            = [](const char *json) { return KTShippingGroupId(QJsonDocument::fromJson(json).object()).id(); };
        QCOMPARE(read("{\"id\": 18}"), 18);
        QCOMPARE(read("{\"id\": -5.0}"), -5);
        QCOMPARE(read("{\"id\": 18.5}"), -1);
        QCOMPARE(read("{\"id\": \"18\"}"), -1);
        QCOMPARE(read("{}"), -1);
    }

    void writes()
    {
        QDomElement element = KTTest::element(QStringLiteral("<g id='3'/>"));
        KTShippingGroupId().toXML(element);
        QCOMPARE(element.attribute(KTShippingGroupId::defaultKey()), QStringLiteral("-1"));
        QJsonObject object;
        KTShippingGroupId().toJSON(object);
        QCOMPARE(QJsonDocument(object).toJson(QJsonDocument::Compact), QByteArray("{\"id\":-1}"));
        QByteArray written;
        QDataStream stream(&written, QIODevice::WriteOnly);
        KTShippingGroupId(18) << stream;
        QCOMPARE(written, QByteArray::fromHex("0000000400310038"));
        QString debug;
        QDebug(&debug) << KTShippingGroupId(18) << 3;
        QCOMPARE(debug, QStringLiteral("\"18\" 3 "));
    }

    void filtersLists()
    {
        const KTShippingGroupIdList list(QList<int> {1, -1, 18, 1});
        QCOMPARE(list.filter(1, true), KTShippingGroupIdList(QList<int> {1, 1}));
        QCOMPARE(list.filter(1, false), KTShippingGroupIdList(QList<KTShippingGroupId> {-1, 18}));
        QVERIFY(list.filter(3, true).isEmpty());
        QCOMPARE(list.filter(3, false), list);
    }
};

QTEST_APPLESS_MAIN(tst_KTShippingGroupId)
#include "tst_KTShippingGroupId.moc"
