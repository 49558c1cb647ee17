#pragma once

#include "KTArticle.h"
#include "KTCatalogueReader.h"
#include "ktcatalogue_export.h"

#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QVector>

#include <optional>

/**
 * A catalogue file whose articles are asked for by their numbers.
 *
 * Opening reads the file once and keeps where each article stands, so that any of them can be read directly.
 * The file stays open, and it is noticed when it is changed underneath; open it anew then. One thread at a
 * time.
 */
class KTCATALOGUE_EXPORT KTCatalogue
{
public:
    explicit KTCatalogue(const QString &fileName);
    ~KTCatalogue();

    /** Of the kind None unless the file was refused, or a later reading failed. */
    const KTCatalogueError &error() const { return myError; }

    /** The positive numbers in the order of the file; empty when it was refused. */
    const QVector<int> &articleIds() const { return myArticleIds; }
    bool contains(int articleId) const { return myPlaces.contains(articleId); }

    /** The first article with the number; none when there is none, and when reading fails, see error(). */
    [[nodiscard]] std::optional<KTArticle> article(int articleId);
    /** The same as it stands in the file, with its places; false where the other gives none. */
    bool read(int articleId, KTCatalogueArticle *article);

private:
    Q_DISABLE_COPY(KTCatalogue)

    struct Place
    {
        KTFilePosition position;
        /** In bytes of the file. */
        qint64 length;
    };

    bool isUnchanged() const;

    QFile myFile;
    qint64 mySize = 0;
    QDateTime myModified;
    std::unique_ptr<KTCatalogueReader> myReader;
    QVector<int> myArticleIds;
    QHash<int, Place> myPlaces;
    KTCatalogueError myError;
};
