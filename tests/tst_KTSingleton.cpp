#include <KTSingleton.h>

#include "KTTestNeighbour.h"

#include <QtTest>

#include <stdexcept>
#include <thread>
#include <vector>

/** Fails to construct the first time. */
class KTReluctant : public KTSingleton<KTReluctant>
{
public:
    KTReluctant()
    {
        if (++constructions == 1)
            throw std::runtime_error("not yet");
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

        std::vector<KTReluctant *> instances(8);
        std::vector<std::thread> threads;
        for (auto &instance : instances)
            threads.emplace_back([&instance] { instance = KTReluctant::instance(); });
        for (std::thread &thread : threads)
            thread.join();
        for (const KTReluctant *const instance : instances)
            QCOMPARE(instance, instances.front());
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
