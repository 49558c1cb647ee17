#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QVector>

/** A place in a file; lines and columns count from 1, columns in characters. */
struct KTFilePosition
{
    int line = 1;
    int column = 1;
};

/** Why a file is no catalogue. */
enum class KTCatalogueErrorKind {
    None,
    /** It cannot be opened or read to its end. */
    Unreadable,
    NotWellFormed,
    LimitExceeded,
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
    KTCatalogueErrorKind refusalKind() const { return myRefusalKind; }
    /** Where the flow was stopped. */
    KTFilePosition refusalPosition() const { return myTokenPosition; }
    /** True when reading the source itself failed. */
    bool hasReadError() const { return myReadError; }

    /**
     * Hands out where the next start tag begins, in document order; where its attributes begin replaces the
     * content of the list.
     */
    KTFilePosition takeTag(QVector<KTFilePosition> *attributes);

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

    /** Where a start tag or an attribute begins. */
    struct Mark
    {
        KTFilePosition position;
        bool isTag;
    };

    qint64 skipPlain(const char *data, qint64 length);
    void scan(char byte);
    void scanText(char byte);
    void scanDeclaration(char byte);
    void scanTag(char byte);
    void enter(State state);
    void countTowardsLimit();
    void refuse(KTCatalogueErrorKind kind, const QString &reason);
    void advance(char byte);

    QIODevice *mySource;
    State myState = State::Text;
    KTFilePosition myPosition;
    KTFilePosition myTokenPosition;
    /** Of the start tags that were not handed out yet, from myNextMark on. */
    QVector<Mark> myMarks;
    int myNextMark = 0;
    int myAttributes = 0;
    QString myRefusal;
    KTCatalogueErrorKind myRefusalKind = KTCatalogueErrorKind::None;
    /** The last bytes of the markup, to recognise its opening and its end by. */
    QByteArray myRecent;
    bool myAtStart = true;
    int myLength = 0;
    char myQuote = 0;
    bool myAfterCarriageReturn = false;
    bool myReadError = false;
};
