#include <KTPageBinding.h>

#include "KTTestSupport.h"

#include <QtTest>

class tst_KTPageBinding : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsNamesAndWrites_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("written");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("xml");
        const auto row = [](const char *name, const char *text, int value, const char *written,
                            const char *display, const char *xml) {
            QTest::newRow(name) << QString::fromLatin1(text) << value << QString::fromLatin1(written)
                                << QString::fromUtf8(display) << QString::fromLatin1(xml);
        };
        row("glued", "glued", 1, "glue", "klassische Buchbindung", "<t/>");
        row("other case", "Lay_Flat", 2, "layflat", "Lay-Flat-Bindung", "<t/>");
        row("stapled", "stapled", 4, "stapled", "Rückstichbindung", "<t/>");
        row("spiral", "spiral", 8, "spiral", "", "<t><pageBinding>spiral</pageBinding></t>");
        row("spiral or stapled", "spiral,stapled", 12, "", "", "<t/>");
        row("unknown", "unknown", 0, "unknown", "", "<t/>");
        row("unknown word", "bock", 0, "unknown", "", "<t/>");
    }
    void readsNamesAndWrites()
    {
        QFETCH(QString, text);
        const KTPageBinding binding(text);
        QTEST(int(binding.value()), "value");
        QTEST(binding.encode(), "written");
        QTEST(binding.humanReadableName(), "name");
        QDomElement element = KTTest::element(u"<t/>"_s);
        binding.toTemplates2Format(element);
        QTEST(KTTest::xml(element), "xml");
    }

    void writesUnknownBits()
    {
        QDomElement element = KTTest::element(u"<t/>"_s);
        KTPageBinding(static_cast<KTPageBindingEnum>(24)).toTemplates2Format(element);
        QCOMPARE(element.text(), u"spiral, "_s);
        QCOMPARE(KTPageBinding::pageBindingNames()->map.size(), 3);
    }
};

QTEST_APPLESS_MAIN(tst_KTPageBinding)
#include "tst_KTPageBinding.moc"
