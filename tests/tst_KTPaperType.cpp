#include <KTArticleClass.h>
#include <KTFotoPaperType.h>
#include <KTPaperType.h>

#include "KTClassificationTest.h"

class tst_KTPaperType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void namesPapers()
    {
        // The bits, the keyword, the name, and what is read from the name and from the name in capitals.
        const auto paper = [](const QString &text) {
            const KTPaperType one(text);
            const QString name = one.humanReadableName();
            const auto fromName
                = [](const QString &own) { return int(KTPaperType::createFromHumanReadable(own).value()); };
            return KTTest::text(int(one.value()), one.encode(), name, fromName(name),
                                fromName(name.toUpper()));
        };
        KTTest::check(paper,
                      {"Glossy -> 2|indigo-glossy|Digitaldruck Hochglanz|2|0",
                       "digital_printing_glossy -> 2|indigo-glossy|Digitaldruck Hochglanz|2|0",
                       "photopaper_glossy -> 8|fotopaper-glossy|Fotopapier Glänzend|8|0",
                       "photopaper_classy_matt -> 16|fotopaper-premium-matt|Fotopapier Premium-Matt|16|0",
                       "digital_printing_premium -> 32|premium|Premiumpapier|32|0",
                       "digital_printing_matt -> 64|premium-matt|Digitaldruck Premium-Matt|64|0",
                       "digital_printing_recycled -> 128|digital_printing_recycled|Digitaldruck Matt (100% "
                       "recycelt)|128|0",
                       "unbekanntes papier -> 0|unbekanntes Papier|unbekannter Papiertyp|0|0",
                       "premium,glossy -> 34||unbekannter Papiertyp|0|0",
                       "bock -> 1|indigo|Digitaldruck Matt|1|0", " -> 1|indigo|Digitaldruck Matt|1|0"});
    }

    void readsSurfaces()
    {
        const auto surfaces = [](const QString &text) {
            QString codes;
            for (const KTFotoPaperType &paper : KTFotoPaperType::createFromXTCI(text))
                codes.append(paper.encodeForProduction());
            return codes;
        };
        KTTest::check(surfaces,
                      {"0 -> 12", "1 -> 1", " 2 -> 2", "3 -> ", "-1 -> ", "0x1 -> ", "matt -> ",
                       "4294967296 -> ", " -> "});
    }

    void namesSurfaces()
    {
        const auto named = [](const QString &text) {
            const KTFotoPaperType paper(text);
            return KTTest::text(paper.encode(), paper.humanReadableName(), paper.encodeForProduction());
        };
        KTTest::check(named, {"Matt -> 2|Matt|2", "glossy -> 1|Glänzend|1", "1,2 -> ||"});
        QCOMPARE(KTFotoPaperType().humanReadableName(), u"Unbekanntes Fotopapier"_s);
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
