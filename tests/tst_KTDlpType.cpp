#include <KTDirectoryName.h>
#include <KTDlpType.h>
#include <KTMaterialType.h>

#include "KTClassificationTest.h"

class tst_KTDlpType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answersQuestions_data()
    {
        const KTTest::Rows<int, QString, int, int, QString, QString> row;
        row("background", 1, "Hintergründe", 8, 8, "background", "1 | background");
        row("template", 4, "Designs", 0x20000, 0x10000, "template", "4 | template");
        row("mask", 0x10, "Masken & Rahmen", 2, 2, "mask", "16 | mask");
        row("layout collection", 0x20, "", 64, 64, "layoutcollection", "32 | layoutcollection");
        row("form data", 0x80, "", 16, 16, "form_parameter_data", "128 | form_parameter_data");
        row("project", 0x100, "", 0x20000, 0x20000, "predefined_project", "256 | predefined_project");
        row("story book", 0x40, "Buchvorlagen", 0, 0, "style_v2", "64 | storybook");
        row("with the reserved bit", 0x202, "", 4, 4, "style_v2", "514 | ");
        row("the reserved bit", 0x200, "", 0, 0, "", "512 | ");
        row("story book among others", 0x248, "", 0, 0, "style_v2", "584 | ");
        row("union", 0x18, "", 0, 0, "", "24 | ");
        row("none", 0, "", 0, 0, "", "0 | ");
    }
    void answersQuestions()
    {
        const auto [value, visibleName, directory, flaggedDirectory, query, described]
            = KTTest::row<int, QString, int, int, QString, QString>();
        const KTDlpType dlpType(static_cast<KTDlpTypeEnum>(value));
        const auto name
            = [](int code) { return KTDirectoryName(static_cast<KTDirectoryNameEnum>(code)).name(); };
        QCOMPARE(dlpType.visibleName(), visibleName);
        QCOMPARE(dlpType.dlpPath(false), name(directory));
        QCOMPARE(dlpType.dlpPath(true), name(flaggedDirectory));
        QCOMPARE(dlpType.dlpPath(false).isEmpty(), directory == 0);
        QCOMPARE(dlpType.queryValue(), query);
        QCOMPARE(dlpType.describe(), described);
    }

    void readsKeywords()
    {
        KTTest::check(KTTest::readKeywords<KTMaterialType>,
                      {"bock, Retro_Print, picture_bundle -> 48||retro_print, picture_bundle"});
        QCOMPARE(KTTest::withBits<KTMaterialType>(15).encodeCSV(),
                 u"notebook, picture_box, card_playing, deco_print"_s);
        KTTest::check(KTTest::readKeywords<KTDlpType>, {"style_v2,mask,bock -> 18||style_v2, mask"});
    }
};

QTEST_APPLESS_MAIN(tst_KTDlpType)
#include "tst_KTDlpType.moc"
