#pragma once

#include "KTArticle.h"
#include "KTCatalogueReader.h"
#include "ktcatalogue_export.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>

class QIODevice;

/**
 * Where each article of an open catalogue stands and what is written there, in 32 bytes an article, so that
 * two catalogues can be compared, or single articles read, without holding either.
 *
 * Articles are known by their numbers: those without a positive one are left out, and of several with one
 * number the first counts, as everywhere. One thread at a time.
 */
class KTCATALOGUE_EXPORT KTCatalogueIndex
{
public:
    /** Told the number of articles after each one. */
    using Listener = std::function<void(int articles)>;

    /**
     * Reads the open device, which must be one that can seek and outlive the index, to its end. With a
     * number, the index is of that article alone.
     */
    explicit KTCatalogueIndex(QIODevice *device, std::optional<int> articleId = std::nullopt,
                              const Listener &listener = Listener());
    ~KTCatalogueIndex();

    /** Of the kind None unless the file was refused, and then there are no articles, or a reading failed. */
    const KTCatalogueError &error() const { return myError; }

    int size() const { return static_cast<int>(myEntries.size()); }
    /** The article's number at the place; they ascend. */
    int articleId(int place) const { return myEntries.at(static_cast<std::size_t>(place)).articleId; }
    /** Where the article is in the index; -1 where it is not. */
    int find(int articleId) const;
    /** True when the article at the place is written as the other index has it, but for the order of
     * attributes and what is not read. */
    bool isWrittenAlike(int place, const KTCatalogueIndex &other, int otherPlace) const;

    /** Reads the article at the place; false when the file is no longer what it was, see error(). */
    bool read(int place, KTCatalogueArticle *article);
    /** The article with the number; none when there is none, and when reading fails, see error(). */
    [[nodiscard]] std::optional<KTArticle> article(int articleId);

private:
    Q_DISABLE_COPY(KTCatalogueIndex)

    struct Entry
    {
        int articleId;
        int line;
        int column;
        /** In bytes; an article that is longer is read with what follows it. */
        quint32 length;
        qint64 offset;
        quint64 digest;
    };

    void build(std::optional<int> articleId, const Listener &listener);

    QIODevice *myDevice;
    std::unique_ptr<KTCatalogueReader> myReader;
    /** In blocks, because a list that grows would need room for three times as many. */
    std::deque<Entry> myEntries;
    KTCatalogueError myError;
};
