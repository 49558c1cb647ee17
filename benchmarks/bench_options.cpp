#include "KTBenchmark.h"

#include <KTConfiguredArticleVariantList.h>
#include <KTPriceClassSet.h>

#include <QHash>
#include <QStringList>

namespace {

QString keyOf(int number)
{
    return QStringLiteral("option%1").arg(number);
}

QString valueOf(int number)
{
    return QStringLiteral("choice%1").arg(number);
}

/** A choice in the plainest form: a map whose pairs are written one by one and joined. */
using KTPlainChoice = QHash<QString, QString>;

QString writtenPlainly(const KTPlainChoice &choice)
{
    QStringList pairs;
    for (auto pair = choice.begin(); pair != choice.end(); ++pair) {
        if (!pair.key().isEmpty() && !pair.value().isEmpty())
            pairs.append(QStringLiteral("%1:%2").arg(pair.key()).arg(pair.value()));
    }
    return pairs.join(QLatin1Char(','));
}

QStringList sortedParts(const QString &text, QChar separator)
{
    QStringList parts = text.split(separator);
    parts.sort();
    return parts;
}

/** Adds an operation on always the same input. */
template <typename OPERATION>
void addOne(const std::string &name, OPERATION operation)
{
    KTBenchmark::add(name, 1, [operation](std::size_t count) {
        for (; count > 0; --count)
            benchmark::DoNotOptimize(operation());
    });
}

void addWriting(int count)
{
    KTArticleVariants choice;
    KTPlainChoice plain;
    for (int i = 0; i < count; ++i) {
        choice.insert(keyOf(i), valueOf(i));
        plain.insert(keyOf(i), valueOf(i));
    }
    const QStringList pairs = sortedParts(writtenPlainly(plain), QLatin1Char(','));
    KTBenchmark::require(sortedParts(choice.toMCF(), QLatin1Char(',')) == pairs
                             && sortedParts(choice.toOrderTxt(), QLatin1Char(';')) == pairs,
                         QStringLiteral("a choice"));
    const std::string what = "write " + std::to_string(count) + " pairs as ";
    addOne(what + "MCF/library", [choice] { return choice.toMCF(); });
    addOne(what + "MCF/literal", [plain] { return writtenPlainly(plain); });
    addOne(what + "order text/library", [choice] { return choice.toOrderTxt(); });
}

KTConfiguredArticleVariantList offer(int count)
{
    KTConfiguredArticleVariantList options;
    for (int i = 0; i < count; ++i)
        options.append(KTConfiguredArticleVariant(keyOf(i / 4), valueOf(i)));
    return options;
}

void addChoosing(int count)
{
    const KTConfiguredArticleVariantList options = offer(count);
    KTArticleVariants chosen;
    for (const int number : {0, count / 2, count - 1})
        chosen.insert(options.at(number).toArticleVariants());
    KTArticleVariants other = chosen;
    other.insert(keyOf(0), valueOf(count));
    KTBenchmark::require(options.contains(chosen) && !options.contains(other), QStringLiteral("an offer"));
    addOne("find a choice of 3 among " + std::to_string(count) + "/library",
           [options, chosen] { return options.contains(chosen); });
}

} // namespace

void KTBenchmark::addOptions()
{
    for (const int count : {3, 30})
        addWriting(count);
    addOne("join 12 options for the order text/library",
           [options = offer(12)] { return options.joinForOrderTxt(); });
    for (const int count : {10, 100})
        addChoosing(count);
    addOne("spotColorAll()/library", KTPriceClassSet::spotColorAll);
    addOne("calendarFrameClasses()/library", KTPriceClassSet::calendarFrameClasses);
    addOne("frameGlasses()/library", KTPriceClassSet::frameGlasses);
}
