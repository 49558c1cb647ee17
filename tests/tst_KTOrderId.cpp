#include <KTOrderIdList.h>
#include <KTOrderProjectInfo.h>

#include <QDataStream>
#include <QtTest>

namespace {

template <typename T>
QByteArray streamed(const T &value)
{
    QByteArray written;
    QDataStream stream(&written, QIODevice::WriteOnly);
    value << stream;
    return written.toHex();
}

template <typename T>
QString debugged(const T &value)
{
    QString debug;
    QDebug(&debug) << value;
    return debug;
}

} // namespace

class tst_KTOrderId : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void tellsNullFromEmpty_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QString>("replaced");
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("null") << QString() << false << QString() << QByteArray("ffffffff");
        QTest::newRow("empty") << QStringLiteral("") << true << QString() << QByteArray("00000000");
        QTest::newRow("two hyphens") << QStringLiteral("a-_-") << true << QStringLiteral("a___")
                                     << QByteArray("000000080061002d005f002d");
    }
    void tellsNullFromEmpty()
    {
        QFETCH(QString, text);
        KTOrderId orderId(text);
        QTEST(orderId.isValid(), "valid");
        QTEST(streamed(orderId), "bytes");
        QTEST(orderId.toString(true), "replaced");
        QCOMPARE(orderId.toString(true).isNull(), text.isNull());
        QCOMPARE(orderId.toString(false), text);
        QCOMPARE(debugged(orderId), QLatin1Char('"') + text + QStringLiteral("\" "));
        orderId.clear();
        QVERIFY(!orderId.isValid() && orderId.toString(false).isNull());
    }

    void comparesTexts()
    {
        const QList<KTOrderId> ordered {KTOrderId(), QStringLiteral("A"), QStringLiteral("AA"),
                                        QStringLiteral("a")};
        for (int i = 0; i < ordered.size(); ++i) {
            for (int j = 0; j < ordered.size(); ++j) {
                QCOMPARE(ordered[i] == ordered[j], i == j);
                QCOMPARE(ordered[i] != ordered[j], i != j);
                QCOMPARE(ordered[i] < ordered[j], i < j);
                QCOMPARE(ordered[i] > ordered[j], i > j);
                QCOMPARE(ordered[i] <= ordered[j], i <= j);
                QCOMPARE(ordered[i] >= ordered[j], i >= j);
            }
        }
        QCOMPARE(KTOrderId(), KTOrderId(QStringLiteral("")));
    }

    void joinsValidIds()
    {
        const KTOrderId invalid;
        const KTOrderId first(QStringLiteral("A-1"));
        const KTOrderId empty(QStringLiteral(""));
        QCOMPARE((KTOrderIdList {first, invalid, KTOrderId(QStringLiteral("B"))}.toString()),
                 QStringLiteral("A-1,B"));
        QCOMPARE((KTOrderIdList {invalid, empty, first}.toString()), QStringLiteral(",A-1"));
        QCOMPARE(KTOrderIdList {invalid}.toString() + KTOrderIdList().toString(), QString());
    }

    void writesProjectInfo_data()
    {
        QTest::addColumn<QString>("session");
        QTest::addColumn<QString>("orderId");
        QTest::addColumn<int>("position");
        QTest::addColumn<bool>("valid");
        QTest::addColumn<QByteArray>("bytes");
        const QString s = QStringLiteral("s");
        const QString o = QStringLiteral("-");
        const QString empty = QStringLiteral("");
        QTest::newRow("complete") << s << o << 0 << true << QByteArray("00000002002d00000000000000020073");
        QTest::newRow("empty texts") << empty << empty << 258 << true
                                     << QByteArray("000000000000010200000000");
        QTest::newRow("position") << s << o << -1 << false << QByteArray("00000002002dffffffff000000020073");
        QTest::newRow("no order") << s << QString() << 1 << false
                                  << QByteArray("ffffffff00000001000000020073");
        QTest::newRow("no session") << QString() << o << 1 << false
                                    << QByteArray("00000002002d00000001ffffffff");
    }
    void writesProjectInfo()
    {
        QFETCH(QString, session);
        QFETCH(QString, orderId);
        QFETCH(int, position);
        KTOrderProjectInfo info(session, KTOrderId(QStringLiteral("x")), position);
        info.setOrderId(orderId);
        QTEST(info.isValid(), "valid");
        QTEST(streamed(info), "bytes");
        QVERIFY(!info.deleteProjectInfo());
        QCOMPARE(debugged(info), QStringLiteral("\"%1\" %2 \"%3\" ").arg(orderId).arg(position).arg(session));
    }

    void marksDeletion()
    {
        const KTOrderProjectInfo mark = KTOrderProjectInfo::createDeletingProjetInfo();
        QVERIFY(mark.deleteProjectInfo() && !mark.isValid());
        QCOMPARE(streamed(mark), QByteArray("ffffffff00000000ffffffff"));
    }
};

QTEST_APPLESS_MAIN(tst_KTOrderId)
#include "tst_KTOrderId.moc"
