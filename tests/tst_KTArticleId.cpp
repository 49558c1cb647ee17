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
        QTest::newRow("art_id zero") << QStringLiteral("<a art_id='0' id='17'/>") << 17 << 0;
        QTest::newRow("art_id wins") << QStringLiteral("<a art_id='5' id='17'/>") << 5 << 0;
        QTest::newRow("none") << QStringLiteral("<a/>") << 0 << 0;
        QTest::newRow("art_id negative") << QStringLiteral("<a art_id='-3'/>") << 0 << 0;
        QTest::newRow("id negative") << QStringLiteral("<a id='-3'/>") << -3 << 0;
        QTest::newRow("article_id alone") << QStringLiteral("<a article_id='9'/>") << 0 << 9;
        QTest::newRow("beyond 32 bits") << QStringLiteral("<a art_id='4294967297' id='x'/>") << 0 << 0;
    }
    void readsElement()
    {
        QFETCH(QString, xml);
        const QDomElement element = KTTest::element(xml);
        QCOMPARE(KTArticleId::fromIdAttribute(element), KTArticleId::fromIdAttribute(element.attributes()));
        QCOMPARE(KTArticleId::fromArtIdAttribute(element),
                 KTArticleId(element.attributes(), QStringLiteral("art_id")));
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
                      {QStringLiteral("k"), object.value(KTArticleId::defaultKey())}
        },
                  QStringLiteral("k"))
                  .id(),
              "id");
    }

    void writes()
    {
        QDomElement parent = KTTest::element(QStringLiteral("<p/>"));
        QDomElement child = KTArticleId(-8).createSubElement(parent, QStringLiteral("c"));
        KTArticleId(5).toArtIdAttribute(child);
        KTArticleId(5).toAttribute(child, QStringLiteral("x"));
        QCOMPARE(child.attribute(QStringLiteral("art_id")) + child.attribute(QStringLiteral("x")),
                 QStringLiteral("55"));
        QCOMPARE(parent.firstChildElement(QStringLiteral("c")).attribute(QStringLiteral("id")),
                 QStringLiteral("-8"));
        QJsonObject object {
            {QStringLiteral("id"), true}
        };
        KTArticleId(6322).toJSON(object);
        QCOMPARE(object,
                 (QJsonObject {
                     {QStringLiteral("id"), 6322}
        }));

        QByteArray written;
        QDataStream stream(&written, QIODevice::WriteOnly);
        KTArticleId(-12) << stream;
        QCOMPARE(written, QByteArray::fromHex("00000006002d00310032"));
        QString debug;
        QDebug(&debug) << KTArticleId(7);
        QCOMPARE(debug.trimmed(), QStringLiteral("\"7\""));
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
