#include <KTPageBinding.h>

#include "KTTestSupport.h"

#include <QtTest>

class tst_KTPageBinding : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void isNamedAndWritten_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("xml");
        QTest::newRow("glue") << 1 << u"klassische Buchbindung"_s << u"<t/>"_s;
        QTest::newRow("lay-flat") << 2 << u"Lay-Flat-Bindung"_s << u"<t/>"_s;
        QTest::newRow("stapled") << 4 << u"R\u00fcckstichbindung"_s << u"<t/>"_s;
        QTest::newRow("spiral") << 8 << QString() << u"<t><pageBinding>spiral</pageBinding></t>"_s;
        QTest::newRow("spiral or stapled") << 12 << QString() << u"<t/>"_s;
        QTest::newRow("unknown bit") << 24 << QString() << u"<t><pageBinding>spiral, </pageBinding></t>"_s;
        QTest::newRow("unknown") << 0 << QString() << u"<t/>"_s;
    }
    void isNamedAndWritten()
    {
        QFETCH(int, value);
        const KTPageBinding binding(static_cast<KTPageBindingEnum>(value));
        QTEST(binding.humanReadableName(), "name");
        QDomElement element = KTTest::element(u"<t/>"_s);
        binding.toTemplates2Format(element);
        QTEST(KTTest::xml(element), "xml");
    }
};

QTEST_APPLESS_MAIN(tst_KTPageBinding)
#include "tst_KTPageBinding.moc"
