#pragma once

#include "KTCatalogueScanner.h"

#include <QDomDocument>
#include <QDomElement>
#include <QXmlStreamReader>

/** One article of a catalogue: a document of its own, and where each start tag of it stands in the file. */
struct KTCatalogueArticle
{
    QDomElement element() const { return document.documentElement(); }

    /** The elements with their attributes, without texts: articles have none. */
    QDomDocument document;
    /** In document order. */
    QVector<KTTagPositions> tags;
};

/**
 * Reads a catalogue one article at a time, so that memory does not grow with the file.
 *
 * A catalogue is a root element "catalogue" with "article" children; anything else in the root is skipped. A
 * file that is not well-formed, or beyond the limits of KTCatalogueScanner and MAXIMUM_DEPTH, ends the
 * reading with an error.
 */
class KTCatalogueReader
{
public:
    static constexpr int MAXIMUM_DEPTH = 256;

    /** Reads from the open device, which it does not own. */
    explicit KTCatalogueReader(QIODevice *device);

    /** Reads the next article; false at the end and after an error. */
    bool readNext(KTCatalogueArticle *article);

    /** What is wrong with the file; empty while nothing is. */
    QString errorText() const { return myErrorText; }
    KTFilePosition errorPosition() const { return myErrorPosition; }

private:
    QXmlStreamReader::TokenType nextToken();
    bool readArticle(KTCatalogueArticle *article);
    void fail(const QString &text, const KTFilePosition &position);
    void failAsReader();
    KTFilePosition readerPosition() const;

    KTCatalogueScanner myScanner;
    QXmlStreamReader myReader;
    QString myErrorText;
    KTFilePosition myErrorPosition;
    /** Of the start tag read last. */
    KTTagPositions myTag;
    int myDepth = 0;
};
