#pragma once

#include "KTCatalogueReader.h"
#include "KTInputDecoder.h"
#include "KTStartTag.h"
#include "KTTextTracker.h"

#include <expat.h>

#include <deque>
#include <memory>
#include <vector>

/**
 * Pushes the file through expat and collects what it tells. Not part of the library's interface.
 *
 * The parser knows where a tag stands, but not its attributes, so the bytes that it has not finished with are
 * kept beside it: what it has found to be a start tag is easy to take apart.
 */
class KTCatalogueReaderImpl
{
public:
    explicit KTCatalogueReaderImpl(QIODevice *device);
    ~KTCatalogueReaderImpl();

    /** Begins in the middle of a catalogue whose begin the other one has read, where an article begins. */
    void beginAs(const KTCatalogueReaderImpl &other, const KTFilePosition &position);
    void setFilter(const KTCatalogueReader::Filter &isWanted) { myIsWanted = isWanted; }
    KTCatalogueReader::Item next(KTCatalogueArticle *article);
    KTCatalogueError error() const { return myIsErrorDue ? myError : KTCatalogueError(); }

private:
    Q_DISABLE_COPY(KTCatalogueReaderImpl)

    using Item = KTCatalogueReader::Item;
    using Place = KTCatalogueArticle::Place;

    struct Queued
    {
        Item item;
        std::unique_ptr<KTCatalogueArticle> article;
    };
    /** The end of an open element's name in myOpenNames, and the line of its tag. */
    struct OpenElement
    {
        int nameEnd;
        int line;
    };

    void setHandlers();

    void feed();
    void decide();
    void parse(const QByteArray &text, bool isLast);
    bool append(const QByteArray &text);
    void checkPending();
    void checkLimits(int begin, int end);

    void startElement(const char **attributes);
    void beginItem();
    void appendElement(int tagBegin, int tagEnd, int nameLength, const char **attributes);
    void endElement();
    bool isWanted() const;
    void finishItem(Item item);
    void addText(int length);
    void leaveText();
    void refuseDocumentType();
    void failAsParser(bool isAtEnd);

    /** Where in the window what the parser tells of begins, and where it ends. */
    int eventBegin() const { return place(XML_GetCurrentByteIndex(myParser)); }
    int eventEnd() const { return eventBegin() + XML_GetCurrentByteCount(myParser); }
    int place(qint64 offset) const { return static_cast<int>(offset - myWindowOffset); }
    const char *bytes(int place) const { return myWindow.constData() + place; }
    void advanceTo(int place);
    KTFilePosition positionOf(int place) const;
    /** The name of the innermost open element, and the line of its tag. */
    QString openElement() const;
    int openLine() const { return myOpenElements.empty() ? 0 : myOpenElements.back().line; }
    bool hasFailed() const { return myError.kind != KTCatalogueErrorKind::None; }
    void fail(KTCatalogueErrorKind kind, const QString &text, const KTFilePosition &position);
    bool isWithinLimits(const KTStartTag::Attribute &attribute, int number);

    QIODevice *myDevice;
    KTInputDecoder myDecoder;
    bool myIsDecided = false;
    QByteArray myHead;
    XML_Parser myParser;
    bool myIsAtEnd = false;

    /** The text in UTF-8 that the parser or the tracker is not done with; offsets count such bytes. */
    QByteArray myWindow;
    qint64 myWindowOffset = 0;
    KTTextTracker myTracker;
    qint64 myTrackedOffset = 0;
    /** Where in the window the bytes begin that the parser has not seen. */
    int myUnseen = 0;

    int myDepth = 0;
    QByteArray myOpenNames;
    std::vector<OpenElement> myOpenElements;
    int myTextLength = 0;
    KTFilePosition myTextBegin;

    KTCatalogueReader::Filter myIsWanted;
    std::unique_ptr<KTCatalogueArticle> myArticle;
    /** The present element of the article, -1 outside of articles. */
    int myElement = -1;
    /** Values that are not written as they are read, with the index of their attributes. */
    std::vector<std::pair<int, QByteArray>> myDecodedValues;
    std::deque<Queued> myQueue;
    std::vector<std::unique_ptr<KTCatalogueArticle>> myPool;

    KTCatalogueError myError;
    bool myIsErrorDue = false;
};
