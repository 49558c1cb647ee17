#include <KTPageOrganizationCalculator.h>
#include <KTPageOrganizationManager.h>

#include "KTTestSupport.h"

#include <atomic>
#include <functional>
#include <memory>
#include <vector>

namespace {

std::atomic<int> calculators {0};

KTProductType type(int number)
{
    return KTProductType(u"T%1"_s.arg(number));
}

/** Gives every type another range. */
class Calculator : public KTPageOrganizationCalculator
{
public:
    Calculator() { ++calculators; }
    ~Calculator() override { --calculators; }
    KTPageCountOrganization calculate(const KTProductType &productType) const override
    {
        if (++calls == 1 && beforeFirst)
            beforeFirst();
        const int pages = productType.toString().mid(1).toInt();
        return KTPageCountOrganization(KTIntRange(pages, pages), 0);
    }

    mutable std::atomic<int> calls {0};
    std::function<void()> beforeFirst;
};

} // namespace

class tst_KTPageOrganizationManager : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void asksOnceAndKeepsPointers()
    {
        KTPageCountOrganization *first = nullptr;
        {
            KTPageOrganizationManager manager;
            auto *const calculator = new Calculator;
            manager.setCalculator(calculator);
            first = manager.organization(type(7));
            QCOMPARE(manager.organization(type(7)), first);
            QCOMPARE(manager.pageCountOrganzation(type(7)), *first);
            QCOMPARE(calculator->calls.load(), 1);
            const std::unique_ptr<KTPageCountOrganization> own(manager.createPageOrganization(type(7)));
            QVERIFY(own.get() != first && *own == *first && calculator->calls == 2);

            manager.setCalculator(calculator);
            KTPageCountOrganization *const second = manager.organization(type(7));
            QVERIFY(second != first && calculators == 1);
            QVERIFY(QMetaObject::invokeMethod(&manager, "clearCache"));
            QVERIFY(manager.organization(type(7)) != second && calculator->calls == 4);
            manager.setCalculator(new Calculator);
            QCOMPARE(calculators.load(), 1);
        }
        QCOMPARE(calculators.load(), 0);
        QCOMPARE(first->minPages(), 7);
    }

    void livesInTheThreadOfTheApplication()
    {
        KTPageOrganizationManager *manager = nullptr;
        auto *const calculator = new Calculator;
        KTTest::runInThreads(1, [&](int) {
            manager = KTSingleton<KTPageOrganizationManager>::instance();
            manager->setCalculator(calculator);
            manager->organization(type(1));
            QMetaObject::invokeMethod(manager, "clearCache", Qt::QueuedConnection);
        });
        QCoreApplication::processEvents();
        manager->organization(type(1));
        QCOMPARE(calculator->calls.load(), 2);
    }

    void letsTheCalculatorAskAgain()
    {
        KTPageOrganizationManager *const manager = KTSingleton<KTPageOrganizationManager>::instance();
        auto *const calculator = new Calculator;
        manager->setCalculator(calculator);
        KTPageCountOrganization *inner = nullptr;
        calculator->beforeFirst = [&] {
            // Enough further types to move everything that the cache holds, and the same one again.
            for (int i = 1; i < 1000; ++i)
                manager->organization(type(i));
            inner = manager->organization(type(0));
        };
        KTPageCountOrganization *const outer = manager->organization(type(0));
        QCOMPARE(outer, inner);
        QCOMPARE(manager->organization(type(999))->minPages(), 999);
        QCOMPARE(calculator->calls.load(), 1001);

        calculator->calls = 0;
        calculator->beforeFirst = [manager] { manager->clearCache(); };
        manager->clearCache();
        // Remembered in the cache as it is afterwards.
        QCOMPARE(manager->organization(type(0)), manager->organization(type(0)));
        QCOMPARE(calculator->calls.load(), 1);
    }

    void survivesAThrowingCalculator()
    {
        KTPageOrganizationManager manager;
        auto *const calculator = new Calculator;
        manager.setCalculator(calculator);
        calculator->beforeFirst = [] { throw 1; };
        QVERIFY_EXCEPTION_THROWN(manager.organization(type(1)), int);
        KTTest::runInThreads(4, [&manager](int) { manager.organization(type(1)); });
        QCOMPARE(calculator->calls.load(), 2);
    }

    void servesThreads()
    {
        KTPageOrganizationManager manager;
        auto *const calculator = new Calculator;
        calculator->beforeFirst = &KTTest::linger;
        manager.setCalculator(calculator);
        std::vector<KTPageCountOrganization *> seen[4];
        KTTest::runInThreads(4, [&](int thread) {
            for (int i = 0; i < 50; ++i)
                seen[thread].push_back(manager.organization(type(i)));
        });
        QCOMPARE(calculator->calls.load(), 50);
        QVERIFY(seen[0] == seen[1] && seen[0] == seen[2] && seen[0] == seen[3]);

        std::atomic<int> wrong {0};
        KTTest::runInThreads(4, [&](int thread) {
            // What the managers give out is kept together.
            KTPageOrganizationManager own;
            own.setCalculator(new Calculator);
            for (int i = 0; i < 200; ++i) {
                if (own.organization(type(i))->minPages() != i)
                    ++wrong;
                if (thread == 0)
                    manager.clearCache();
                else if (thread == 1 && i % 20 == 0)
                    manager.setCalculator(new Calculator);
                else if (manager.pageCountOrganzation(type(i)).minPages() != i)
                    ++wrong;
            }
        });
        QCOMPARE(wrong.load(), 0);
    }
};

QTEST_GUILESS_MAIN(tst_KTPageOrganizationManager)
#include "tst_KTPageOrganizationManager.moc"
