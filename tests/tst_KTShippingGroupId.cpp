#include <KTShippingGroupIdList.h>

#include "KTTestSupport.h"

#include <QJsonDocument>
#include <QJsonObject>

class tst_KTShippingGroupId : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void reads()
    {
        // The number, whether all ways of reading agree, whether it is valid and combined.
        const auto read = [](const QString &text) {
            const QDomElement element = KTTest::element(u"<g id='%1' x='%1'/>"_s.arg(text));
            const KTShippingGroupId id = KTShippingGroupId::createFrom(text);
            const bool areSame = KTShippingGroupId(element) == id
                && KTShippingGroupId(element.attributes()) == id && KTShippingGroupId(element, u"x"_s) == id
                && KTShippingGroupId(element.attributes(), u"x"_s) == id;
            return KTTest::text(id.id(), areSame, id.isValid(), id.isCombinedTransfer());
        };
        KTTest::check(read,
                      {"18 -> 18|+|+|-", " 18  -> 18|+|+|-", "\u00a018\u00a0 -> 18|+|+|-",
                       "\u221218 -> -18|+|+|-", "-5 -> -5|+|+|-", "0 -> 0|+|+|+", "-1 -> -1|+|-|-",
                       "0x12 -> -1|+|-|-", "2147483648 -> -1|+|-|-", " -> -1|+|-|-"});
        QVERIFY(!KTShippingGroupId(KTTest::element(u"<g id='1'/>"_s), u"y"_s).isValid());
        const auto readJson = [](const QString &json) {
            return KTShippingGroupId(QJsonDocument::fromJson(json.toUtf8()).object()).id();
        };
        KTTest::check(readJson, {"{\"id\": -5.0} -> -5", "{\"id\": 18.5} -> -1", "{} -> -1"});
    }

    void writes()
    {
        QDomElement element = KTTest::element(u"<g id='3'/>"_s);
        KTShippingGroupId().toXML(element);
        QCOMPARE(element.attribute(KTShippingGroupId::defaultKey()), u"-1"_s);
        QJsonObject object;
        KTShippingGroupId().toJSON(object);
        QCOMPARE(QJsonDocument(object).toJson(QJsonDocument::Compact), QByteArray("{\"id\":-1}"));
        QCOMPARE(KTTest::streamed(KTShippingGroupId(18)), QByteArray("0000000400310038"));
        QCOMPARE(KTTest::logged(KTShippingGroupId(18)), u"\"18\" "_s);
        QVERIFY(KTTest::isLess(KTShippingGroupId(-8), KTShippingGroupId(8)));
    }

    void filtersLists()
    {
        const KTShippingGroupIdList list(QList<int> {1, -1, 18, 1});
        QCOMPARE(list.filter(1, true), KTShippingGroupIdList({1, 1}));
        QCOMPARE(list.filter(1, false), KTShippingGroupIdList(QList<KTShippingGroupId> {-1, 18}));
        QVERIFY(list.filter(3, true).isEmpty());
        QCOMPARE(list.filter(3, false), list);
        QCOMPARE(std::hash<KTShippingGroupId>()(-8), std::size_t(uint(-8)));
    }
};

QTEST_APPLESS_MAIN(tst_KTShippingGroupId)
#include "tst_KTShippingGroupId.moc"
