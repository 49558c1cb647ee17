#pragma once

#include <KTArticleId.h>

#include <QDomDocument>
#include <QFile>
#include <QString>

/** The article of the sample catalogue, for recipes that begin with an element; a null one where it has none.
 */
inline QDomElement sampleArticle(int id)
{
    QFile file(QStringLiteral(KT_SAMPLE_CATALOGUE));
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return {};
    QDomElement article = document.documentElement().firstChildElement(QStringLiteral("article"));
    while (!article.isNull() && KTArticleId::findId(article) != id)
        article = article.nextSiblingElement(QStringLiteral("article"));
    return article;
}
