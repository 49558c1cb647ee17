#include <KTPageBinding.h>

#include "KTClassificationTest.h"

class tst_KTPageBinding : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void readsNamesAndWrites()
    {
        const auto binding = [](const QString &text) {
            const KTPageBinding read(text);
            return KTTest::text(int(read.value()), read.encode(), read.humanReadableName(),
                                KTTest::templateOf<KTPageBinding>(read.value()));
        };
        KTTest::check(
            binding,
            {"glued -> 1|glue|klassische Buchbindung|<t/>", "Lay_Flat -> 2|layflat|Lay-Flat-Bindung|<t/>",
             "stapled -> 4|stapled|Rückstichbindung|<t/>",
             "spiral -> 8|spiral||<t><pageBinding>spiral</pageBinding></t>", "spiral,stapled -> 12|||<t/>",
             "unknown -> 0|unknown||<t/>", "bock -> 0|unknown||<t/>"});
        // Bits without a name are written too.
        QCOMPARE(KTTest::templateOf<KTPageBinding>(24), u"<t><pageBinding>spiral, </pageBinding></t>"_s);
        QCOMPARE(KTPageBinding::pageBindingNames()->map.size(), 3);
    }
};

QTEST_APPLESS_MAIN(tst_KTPageBinding)
#include "tst_KTPageBinding.moc"
