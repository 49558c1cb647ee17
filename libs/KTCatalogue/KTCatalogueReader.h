#pragma once

#include "KTCatalogueArticle.h"
#include "KTFilePosition.h"
#include "ktcatalogue_export.h"

#include <QString>

#include <functional>
#include <memory>

class KTCatalogueReaderImpl;
class QIODevice;

/** Why a file is no catalogue. */
enum class KTCatalogueErrorKind {
    None,
    /** It cannot be opened or read to its end. */
    Unreadable,
    NotWellFormed,
    LimitExceeded,
    /** It is no longer the file that was opened, see KTCatalogue. */
    Changed,
};

/** Why and where the reading of a file ended. */
struct KTCatalogueError
{
    KTCatalogueErrorKind kind = KTCatalogueErrorKind::None;
    /** In words for the file's author, without a full stop. */
    QString text;
    KTFilePosition position;
};

/**
 * Reads a catalogue one article at a time, so that memory does not grow with the file.
 *
 * A catalogue is a root element "catalogue" with "article" children; anything else in the root is skipped.
 * Names are read as they stand, prefixes included. The file may be in UTF-8, UTF-16, ISO-8859-1, ISO-8859-15
 * or windows-1252, where it declares so; texts come out in the same way from all of them.
 *
 * A file that is not well-formed, has a document type declaration, or exceeds one of the limits ends the
 * reading with an error. The limits keep every file from costing time or memory out of proportion.
 */
class KTCATALOGUE_EXPORT KTCatalogueReader
{
public:
    /** Levels of elements. */
    static constexpr int MAX_DEPTH = 256;
    /** Attributes of one element. */
    static constexpr int MAX_ATTRIBUTES = 1024;
    /** Bytes, in UTF-8, of a name, of an attribute's value as it is written, and of a text between tags. */
    static constexpr int MAX_VALUE_LENGTH = 64 * 1024;
    /** Bytes, in UTF-8, of a tag, of a comment, and of an instruction. */
    static constexpr int MAX_MARKUP_LENGTH = 16 * 1024 * 1024;

    enum class Item {
        /** The end of a file without an error. */
        End,
        /** The start tag of the root element, which comes first. */
        Root,
        /** A whole article. */
        Article,
        /** The start tag of another child of the root element. */
        Other,
        /** What follows is not read; see error(). */
        Error,
    };

    /** Reads from the open device, which it does not own. */
    explicit KTCatalogueReader(QIODevice *device);
    ~KTCatalogueReader();

    using Filter = std::function<bool(const KTXMLElement &article)>;
    /**
     * Of the articles only those are handed out whose start tag the function takes; the others must be
     * well-formed as well. To be called before anything is read.
     */
    void setFilter(const Filter &isWanted);

    /**
     * Reads the next item. For an article, and for a start tag as an element without children, the argument
     * gets the content, else it stays as it is. After End and Error the answer stays the same.
     */
    Item next(KTCatalogueArticle *article);
    /** The same, but skips everything beside articles. */
    Item nextArticle(KTCatalogueArticle *article);

    /** Of the kind None until next() has given Error. */
    KTCatalogueError error() const;

private:
    friend class KTCatalogue;
    friend class KTCatalogueIndex;
    Q_DISABLE_COPY(KTCatalogueReader)

    /** Reads on from an article of a catalogue whose begin the other reader has read. */
    KTCatalogueReader(QIODevice *device, const KTCatalogueReader &other, const KTFilePosition &position);

    std::unique_ptr<KTCatalogueReaderImpl> myImpl;
};
