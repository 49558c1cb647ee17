#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QVector>

#include <deque>

/** A place in a file; lines and columns count from 1, columns in characters. */
struct KTFilePosition
{
    int line = 1;
    int column = 1;
};

/** Where a start tag and each of its attributes begin. */
struct KTTagPositions
{
    KTFilePosition tag;
    QVector<KTFilePosition> attributes;
};

/**
 * A device that hands an XML file through to its reader and looks at the markup on the way.
 *
 * It knows where each start tag and attribute begins, which the XML reader cannot tell, and it stops the flow
 * before the XML reader meets what would cost it time or memory out of proportion: too many attributes in one
 * tag (it compares them in pairs), overlong values, and document type declarations with their entities. What
 * it does not understand it leaves to the XML reader to refuse. It holds back nothing and looks ahead no
 * further than the XML reader's buffer. The file must be in UTF-8.
 */
class KTCatalogueScanner : public QIODevice
{
public:
    static constexpr int MAXIMUM_ATTRIBUTES = 1024;
    /** In bytes, of an attribute's value and of a text; names of elements and attributes count as well. */
    static constexpr int MAXIMUM_VALUE_LENGTH = 64 * 1024;

    /** Reads from the open device, which it does not own. */
    explicit KTCatalogueScanner(QIODevice *source);

    bool isSequential() const override { return true; }

    /** Why the flow was stopped; empty while it was not. */
    QString refusal() const { return myRefusal; }
    /** Where the flow was stopped. */
    KTFilePosition refusalPosition() const { return myTokenPosition; }
    /** True when reading the source itself failed. */
    bool hasReadError() const { return myReadError; }

    /** Hands out the positions of the next start tag, in document order. */
    KTTagPositions takeTag();

protected:
    qint64 readData(char *data, qint64 maximum) override;
    qint64 writeData(const char *data, qint64 length) override;

private:
    enum class State {
        Text,
        MarkupStart,
        Declaration,
        Comment,
        CData,
        Instruction,
        EndTag,
        TagName,
        InTag,
        AttributeName,
        BeforeValue,
        Value,
    };

    void scan(char byte);
    void scanText(char byte);
    void scanDeclaration(char byte);
    void scanTag(char byte);
    void enter(State state);
    void countTowardsLimit();
    void finishTag();
    void refuse(const QString &reason);
    void advance(char byte);

    QIODevice *mySource;
    State myState = State::Text;
    KTFilePosition myPosition;
    KTFilePosition myTokenPosition;
    KTTagPositions myTag;
    std::deque<KTTagPositions> myTags;
    QString myRefusal;
    /** The last bytes of the markup, to recognise its opening and its end by. */
    QByteArray myRecent;
    bool myAtStart = true;
    int myLength = 0;
    char myQuote = 0;
    bool myAfterCarriageReturn = false;
    bool myReadError = false;
};
