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
    void namesPapers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("name");
        const auto row = [](const char *text, int value, const char *written, const char *name) {
            QTest::newRow(*text ? text : "empty") << QString::fromLatin1(text) << value
                                                  << QString::fromLatin1(written) << QString::fromUtf8(name);
        };
        row("Glossy", 0x2, "indigo-glossy", "Digitaldruck Hochglanz");
        row("digital_printing_glossy", 0x2, "indigo-glossy", "Digitaldruck Hochglanz");
        row("photopaper_glossy", 0x8, "fotopaper-glossy", "Fotopapier Glänzend");
        row("photopaper_classy_matt", 0x10, "fotopaper-premium-matt", "Fotopapier Premium-Matt");
        row("digital_printing_premium", 0x20, "premium", "Premiumpapier");
        row("digital_printing_matt", 0x40, "premium-matt", "Digitaldruck Premium-Matt");
        row("digital_printing_recycled", 0x80, "digital_printing_recycled",
            "Digitaldruck Matt (100% recycelt)");
        row("unbekanntes papier", 0, "unbekanntes Papier", "unbekannter Papiertyp");
        row("premium,glossy", 0x22, "", "unbekannter Papiertyp");
        row("bock", 0x1, "indigo", "Digitaldruck Matt");
        row("", 0x1, "indigo", "Digitaldruck Matt");
    }
    void namesPapers()
    {
        QFETCH(QString, text);
        QFETCH(int, value);
        const KTPaperType paper(text);
        QCOMPARE(int(paper.value()), value);
        QTEST(paper.encode(), "written");
        QTEST(paper.humanReadableName(), "name");
        const bool isNamed = paper.hasExactlyOneBit();
        QCOMPARE(int(KTPaperType::createFromHumanReadable(paper.humanReadableName()).value()),
                 isNamed ? value : 0);
        QVERIFY(KTPaperType::createFromHumanReadable(paper.humanReadableName().toUpper()).isNull());
    }

    void readsSurfaces_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("surfaces");
        const auto row = [](const char *text, const char *surfaces) {
            QTest::newRow(*text ? text : "empty")
                << QString::fromLatin1(text) << QString::fromLatin1(surfaces);
        };
        row("0", "12");
        row("1", "1");
        row(" 2", "2");
        row("3", "");
        row("-1", "");
        row("0x1", "");
        row("matt", "");
        row("4294967296", "");
        row("", "");
    }
    void readsSurfaces()
    {
        QFETCH(QString, text);
        QString surfaces;
        for (const KTFotoPaperType &paper : KTFotoPaperType::createFromXTCI(text))
            surfaces.append(paper.encodeForProduction());
        QTEST(surfaces, "surfaces");
    }

    void namesSurfaces()
    {
        const KTFotoPaperType matt(u"Matt"_s);
        QCOMPARE(matt.encode(), u"2"_s);
        QCOMPARE(matt.humanReadableName(), u"Matt"_s);
        QCOMPARE(KTFotoPaperType(u"glossy"_s).humanReadableName(), u"Gl\u00e4nzend"_s);
        QCOMPARE(KTFotoPaperType().humanReadableName(), u"Unbekanntes Fotopapier"_s);
        const KTFotoPaperType both(u"1,2"_s);
        QVERIFY(both.humanReadableName().isEmpty() && both.encodeForProduction().isEmpty());
        QVERIFY(KTFotoPaperType().encodeForProduction().isEmpty());
    }

    void choosesDefaultSurface()
    {
        QCOMPARE(KTTest::bitsWhere<KTArticleClass>([](auto articleClass) {
                     return KTFotoPaperType::defaultFor(articleClass) == KTFotoPaperTypeGlossy;
                 }),
                 0x38000);
        QVERIFY(KTFotoPaperType::defaultFor(KTArticleClassPhoto).isNull());
        QVERIFY(KTFotoPaperType::defaultFor(u"foto,book"_s).isNull());
    }
};

QTEST_APPLESS_MAIN(tst_KTPaperType)
#include "tst_KTPaperType.moc"
