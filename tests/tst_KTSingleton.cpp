#include <KTSingleton.h>

#include "KTTestNeighbour.h"
#include "KTTestSupport.h"

#include <atomic>
#include <stdexcept>
#include <utility>

/** Fails to construct the first time. */
template <int NUMBER>
class KTReluctant : public KTSingleton<KTReluctant<NUMBER>>
{
public:
    KTReluctant()
    {
        // The first failure lets all other threads find no instance at once.
        KTTest::linger();
        if (++constructions == 1)
            throw std::runtime_error("not yet");
    }
    void setupInstance() override
    {
        isBeingSetUp = true;
        KTTest::linger();
        ++setups;
    }

    static inline int constructions = 0;
    static inline int setups = 0;
    static inline std::atomic<bool> isBeingSetUp {false};
};

class tst_KTSingleton : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void createsOneInstanceForAllThreads()
    {
        // One class after the other, as two threads meet behind the lock only now and then.
        createOneInstance(std::make_integer_sequence<int, 16>());
    }

    void isOneAcrossLibraries()
    {
        QCOMPARE(KTTestNeighbour::singleton(), static_cast<const void *>(KTTestSingleton::instance()));
    }

private:
    template <int... NUMBERS>
    void createOneInstance(std::integer_sequence<int, NUMBERS...>)
    {
        (createOneInstance<NUMBERS>(), ...);
    }
    template <int NUMBER>
    void createOneInstance()
    {
        using Reluctant = KTReluctant<NUMBER>;
        Reluctant *instances[8];
        std::atomic<int> failures {0};
        std::atomic<int> tooEarly {0};
        KTTest::runInThreads(8, [&](int i) {
            // One comes late, but must not see the instance before it is set up.
            while (i == 0 && !Reluctant::isBeingSetUp)
                std::this_thread::yield();
            try {
                instances[i] = Reluctant::instance();
            } catch (const std::runtime_error &) {
                ++failures;
                instances[i] = Reluctant::instance();
            }
            tooEarly += Reluctant::setups == 0;
        });
        for (const Reluctant *const instance : instances)
            QCOMPARE(instance, instances[0]);
        QCOMPARE(KTTest::text(int(failures), int(tooEarly), Reluctant::constructions, Reluctant::setups),
                 u"1|0|2|1"_s);
    }
};

QTEST_APPLESS_MAIN(tst_KTSingleton)
#include "tst_KTSingleton.moc"
