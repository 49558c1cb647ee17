#include <KTArticleIdList.h>
#include <KTArticleIdSet.h>

#include "KTTestSupport.h"

#include <QJsonDocument>
#include <QJsonObject>

class tst_KTArticleId : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsElement()
    {
        const auto read = [](const QString &attributes) {
            const QDomElement element = KTTest::element(u"<a %1/>"_s.arg(attributes));
            const bool areSame
                = KTArticleId::fromIdAttribute(element) == KTArticleId::fromIdAttribute(element.attributes())
                && KTArticleId::fromArtIdAttribute(element)
                    == KTArticleId::fromArtIdAttribute(element.attributes())
                && KTArticleId::fromArticleIdAttribute(element)
                    == KTArticleId::fromArticleIdAttribute(element.attributes());
            return KTTest::text(KTArticleId::findId(element).id(),
                                KTArticleId::fromArticleIdAttribute(element).id(), areSame);
        };
        KTTest::check(read,
                      {"art_id='0' id='17' -> 17|0|+", "art_id='5' id='17' -> 5|0|+", " -> 0|0|+",
                       "art_id='-3' -> 0|0|+", "id='-3' -> -3|0|+", "article_id='9' -> 0|9|+",
                       "art_id='4294967297' id='x' -> 0|0|+"});
    }

    void readsJson()
    {
        const auto read = [](const QString &json) {
            const QJsonObject object = QJsonDocument::fromJson(json.toUtf8()).object();
            return KTTest::text(KTArticleId(object).id(), KTArticleId(object, u"k"_s).id());
        };
        KTTest::check(read,
                      {"{\"id\": 17, \"k\": 18.0} -> 17|18", "{\"id\": 12.5, \"k\": \"12\"} -> 0|0",
                       "{\"id\": 2147483648} -> 0|0"});
        QCOMPARE(KTArticleId::defaultKey(), u"id"_s);
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
        QCOMPARE(QJsonDocument(object).toJson(QJsonDocument::Compact), QByteArray("{\"id\":6322}"));

        QCOMPARE(KTTest::streamed(KTArticleId(-12)), QByteArray("00000006002d00310032"));
        QCOMPARE(KTTest::logged(KTArticleId(7)), u"\"7\" "_s);
    }

    void knowsItsSpecialArticles()
    {
        const auto facts = [](int number) {
            const KTArticleId id(number);
            return KTTest::text(id.isFotoWithoutVariableLength(), id.isAdventCalendarWithDoorBackPrint(),
                                id.isValid());
        };
        KTTest::checkTable<int>(u"articleids.tsv"_s, facts);
        QCOMPARE(qHash(KTArticleId(-8), 5u), uint(-8) ^ 5u);
        QCOMPARE(std::hash<KTArticleId>()(-8), std::size_t(uint(-8)));
        QVERIFY(KTTest::isLess(KTArticleId(-8), KTArticleId(8)));
        QVERIFY(KTArticleId(8) == 8 && KTArticleId(8) != -8);
    }

    void extendsSets()
    {
        const KTArticleIdSet one(QSet<KTArticleId> {1});
        const KTArticleIdSet two {1, 2};
        const KTArticleIdSet other = KTArticleIdSet {1, 3} - one;
        QCOMPARE(KTArticleIdList(KTArticleIdList({3, 2, 1}).mid(1)), KTArticleIdList({2, 1}));
        QVERIFY(two.extends(one) && two.extends(two) && two.extends(KTArticleIdSet()));
        QVERIFY(!one.extends(two) && !two.extends(other) && !KTArticleIdSet().extends(one));
    }
};

QTEST_APPLESS_MAIN(tst_KTArticleId)
#include "tst_KTArticleId.moc"
