#include "KTVariantsText.h"

#include <QStringList>

namespace {

constexpr QChar MCF_SEPARATOR = u',';
constexpr QChar ORDER_TEXT_SEPARATOR = u';';

/** Joins what the function writes of each pair alone. */
template <typename Function>
QString joined(const KTArticleVariants &variants, QChar separator, Function function)
{
    QStringList texts;
    for (const QString &key : variants.keys()) {
        const QString text = function(KTArticleVariants(key, variants.value(key, QString())));
        if (!text.isEmpty())
            texts.append(text);
    }
    return texts.join(separator);
}

} // namespace

QString KTVariantsText::mcf(const KTArticleVariants &variants)
{
    return joined(variants, MCF_SEPARATOR, [](const KTArticleVariants &pair) { return pair.toMCF(); });
}

QString KTVariantsText::orderText(const KTArticleVariants &variants)
{
    return joined(variants, ORDER_TEXT_SEPARATOR,
                  [](const KTArticleVariants &pair) { return pair.toOrderTxt(); });
}

KTArticleVariants KTVariantsText::fromOrderText(const QString &text)
{
    KTArticleVariants variants;
    for (const QString &pair : text.split(ORDER_TEXT_SEPARATOR))
        variants.insert(KTArticleVariants(pair));
    return variants;
}

KTArticleVariants KTVariantsText::production(const KTArticleVariants &variants)
{
    KTArticleVariants production;
    for (const QString &key : variants.keys())
        production.splitForProduction(key, variants.value(key, QString()));
    return production;
}
