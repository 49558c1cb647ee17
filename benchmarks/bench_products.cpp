#include "KTBenchmark.h"

#include <KTProductChecker.h>
#include <KTProductCheckerRegistry.h>
#include <KTSingleton.h>

#include <QHash>
#include <QMutex>
#include <QMutexLocker>
#include <QReadWriteLock>
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

/** Nothing but an instance for the process. */
class KTBenchSingleton : public KTSingleton<KTBenchSingleton>
{
};

/** The same in its plainest form, which locks for each question. */
KTBenchSingleton *plainInstance()
{
    static QReadWriteLock lock;
    static KTBenchSingleton *instance = nullptr;
    {
        const QReadLocker locker(&lock);
        if (instance)
            return instance;
    }
    const QWriteLocker locker(&lock);
    if (!instance)
        instance = new KTBenchSingleton;
    return instance;
}

/** A text of the same characters that shares nothing with the other. */
QString ownCopy(const QString &text)
{
    return QString(text.constData(), text.size());
}

/** Calls the operation with each number below the count, by one thread or by two with a half each. */
template <typename OPERATION>
void addForThreads(const std::string &work, const std::string &contender, int count, OPERATION operation)
{
    const auto doRange = [operation](int first, int last) {
        for (int i = first; i < last; ++i)
            benchmark::DoNotOptimize(operation(i));
    };
    const auto batch = static_cast<std::size_t>(count);
    KTBenchmark::add(work + ", one thread/" + contender, batch, [doRange, batch, count](std::size_t total) {
        for (std::size_t round = total / batch; round > 0; --round)
            doRange(0, count);
    });
    KTBenchmark::add(
        work + ", two threads/" + contender, batch,
        [doRange, batch, count](std::size_t total) {
            for (std::size_t round = total / batch; round > 0; --round) {
                std::thread other(doRange, 0, count / 2);
                doRange(count / 2, count);
                other.join();
            }
        },
        KTBenchmark::RealTime);
}

/** Adds a question per type to the registry, and one per code to the plain cache. */
void addQuestions(const std::string &work, const QVector<KTProductType> &types, const QStringList &families,
                  const KTProductCheckerRegistry &registry, const KTPlainCache &plain)
{
    addForThreads(work, "library", PRODUCT_COUNT,
                  [&](int number) { return registry.isValid(types.at(number), CHECKER_TYPE); });
    addForThreads(work, "literal", PRODUCT_COUNT,
                  [&](int number) { return plain.isValid(families.at(number)); });
}

} // namespace

void KTBenchmark::addSingleton()
{
    // So many that starting a thread does not count.
    constexpr int COUNT = 2'000'000;
    addForThreads("instance of a singleton", "library", COUNT,
                  [](int) { return KTBenchSingleton::instance(); });
    addForThreads("instance of a singleton", "literal", COUNT, [](int) { return plainInstance(); });
}

void KTBenchmark::addProductTypes()
{
    static const QStringList codes = mixedCodes();
    addOverInputs("build 100,000 product types/library", codes,
                  [](const QString &code) { return KTProductType(code); });
    static const QStringList albums = codes.filter(QStringLiteral("ALB")).mid(0, 1000);
    require(KTProductType(albums.last()).toString() == albums.last().section(QLatin1Char('_'), 0, 0),
            albums.last());
    addOverInputs("build the product type of an album/library", albums,
                  [](const QString &code) { return KTProductType(code); });
}

void KTBenchmark::addRegistry()
{
    static KTNoCalendars checker;
    static KTProductCheckerRegistry registry;
    static KTPlainCache plain;
    static QVector<KTProductType> types;
    static QVector<KTProductType> ownTypes;
    static QStringList families;
    static QStringList ownFamilies;
    registry.registerChecker(&checker);
    for (const QString &code : mixedCodes()) {
        types.append(code);
        families.append(types.last().toString());
        ownFamilies.append(ownCopy(families.last()));
        ownTypes.append(ownCopy(families.last()));
        const bool valid = registry.isValid(types.last(), CHECKER_TYPE);
        require(valid == !code.startsWith(QLatin1String("CAL")), code);
        plain.insert(families.last(), valid);
    }
    addQuestions("ask for 100,000 answers", types, families, registry, plain);
    addQuestions("ask with texts of their own", ownTypes, ownFamilies, registry, plain);
}
