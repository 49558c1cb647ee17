#pragma once

#include <KTArticle.h>
#include <KTCatalogueArticle.h>
#include <KTDifference.h>
#include <KTFinding.h>

#include <QString>
#include <QVector>

/** An article of a report, and what there is to say about it beside what it is. */
struct KTReportArticle
{
    KTArticle article;
    /** As it stands in the file; valid while the article is looked at. */
    const KTCatalogueArticle *source = nullptr;
    /** In the order of their places. */
    QVector<KTFinding> findings;
    /** To the older catalogue; empty without one. */
    QVector<KTDifference> differences;

    /** What links to the article name, "a7301"; with its place where it is not the one that has the number.
     */
    QString anchor() const;
    /** The number as people say it; empty for an article that has none. */
    QString number() const;
    bool isNew() const;
};
