#include <KTDirectoryName.h>
#include <KTDlpType.h>

#include "KTTestSupport.h"

#include <QtTest>

class tst_KTDlpType : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void answersQuestions_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("directory");
        QTest::addColumn<int>("flaggedDirectory");
        QTest::addColumn<QString>("query");
        QTest::newRow("style") << 2 << u"Stile"_s << 4 << 4 << u"style_v2"_s;
        QTest::newRow("template") << 4 << u"Designs"_s << 0x20000 << 0x10000 << u"template"_s;
        QTest::newRow("mask") << 0x10 << u"Masken & Rahmen"_s << 2 << 2 << u"mask"_s;
        QTest::newRow("layouts") << 0x20 << QString() << 64 << 64 << u"layoutcollection"_s;
        QTest::newRow("form data") << 0x80 << QString() << 16 << 16 << u"form_parameter_data"_s;
        QTest::newRow("project") << 0x100 << QString() << 0x20000 << 0x20000 << u"predefined_project"_s;
        QTest::newRow("story book") << 0x40 << u"Buchvorlagen"_s << 0 << 0 << u"style_v2"_s;
        QTest::newRow("with the reserved bit") << 0x201 << QString() << 8 << 8 << u"background"_s;
        QTest::newRow("story book among others") << 0x248 << QString() << 0 << 0 << u"style_v2"_s;
        QTest::newRow("union") << 0x18 << QString() << 0 << 0 << QString();
        QTest::newRow("none") << 0 << QString() << 0 << 0 << QString();
    }
    void answersQuestions()
    {
        QFETCH(int, value);
        QFETCH(int, directory);
        QFETCH(int, flaggedDirectory);
        const KTDlpType dlpType(static_cast<KTDlpTypeEnum>(value));
        const auto name
            = [](int code) { return KTDirectoryName(static_cast<KTDirectoryNameEnum>(code)).name(); };
        QTEST(dlpType.visibleName(), "name");
        QCOMPARE(dlpType.dlpPath(false), name(directory));
        QCOMPARE(dlpType.dlpPath(true), name(flaggedDirectory));
        QCOMPARE(dlpType.dlpPath(false).isEmpty(), directory == 0);
        QTEST(dlpType.queryValue(), "query");
        QCOMPARE(dlpType.describe(), QString::number(value) + u" | "_s + dlpType.encode());
    }
};

QTEST_APPLESS_MAIN(tst_KTDlpType)
#include "tst_KTDlpType.moc"
