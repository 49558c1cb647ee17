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
        QTest::newRow("number") << u"18"_s << 18;
        QTest::newRow("blanks around") << u" 18 "_s << 18;
        QTest::newRow("negative") << u"-5"_s << -5;
        QTest::newRow("zero") << u"0"_s << 0;
        QTest::newRow("minus one") << u"-1"_s << -1;
        QTest::newRow("word") << u"abc"_s << -1;
        QTest::newRow("hexadecimal") << u"0x12"_s << -1;
        QTest::newRow("fraction") << u"18.5"_s << -1;
        QTest::newRow("beyond 32 bits") << u"2147483648"_s << -1;
        QTest::newRow("empty") << u""_s << -1;
    }
    void reads()
    {
        QFETCH(QString, text);
        QFETCH(int, id);
        QCOMPARE(KTShippingGroupId::createFrom(text).id(), id);
        const QDomElement element = KTTest::element(u"<g id='%1' x='%1'/>"_s.arg(text));
        QCOMPARE(KTShippingGroupId(element), KTShippingGroupId(id));
        QCOMPARE(KTShippingGroupId(element.attributes()), KTShippingGroupId(id));
        QCOMPARE(KTShippingGroupId(element, u"x"_s).id(), id);
        QCOMPARE(KTShippingGroupId(element.attributes(), u"x"_s).id(), id);
        QVERIFY(!KTShippingGroupId(element, u"y"_s).isValid());
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
        QDomElement element = KTTest::element(u"<g id='3'/>"_s);
        KTShippingGroupId().toXML(element);
        QCOMPARE(element.attribute(KTShippingGroupId::defaultKey()), u"-1"_s);
        QJsonObject object;
        KTShippingGroupId().toJSON(object);
        QCOMPARE(QJsonDocument(object).toJson(QJsonDocument::Compact), QByteArray("{\"id\":-1}"));
        QByteArray written;
        QDataStream stream(&written, QIODevice::WriteOnly);
        KTShippingGroupId(18) << stream;
        QCOMPARE(written, QByteArray::fromHex("0000000400310038"));
        QString debug;
        QDebug(&debug) << KTShippingGroupId(18) << 3;
        QCOMPARE(debug, u"\"18\" 3 "_s);
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
