#include <KTArticleVariants.h>
#include <KTProductChecker.h>
#include <KTProductCheckerRegistry.h>

#include <QtTest>

#include <atomic>
#include <functional>
#include <limits>
#include <stdexcept>
#include <thread>
#include <vector>

namespace {

constexpr auto FIRST = static_cast<KTProductCheckerType>(1);
constexpr auto SECOND = static_cast<KTProductCheckerType>(2);
constexpr auto BOTH = static_cast<KTProductCheckerType>(FIRST | SECOND);
constexpr auto SIGN = static_cast<KTProductCheckerType>(std::numeric_limits<qint32>::min());

/** Answers as told and counts the questions. */
class KTTestChecker : public KTProductChecker
{
public:
    explicit KTTestChecker(KTProductCheckerType served, bool answer = true)
        : agrees(answer)
        , myServed(served)
    {
    }
    bool checkProductType(const KTProductType &type) override
    {
        ++asked;
        if (whenAsked)
            whenAsked(type);
        return agrees;
    }
    KTProductCheckerType checkerType() override { return myServed; }
    bool checkBoxStyle(const KTProductType &, const KTArticleVariants &variants) override
    {
        ++asked;
        return agrees && variants.isValid();
    }

    std::atomic<int> asked {0};
    std::atomic<bool> agrees;
    std::function<void(const KTProductType &)> whenAsked;

private:
    KTProductCheckerType myServed;
};

KTProductType productType(int number)
{
    return KTProductType(QStringLiteral("CAL%1").arg(number));
}

} // namespace

class tst_KTProductCheckerRegistry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void asksWhoServes_data()
    {
        QTest::addColumn<int>("served");
        QTest::addColumn<int>("question");
        QTest::addColumn<bool>("asked");
        QTest::newRow("same bit") << int(FIRST) << int(FIRST) << true;
        QTest::newRow("one of two") << int(BOTH) << int(SECOND) << true;
        QTest::newRow("other bit") << int(FIRST) << int(SECOND) << false;
        QTest::newRow("no bit") << 0 << -1 << false;
        QTest::newRow("sign bit") << int(SIGN) << -1 << true;
        QTest::newRow("sign bit alone") << int(SIGN) << int(BOTH) << false;
    }
    void asksWhoServes()
    {
        QFETCH(int, served);
        QFETCH(int, question);
        QFETCH(bool, asked);
        const auto type = static_cast<KTProductCheckerType>(question);
        KTTestChecker checker(static_cast<KTProductCheckerType>(served), false);
        KTProductCheckerRegistry registry;
        registry.registerChecker(nullptr);
        QVERIFY(registry.isValid(productType(1), type));
        registry.registerChecker(&checker);
        QCOMPARE(registry.isValid(productType(1), type), !asked);
        QCOMPARE(registry.isValidBoxStyle(productType(1), KTArticleVariants(), type), !asked);
        QCOMPARE(checker.asked, asked ? 2 : 0);
    }

    void stopsAtObjection()
    {
        KTTestChecker first(BOTH);
        KTTestChecker second(FIRST, false);
        KTTestChecker third(FIRST);
        KTProductCheckerRegistry registry;
        for (KTTestChecker *checker : {&first, &first, &second, &third})
            registry.registerChecker(checker);
        QVERIFY(!registry.isValidWorker(productType(1), FIRST));
        QVERIFY(!registry.isValidBoxStyle(productType(1), QStringLiteral("boxstyle:wood"), FIRST));
        QCOMPARE(first.asked, 4);
        QCOMPARE(second.asked, 2);
        QCOMPARE(third.asked, 0);
        registry.unregisterChecker(&first);
        registry.unregisterChecker(&second);
        QVERIFY(registry.isValid(productType(1), FIRST));
        QCOMPARE(first.asked, 4);
        QCOMPARE(third.asked, 1);
    }

    void remembersUntilTold()
    {
        KTTestChecker checker(FIRST);
        KTTestChecker stranger(SECOND);
        KTProductCheckerRegistry registry;
        registry.registerChecker(&checker);
        const KTProductType album(QStringLiteral("ALB9_30"));
        const std::function<void()> changes[] = {
            [&] { registry.clearCaches(); },
            [&] { registry.unregisterChecker(&stranger); },
            [&] { registry.registerChecker(&stranger); },
        };
        for (const auto &change : changes) {
            const bool before = checker.agrees;
            QCOMPARE(registry.isValid(album, FIRST), before);
            checker.agrees = !before;
            QCOMPARE(registry.isValid(QStringLiteral("ALB9_21"), FIRST), before);
            QCOMPARE(registry.isValidWorker(album, FIRST), !before);
            QCOMPARE(registry.isValid(album, BOTH), !before);
            change();
            QCOMPARE(registry.isValid(album, FIRST), !before);
        }
    }

    void letsCheckersAskAndChange()
    {
        KTTestChecker asking(FIRST);
        KTTestChecker leaving(FIRST);
        KTTestChecker last(FIRST, false);
        KTProductCheckerRegistry registry;
        for (KTTestChecker *checker : {&leaving, &asking, &last})
            registry.registerChecker(checker);
        leaving.whenAsked = [&](const KTProductType &) { registry.unregisterChecker(&leaving); };
        // Enough questions to make the cache move its entries.
        asking.whenAsked = [&](const KTProductType &) {
            for (int i = 0; i < 500; ++i)
                registry.isValid(productType(i), SECOND);
            registry.unregisterChecker(&last);
        };
        QVERIFY(registry.isValid(productType(1), FIRST));
        QVERIFY(registry.isValid(productType(1), FIRST));
        QCOMPARE(leaving.asked, 1);
        QCOMPARE(asking.asked, 1);
        QCOMPARE(last.asked, 0);
    }

    void survivesThrowingChecker()
    {
        KTTestChecker checker(FIRST);
        KTProductCheckerRegistry registry;
        registry.registerChecker(&checker);
        checker.whenAsked = [](const KTProductType &) { throw std::runtime_error("no answer"); };
        QVERIFY_EXCEPTION_THROWN(registry.isValid(productType(1), FIRST), std::runtime_error);
        checker.whenAsked = nullptr;
        bool valid = false;
        // The lock would stop another thread only.
        std::thread([&] { valid = registry.isValid(productType(1), FIRST); }).join();
        QVERIFY(valid);
        QCOMPARE(checker.asked, 2);
    }

    void asksOnceForAllThreads_data()
    {
        QTest::addColumn<int>("threadCount");
        QTest::newRow("two threads") << 2;
        QTest::newRow("eight threads") << 8;
    }
    void asksOnceForAllThreads()
    {
        constexpr int TYPES = 50;
        QFETCH(int, threadCount);
        KTTestChecker checker(BOTH);
        std::atomic<int> inside {0};
        std::atomic<bool> overlapped {false};
        std::atomic<int> waiting {threadCount};
        std::atomic<int> wrongAnswers {0};
        KTProductCheckerRegistry *const registry = KTProductCheckerRegistry::instance();
        checker.whenAsked = [&](const KTProductType &type) {
            if (inside++ > 0)
                overlapped = true;
            std::this_thread::yield();
            --inside;
            registry->isValid(type, SIGN);
        };
        registry->registerChecker(&checker);
        std::vector<std::thread> threads;
        for (int i = 0; i < threadCount; ++i) {
            threads.emplace_back([&] {
                for (--waiting; waiting > 0;)
                    std::this_thread::yield();
                for (int number = 0; number < TYPES; ++number) {
                    if (!registry->isValid(productType(number), FIRST))
                        ++wrongAnswers;
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        registry->unregisterChecker(&checker);
        QCOMPARE(wrongAnswers, 0);
        QCOMPARE(checker.asked, TYPES);
        QVERIFY(!overlapped);
    }
};

QTEST_APPLESS_MAIN(tst_KTProductCheckerRegistry)
#include "tst_KTProductCheckerRegistry.moc"
