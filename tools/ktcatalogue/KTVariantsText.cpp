#include "KTVariantsText.h"

#include <QStringList>

namespace {

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
    return joined(variants, QLatin1Char(','), [](const KTArticleVariants &pair) { return pair.toMCF(); });
}

QString KTVariantsText::orderTxt(const KTArticleVariants &variants)
{
    return joined(variants, QLatin1Char(';'),
                  [](const KTArticleVariants &pair) { return pair.toOrderTxt(); });
}

KTArticleVariants KTVariantsText::xtci(const KTArticleVariants &variants)
{
    KTArticleVariants production;
    for (const QString &key : variants.keys())
        production.splitForProduction(key, variants.value(key, QString()));
    return production;
}

QJsonObject KTVariantsText::json(const KTArticleVariants &variants)
{
    QJsonObject object;
    for (const QString &key : variants.keys())
        object.insert(key, variants.value(key, QString()));
    return object;
}
