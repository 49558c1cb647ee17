#include "KTCatalogueScanner.h"

namespace {

const char BYTE_ORDER_MARK[] = "\xef\xbb\xbf";

bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

} // namespace

KTCatalogueScanner::KTCatalogueScanner(QIODevice *source)
    : mySource(source)
{
    // Unbuffered, so that the scanner is never further ahead than the reader's own buffer.
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

KTTagPositions KTCatalogueScanner::takeTag()
{
    if (myTags.empty())
        return KTTagPositions();
    KTTagPositions tag = std::move(myTags.front());
    myTags.pop_front();
    return tag;
}

qint64 KTCatalogueScanner::readData(char *data, qint64 maximum)
{
    if (!myRefusal.isEmpty())
        return -1;
    const qint64 length = mySource->read(data, maximum);
    if (length < 0) {
        // A device at its end may say so with an error code as well; then there is nothing wrong with it.
        myReadError = !mySource->atEnd();
        return -1;
    }
    // The byte order mark takes no column.
    if (myAtStart && QByteArray::fromRawData(data, int(length)).startsWith(BYTE_ORDER_MARK))
        myPosition.column = 0;
    myAtStart = false;
    for (qint64 i = 0; i < length; ++i) {
        if (!myRefusal.isEmpty())
            return i;
        scan(data[i]);
    }
    return length;
}

qint64 KTCatalogueScanner::writeData(const char *, qint64)
{
    return -1;
}

void KTCatalogueScanner::scan(char byte)
{
    // No text in UTF-8 has one, while any markup in UTF-16 or UTF-32 does.
    if (byte == '\0') {
        myTokenPosition = myPosition;
        refuse(QStringLiteral("a NUL character; the file is not UTF-8 text"));
    }
    switch (myState) {
    case State::Text:
        scanText(byte);
        break;
    case State::MarkupStart:
    case State::Declaration:
    case State::Comment:
    case State::CData:
    case State::Instruction:
        scanDeclaration(byte);
        break;
    case State::EndTag:
        if (byte == '>')
            enter(State::Text);
        break;
    case State::TagName:
    case State::InTag:
    case State::AttributeName:
    case State::BeforeValue:
    case State::Value:
        scanTag(byte);
        break;
    }
    advance(byte);
}

void KTCatalogueScanner::scanText(char byte)
{
    if (byte == '<')
        enter(State::MarkupStart);
    else
        countTowardsLimit();
}

/** From "<" to where it is clear which kind of markup begins, and then to the end of all but start tags. */
void KTCatalogueScanner::scanDeclaration(char byte)
{
    myRecent.append(byte);
    switch (myState) {
    case State::MarkupStart:
        if (byte == '!') {
            myState = State::Declaration;
        } else if (byte == '?') {
            myState = State::Instruction;
            myRecent.clear();
        } else if (byte == '/') {
            myState = State::EndTag;
        } else {
            myTag = {myTokenPosition, {}};
            myState = State::TagName;
            myLength = 0;
        }
        break;
    case State::Declaration:
        if (myRecent == "!--") {
            myState = State::Comment;
            myRecent.clear();
        } else if (myRecent == "![CDATA[") {
            myState = State::CData;
            myRecent.clear();
            myLength = 0;
        } else if (!QByteArray("!--").startsWith(myRecent) && !QByteArray("![CDATA[").startsWith(myRecent)) {
            refuse(QStringLiteral("limit exceeded: a catalogue has no document type declaration"));
        }
        break;
    case State::Comment:
    case State::CData:
    case State::Instruction: {
        const QByteArray end = myState == State::Comment ? "-->" : myState == State::CData ? "]]>" : "?>";
        if (myState == State::CData)
            countTowardsLimit();
        if (myRecent.endsWith(end))
            enter(State::Text);
        else
            myRecent = myRecent.right(end.size() - 1);
        break;
    }
    default:
        break;
    }
}

void KTCatalogueScanner::scanTag(char byte)
{
    if (myState == State::Value) {
        if (byte == myQuote)
            enter(State::InTag);
        else
            countTowardsLimit();
        return;
    }
    if (byte == '>') {
        finishTag();
        return;
    }
    if (myState == State::BeforeValue && (byte == '"' || byte == '\'')) {
        myQuote = byte;
        enter(State::Value);
        return;
    }
    if (byte == '=') {
        myState = State::BeforeValue;
        return;
    }
    if (isBlank(byte) || byte == '/') {
        if (myState == State::TagName)
            myState = State::InTag;
        return;
    }
    if (myState == State::InTag) {
        enter(State::AttributeName);
        myTag.attributes.append(myPosition);
        if (myTag.attributes.size() > MAXIMUM_ATTRIBUTES)
            refuse(QStringLiteral("limit exceeded: more than %1 attributes in one element")
                       .arg(MAXIMUM_ATTRIBUTES));
    }
    countTowardsLimit();
}

void KTCatalogueScanner::enter(State state)
{
    myState = state;
    myTokenPosition = myPosition;
    myLength = 0;
    myRecent.clear();
}

void KTCatalogueScanner::countTowardsLimit()
{
    if (++myLength > MAXIMUM_VALUE_LENGTH)
        refuse(
            QStringLiteral("limit exceeded: a value of more than %1 KiB").arg(MAXIMUM_VALUE_LENGTH / 1024));
}

void KTCatalogueScanner::finishTag()
{
    myTags.push_back(myTag);
    enter(State::Text);
}

void KTCatalogueScanner::refuse(const QString &reason)
{
    if (myRefusal.isEmpty())
        myRefusal = reason;
}

void KTCatalogueScanner::advance(char byte)
{
    const bool newLine = byte == '\r' || (byte == '\n' && !myAfterCarriageReturn);
    const bool continuation = (static_cast<unsigned char>(byte) & 0xc0) == 0x80;
    if (newLine) {
        ++myPosition.line;
        myPosition.column = 1;
    } else if (byte != '\n' && !continuation) {
        ++myPosition.column;
    }
    myAfterCarriageReturn = byte == '\r';
}
