#include <KTSingleton.h>

#include "KTTestNeighbour.h"
#include "KTTestSupport.h"

#include <stdexcept>

/** Fails to construct the first time. */
class KTReluctant : public KTSingleton<KTReluctant>
{
public:
    KTReluctant()
    {
        if (++constructions == 1)
            throw std::runtime_error("not yet");
        KTTest::linger();
    }
    void setupInstance() override { ++setups; }

    static int constructions;
    static int setups;
};

int KTReluctant::constructions = 0;
int KTReluctant::setups = 0;

class tst_KTSingleton : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void createsOneInstanceForAllThreads()
    {
        QVERIFY_EXCEPTION_THROWN(KTReluctant::instance(), std::runtime_error);
        QCOMPARE(KTReluctant::setups, 0);

        KTReluctant *instances[8];
        KTTest::runInThreads(8, [&](int i) { instances[i] = KTReluctant::instance(); });
        for (const KTReluctant *const instance : instances)
            QCOMPARE(instance, instances[0]);
        QCOMPARE(KTReluctant::constructions, 2);
        QCOMPARE(KTReluctant::setups, 1);
    }

    void isOneAcrossLibraries()
    {
        QCOMPARE(KTTestNeighbour::singleton(), static_cast<const void *>(KTTestSingleton::instance()));
    }
};

QTEST_APPLESS_MAIN(tst_KTSingleton)
#include "tst_KTSingleton.moc"
