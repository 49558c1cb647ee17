#pragma once

#include "KTReportArticle.h"

#include <QVector>

#include <array>

/** The findings of an article, by what they are about, so that each is shown beside it, and once. */
class KTArticleFindings
{
public:
    /** The parts of the page about an article. */
    enum class Topic {
        /** The article as a whole, and what nothing reads. */
        Article,
        Facts,
        PageCounts,
        Pages,
        Barcodes,
        Options,
        COUNT,
    };
    using List = QVector<const KTFinding *>;

    /** The article must outlive the findings. */
    explicit KTArticleFindings(const KTReportArticle &article);

    /** Those of the topic about the attribute of the article's element. */
    List take(Topic topic, const QString &attribute);
    /** Those of the topic in the range of the file. */
    List take(Topic topic, const KTFileRange &range);
    /** Those of the topic that have not been taken; nothing is left then. */
    List takeRest(Topic topic);

private:
    struct Entry
    {
        const KTFinding *finding;
        bool isTaken;
    };

    QVector<Entry> &entries(Topic topic) { return myEntries[static_cast<std::size_t>(topic)]; }

    /** By their places, so that the cost of looking for one does not grow with an article's mistakes. */
    std::array<QVector<Entry>, static_cast<std::size_t>(Topic::COUNT)> myEntries;
};
