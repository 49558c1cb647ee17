#include <KTArticleIdList.h>
#include <KTArticleIdSet.h>

#include "KTTestSupport.h"

#include <QDataStream>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

class tst_KTArticleId : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsElement_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<int>("found");
        QTest::addColumn<int>("articleId");
        QTest::newRow("art_id zero") << u"<a art_id='0' id='17'/>"_s << 17 << 0;
        QTest::newRow("art_id wins") << u"<a art_id='5' id='17'/>"_s << 5 << 0;
        QTest::newRow("none") << u"<a/>"_s << 0 << 0;
        QTest::newRow("art_id negative") << u"<a art_id='-3'/>"_s << 0 << 0;
        QTest::newRow("id negative") << u"<a id='-3'/>"_s << -3 << 0;
        QTest::newRow("article_id alone") << u"<a article_id='9'/>"_s << 0 << 9;
        QTest::newRow("beyond 32 bits") << u"<a art_id='4294967297' id='x'/>"_s << 0 << 0;
    }
    void readsElement()
    {
        QFETCH(QString, xml);
        const QDomElement element = KTTest::element(xml);
        QCOMPARE(KTArticleId::fromIdAttribute(element), KTArticleId::fromIdAttribute(element.attributes()));
        QCOMPARE(KTArticleId::fromArtIdAttribute(element), KTArticleId(element.attributes(), u"art_id"_s));
        QTEST(KTArticleId::findId(element).id(), "found");
        QTEST(KTArticleId::fromArticleIdAttribute(element.attributes()).id(), "articleId");
    }

    void readsJson_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("id");
        QTest::newRow("number") << QByteArray("{\"id\": 17}") << 17;
        QTest::newRow("integral real") << QByteArray("{\"id\": 17.0}") << 17;
        QTest::newRow("fraction") << QByteArray("{\"id\": 12.5}") << 0;
        QTest::newRow("text") << QByteArray("{\"id\": \"12\"}") << 0;
        QTest::newRow("beyond 32 bits") << QByteArray("{\"id\": 2147483648}") << 0;
        QTest::newRow("missing") << QByteArray("{\"ID\": 1}") << 0;
    }
    void readsJson()
    {
        QFETCH(QByteArray, json);
        const QJsonObject object = QJsonDocument::fromJson(json).object();
        QTEST(KTArticleId(object).id(), "id");
        QTEST(KTArticleId(
                  QJsonObject {
                      {u"k"_s, object.value(KTArticleId::defaultKey())}
        },
                  u"k"_s)
                  .id(),
              "id");
    }

    void writes()
    {
        QDomElement parent = KTTest::element(u"<p/>"_s);
        QDomElement child = KTArticleId(-8).createSubElement(parent, u"c"_s);
        KTArticleId(5).toArtIdAttribute(child);
        KTArticleId(5).toAttribute(child, u"x"_s);
        QCOMPARE(child.attribute(u"art_id"_s) + child.attribute(u"x"_s), u"55"_s);
        QCOMPARE(parent.firstChildElement(u"c"_s).attribute(u"id"_s), u"-8"_s);
        QJsonObject object {
            {u"id"_s, true}
        };
        KTArticleId(6322).toJSON(object);
        QCOMPARE(object,
                 (QJsonObject {
                     {u"id"_s, 6322}
        }));

        QByteArray written;
        QDataStream stream(&written, QIODevice::WriteOnly);
        KTArticleId(-12) << stream;
        QCOMPARE(written, QByteArray::fromHex("00000006002d00310032"));
        QString debug;
        QDebug(&debug) << KTArticleId(7);
        QCOMPARE(debug.trimmed(), u"\"7\""_s);
    }

    void knowsItsSpecialArticles_data()
    {
        QTest::addColumn<int>("id");
        QTest::addColumn<bool>("foto");
        QTest::addColumn<bool>("advent");
        for (const int id : {9023, 9027, 6321, 6324, 6512, 6515, 0, -9024})
            QTest::addRow("%d", id) << id << false << false;
        for (const int id : {9024, 9025, 9026})
            QTest::addRow("%d", id) << id << true << false;
        for (const int id : {6322, 6323, 6513, 6514})
            QTest::addRow("%d", id) << id << false << true;
    }
    void knowsItsSpecialArticles()
    {
        QFETCH(int, id);
        QTEST(KTArticleId(id).isFotoWithoutVariableLength(), "foto");
        QTEST(KTArticleId(id).isAdventCalendarWithDoorBackPrint(), "advent");
        QCOMPARE(KTArticleId(id).isValid(), id > 0);
        QCOMPARE(qHash(KTArticleId(id), 5u), uint(id) ^ 5u);
    }

    void extendsSets()
    {
        const KTArticleIdSet one(QSet<KTArticleId> {1});
        const KTArticleIdSet two(QSet<KTArticleId> {1, 2});
        const KTArticleIdSet other(QSet<KTArticleId> {3});
        QVERIFY(two.extends(one) && two.extends(two) && two.extends(KTArticleIdSet()));
        QVERIFY(!one.extends(two) && !two.extends(other) && !KTArticleIdSet().extends(one));
    }
};

QTEST_APPLESS_MAIN(tst_KTArticleId)
#include "tst_KTArticleId.moc"
