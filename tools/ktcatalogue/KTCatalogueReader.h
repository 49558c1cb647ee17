#pragma once

#include "KTCatalogueArticle.h"

#include <QXmlStreamReader>

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
    /**
     * Reads the next article or the bare start tag of the next element around the articles: of the root
     * element, which comes first, or of one of its other children. False at the end and after an error.
     */
    bool readNextOrOther(KTCatalogueArticle *article);
    /** True when a whole article was read last. */
    bool isArticle() const { return myIsArticle; }
    /** True when the start tag of the root element was read last. */
    bool isRoot() const { return myDepth == 1 && !myIsArticle; }

    KTCatalogueErrorKind errorKind() const { return myErrorKind; }
    /** What is wrong with the file; empty while nothing is. */
    QString errorText() const { return myErrorText; }
    KTFilePosition errorPosition() const { return myErrorPosition; }

private:
    QXmlStreamReader::TokenType nextToken();
    bool readArticle(KTCatalogueArticle *article);
    void appendElement(KTCatalogueArticle *article, int parent);
    void fail(KTCatalogueErrorKind kind, const QString &text, const KTFilePosition &position);
    void failAsReader();
    KTFilePosition readerPosition() const;

    KTCatalogueScanner myScanner;
    QXmlStreamReader myReader;
    KTCatalogueErrorKind myErrorKind = KTCatalogueErrorKind::None;
    QString myErrorText;
    KTFilePosition myErrorPosition;
    /** Of the start tag read last. */
    KTFilePosition myTag;
    QVector<KTFilePosition> myAttributes;
    int myDepth = 0;
    bool myIsArticle = false;
};
