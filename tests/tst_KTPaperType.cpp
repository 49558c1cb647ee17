#include <KTArticleClass.h>
#include <KTFotoPaperType.h>
#include <KTPaperType.h>

#include "KTClassificationTest.h"
#include "KTTestSupport.h"

#include <QtTest>

class tst_KTPaperType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isNamed()
    {
        QString names;
        for (int value = 1; value < 0x100; value *= 2) {
            const KTPaperType paper(static_cast<KTPaperTypeEnum>(value));
            names += paper.humanReadableName() + u'|';
            QVERIFY(KTPaperType::createFromHumanReadable(paper.humanReadableName()) == paper);
        }
        QCOMPARE(names,
                 u"Digitaldruck Matt|Digitaldruck Hochglanz|Fotopapier Matt|Fotopapier Gl\u00e4nzend|"
                 "Fotopapier Premium-Matt|Premiumpapier|Digitaldruck Premium-Matt|"
                 "Digitaldruck Matt (100% recycelt)|"_s);
        for (const int value : {0, 3, 0x100})
            QCOMPARE(KTPaperType(static_cast<KTPaperTypeEnum>(value)).humanReadableName(),
                     u"unbekannter Papiertyp"_s);
        for (const QString &name : {u"premiumpapier"_s, u"unbekannter Papiertyp"_s, QString()})
            QVERIFY(KTPaperType::createFromHumanReadable(name).isNull());
    }

    void readsSurfaces_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("surfaces");
        QTest::newRow("both") << u"0"_s << u"12"_s;
        QTest::newRow("glossy") << u"1"_s << u"1"_s;
        QTest::newRow("matt") << u" 2"_s << u"2"_s;
        QTest::newRow("union") << u"3"_s << QString();
        QTest::newRow("hexadecimal") << u"0x1"_s << QString();
        QTest::newRow("word") << u"matt"_s << QString();
        QTest::newRow("beyond 32 bits") << u"4294967296"_s << QString();
        QTest::newRow("empty") << QString() << QString();
    }
    void readsSurfaces()
    {
        QFETCH(QString, text);
        QString surfaces;
        for (const KTFotoPaperType &paper : KTFotoPaperType::createFromXTCI(text))
            surfaces.append(paper.encodeForProduction());
        QTEST(surfaces, "surfaces");
    }

    void namesAndChoosesSurfaces()
    {
        QCOMPARE(KTFotoPaperType(KTFotoPaperTypeMatt).humanReadableName(), u"Matt"_s);
        QCOMPARE(KTFotoPaperType().humanReadableName(), u"Unbekanntes Fotopapier"_s);
        const KTFotoPaperType both(u"1,2"_s);
        QVERIFY(both.humanReadableName().isEmpty() && both.encodeForProduction().isEmpty());
        QVERIFY(KTFotoPaperType().encodeForProduction().isEmpty());
        QCOMPARE(KTTest::bitsWhere<KTArticleClass>([](auto articleClass) {
                     return KTFotoPaperType::defaultFor(articleClass) == KTFotoPaperTypeGlossy;
                 }),
                 0x38000);
        QVERIFY(KTFotoPaperType::defaultFor(u"foto,book"_s).isNull());
    }
};

QTEST_APPLESS_MAIN(tst_KTPaperType)
#include "tst_KTPaperType.moc"
