#include <KTArticleVariants.h>
#include <KTProductChecker.h>
#include <KTProductCheckerRegistry.h>

#include "KTTestSupport.h"

#include <atomic>
#include <functional>
#include <limits>
#include <stdexcept>

namespace {

constexpr auto FIRST = static_cast<KTProductCheckerType>(1);
constexpr auto SECOND = static_cast<KTProductCheckerType>(2);
constexpr auto SIGN = static_cast<KTProductCheckerType>(std::numeric_limits<qint32>::min());

/** Serves the first and the last bit, answers as told and counts the questions. */
class KTTestChecker : public KTProductChecker
{
public:
    bool checkProductType(const KTProductType &type) override
    {
        ++asked;
        return answer(type);
    }
    KTProductCheckerType checkerType() override { return FIRST | SIGN; }
    bool checkBoxStyle(const KTProductType &, const KTArticleVariants &variants) override
    {
        ++asked;
        return variants.isValid();
    }

    std::atomic<int> asked {0};
    std::function<bool(const KTProductType &)> answer = [](const KTProductType &) { return true; };
};

KTProductType productType(int number)
{
    return KTProductType(QString::number(number));
}

} // namespace

class tst_KTProductCheckerRegistry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void asksUntilObjection()
    {
        KTTestChecker agreeing;
        KTTestChecker objecting;
        KTTestChecker never;
        objecting.answer = [](const KTProductType &) { return false; };
        KTProductCheckerRegistry registry;
        registry.registerChecker(nullptr);
        QVERIFY(registry.isValid(productType(1), FIRST));
        for (KTTestChecker *checker : {&agreeing, &agreeing, &objecting, &never})
            registry.registerChecker(checker);
        QVERIFY(!registry.isValid(productType(1), FIRST) && !registry.isValidWorker(productType(1), SIGN));
        QVERIFY(registry.isValid(productType(1), SECOND));
        QCOMPARE(agreeing.asked, 4);
        QCOMPARE(objecting.asked, 2);
        registry.unregisterChecker(&agreeing);
        for (int i = 0; i < 2; ++i)
            QVERIFY(!registry.isValidBoxStyle(productType(1), KTArticleVariants(), FIRST));
        QCOMPARE(agreeing.asked, 4);
        QCOMPARE(objecting.asked, 4);
        QCOMPARE(never.asked, 0);
        QVERIFY(registry.isValidBoxStyle(productType(1), KTArticleVariants::blackCFBGiftBox(), FIRST));
    }

    void remembersUntilTold()
    {
        bool answer = true;
        KTTestChecker checker;
        checker.answer = [&](const KTProductType &) { return answer; };
        KTProductCheckerRegistry registry;
        registry.registerChecker(&checker);
        const std::function<void()> changes[] = {
            [&] { registry.clearCaches(); },
            [&] { registry.unregisterChecker(nullptr); },
            [&] { registry.registerChecker(nullptr); },
        };
        for (const auto &change : changes) {
            QCOMPARE(registry.isValid(u"ALB9_30"_s, FIRST), answer);
            answer = !answer;
            QCOMPARE(registry.isValid(u"ALB9_21"_s, FIRST), !answer);
            QCOMPARE(registry.isValidWorker(u"ALB9"_s, FIRST), answer);
            change();
            QCOMPARE(registry.isValid(u"ALB9"_s, FIRST), answer);
        }
    }

    void letsCheckersChangeRegistration()
    {
        KTTestChecker leaving;
        KTTestChecker sending;
        KTTestChecker sent;
        KTProductCheckerRegistry registry;
        leaving.answer = [&](const KTProductType &) { return registry.unregisterChecker(&leaving), true; };
        sending.answer = [&](const KTProductType &) { return registry.unregisterChecker(&sent), true; };
        for (KTTestChecker *checker : {&leaving, &sending, &sent})
            registry.registerChecker(checker);
        QVERIFY(registry.isValid(productType(1), FIRST));
        QVERIFY(sending.asked == 1 && sent.asked == 0);
        // An answer from before the change is not remembered.
        QVERIFY(registry.isValid(productType(1), FIRST));
        QVERIFY(sending.asked == 2 && leaving.asked == 1);
    }

    void survivesThrowingChecker()
    {
        KTTestChecker checker;
        KTProductCheckerRegistry registry;
        registry.registerChecker(&checker);
        checker.answer = [](const KTProductType &) -> bool { throw std::runtime_error("no answer"); };
        QVERIFY_EXCEPTION_THROWN(registry.isValid(productType(1), FIRST), std::runtime_error);
        checker.answer = [](const KTProductType &) { return false; };
        // A lock that is still held would stop only another thread.
        KTTest::runInThreads(1, [&](int) { QVERIFY(!registry.isValid(productType(1), FIRST)); });
    }

    void asksOnceForAllThreads()
    {
        // Enough for the cache to move its entries while a checker is asked.
        constexpr int TYPES = 200;
        KTProductCheckerRegistry *const registry = KTProductCheckerRegistry::instance();
        for (const int threadCount : {2, 8}) {
            std::atomic<int> objections {0};
            KTTestChecker checker;
            checker.answer = [&](const KTProductType &type) {
                const int number = type.toString().toInt();
                if (number == 0)
                    KTTest::linger();
                return number == 0 || registry->isValid(productType(number - 1), FIRST);
            };
            registry->registerChecker(&checker);
            KTTest::runInThreads(threadCount, [&](int) {
                for (int number = TYPES - 1; number >= 0; --number)
                    objections += registry->isValid(productType(number), FIRST) ? 0 : 1;
            });
            registry->unregisterChecker(&checker);
            QCOMPARE(objections, 0);
            QCOMPARE(checker.asked, TYPES);
        }
    }
};

QTEST_APPLESS_MAIN(tst_KTProductCheckerRegistry)
#include "tst_KTProductCheckerRegistry.moc"
