#include "KTBenchmark.h"

#include <KTProductChecker.h>
#include <KTProductCheckerRegistry.h>

#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QStringList>
#include <QVector>

#include <thread>

namespace {

constexpr int PRODUCT_COUNT = 100'000;
constexpr auto CHECKER_TYPE = static_cast<KTProductCheckerType>(1);

/** Objects to calendars. */
class KTNoCalendars : public KTProductChecker
{
public:
    bool checkProductType(const KTProductType &type) override { return !type.isCalendar(); }
    KTProductCheckerType checkerType() override { return CHECKER_TYPE; }
    bool checkBoxStyle(const KTProductType &, const KTArticleVariants &) override { return true; }
};

/** Price codes, calendars, books, and albums that are shortened to their family. */
QStringList mixedCodes()
{
    const QString patterns[]
        = {QStringLiteral("%1"), QStringLiteral("CAL%1"), QStringLiteral("PB%1"), QStringLiteral("ALB%1_30")};
    QStringList codes;
    for (int i = 0; i < PRODUCT_COUNT; ++i)
        codes.append(patterns[i % 4].arg(i));
    return codes;
}

/** The plainest cache of answers that two threads may share. */
class KTPlainCache
{
public:
    void insert(const QString &code, bool valid) { myAnswers.insert(code, valid); }
    bool isValid(const QString &code) const
    {
        const QMutexLocker locker(&myMutex);
        return myAnswers.value(code);
    }

private:
    mutable QMutex myMutex;
    QHash<QString, bool> myAnswers;
};

/** Asks for each input once in all, by one thread or by two with a half each. */
template <typename INPUT, typename QUESTION>
void addQuestions(const std::string &contender, const QVector<INPUT> &inputs, QUESTION question)
{
    const auto askRange = [&inputs, question](int first, int last) {
        for (int i = first; i < last; ++i)
            benchmark::DoNotOptimize(question(inputs.at(i)));
    };
    KTBenchmark::addOverInputs("ask for 100,000 answers, one thread/" + contender, inputs, question);
    KTBenchmark::add(
        "ask for 100,000 answers, two threads/" + contender, PRODUCT_COUNT,
        [askRange](std::size_t count) {
            for (std::size_t round = count / PRODUCT_COUNT; round > 0; --round) {
                std::thread other(askRange, 0, PRODUCT_COUNT / 2);
                askRange(PRODUCT_COUNT / 2, PRODUCT_COUNT);
                other.join();
            }
        },
        KTBenchmark::RealTime);
}

} // namespace

void KTBenchmark::addProducts()
{
    static const QStringList codes = mixedCodes();
    addOverInputs("build 100,000 product types/library", codes,
                  [](const QString &code) { return KTProductType(code); });

    static KTNoCalendars checker;
    static KTProductCheckerRegistry registry;
    static KTPlainCache plain;
    static QVector<KTProductType> types;
    static QVector<QString> families;
    registry.registerChecker(&checker);
    for (const QString &code : codes) {
        types.append(code);
        families.append(types.last().toString());
        const bool valid = registry.isValid(types.last(), CHECKER_TYPE);
        require(valid == !code.startsWith(QLatin1String("CAL")), code);
        plain.insert(families.last(), valid);
    }
    addQuestions("library", types,
                 [](const KTProductType &type) { return registry.isValid(type, CHECKER_TYPE); });
    addQuestions("literal", families, [](const QString &code) { return plain.isValid(code); });
}
