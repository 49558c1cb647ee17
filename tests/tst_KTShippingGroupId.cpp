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
        QTest::newRow("blanks around") << u" 18 "_s << 18;
        QTest::newRow("negative") << u"-5"_s << -5;
        QTest::newRow("zero") << u"0"_s << 0;
        QTest::newRow("word") << u"abc"_s << -1;
        QTest::newRow("fraction") << u"18.5"_s << -1;
        QTest::newRow("beyond 32 bits") << u"2147483648"_s << -1;
        QTest::newRow("empty") << QString() << -1;
    }
    void reads()
    {
        QFETCH(QString, text);
        QFETCH(int, id);
        const QDomElement element = KTTest::element(u"<g id='%1' x='%1'/>"_s.arg(text));
        for (const KTShippingGroupId &groupId :
             {KTShippingGroupId::createFrom(text), KTShippingGroupId(element),
              KTShippingGroupId(element.attributes()), KTShippingGroupId(element, u"x"_s),
              KTShippingGroupId(element.attributes(), u"x"_s)})
            QCOMPARE(groupId.id(), id);
        QCOMPARE(KTShippingGroupId(id).isValid(), id != -1);
        QCOMPARE(KTShippingGroupId(id).isCombinedTransfer(), id == 0);
    }

    void readsAndWritesElsewhere()
    {
        const auto read
            = [](const char *json) { return KTShippingGroupId(QJsonDocument::fromJson(json).object()).id(); };
        QCOMPARE(read("{\"id\": -5.0}"), -5);
        QCOMPARE(read("{\"id\": \"18\"}"), -1);
        QCOMPARE(read("{}"), -1);
        QDomElement element = KTTest::element(u"<g id='3'/>"_s);
        KTShippingGroupId().toXML(element);
        QCOMPARE(KTTest::xml(element), u"<g id=\"-1\"/>"_s);
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
    }
};

QTEST_APPLESS_MAIN(tst_KTShippingGroupId)
#include "tst_KTShippingGroupId.moc"
