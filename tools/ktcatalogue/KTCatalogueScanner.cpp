#include "KTCatalogueScanner.h"

#include <algorithm>
#include <array>

namespace {

const char BYTE_ORDER_MARK[] = "\xef\xbb\xbf";

bool isBlank(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

// What a byte is, one bit for each kind of place where it is plain: nothing but one more column.
constexpr quint8 PLAIN_IN_TEXT = 1;
constexpr quint8 PLAIN_IN_VALUE = 2;
constexpr quint8 PLAIN_IN_NAME = 4;
constexpr quint8 PLAIN_IN_SECTION = 8;

constexpr bool isOneOf(int byte, const char *bytes)
{
    for (; *bytes; ++bytes) {
        if (*bytes == byte)
            return true;
    }
    return false;
}

constexpr std::array<quint8, 256> createPlaces()
{
    std::array<quint8, 256> places {};
    for (int byte = 1; byte < 256; ++byte) {
        // Lines are counted elsewhere, and the further bytes of a character in UTF-8 take no column.
        if (byte == '\n' || byte == '\r' || (byte & 0xc0) == 0x80)
            continue;
        places[static_cast<std::size_t>(byte)] = static_cast<quint8>(
            (byte == '<' ? 0 : PLAIN_IN_TEXT) | (isOneOf(byte, "\"'") ? 0 : PLAIN_IN_VALUE)
            | (isOneOf(byte, " \t=>/\"'") ? 0 : PLAIN_IN_NAME)
            | (isOneOf(byte, "-]?>") ? 0 : PLAIN_IN_SECTION));
    }
    return places;
}

constexpr std::array<quint8, 256> PLACES = createPlaces();

} // namespace

KTCatalogueScanner::KTCatalogueScanner(QIODevice *source)
    : mySource(source)
{
    // Unbuffered, so that the scanner is never further ahead than the reader's own buffer.
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

KTFilePosition KTCatalogueScanner::takeTag(QVector<KTFilePosition> *attributes)
{
    attributes->resize(0);
    if (myNextMark == myMarks.size())
        return KTFilePosition();
    const KTFilePosition tag = myMarks.at(myNextMark++).position;
    while (myNextMark < myMarks.size() && !myMarks.at(myNextMark).isTag)
        attributes->append(myMarks.at(myNextMark++).position);
    return tag;
}

qint64 KTCatalogueScanner::readData(char *data, qint64 maximum)
{
    if (!myRefusal.isEmpty())
        return -1;
    myMarks.remove(0, myNextMark);
    myNextMark = 0;
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
    qint64 i = 0;
    while (i < length && myRefusal.isEmpty()) {
        i += skipPlain(data + i, length - i);
        if (i < length)
            scan(data[i++]);
    }
    return i;
}

qint64 KTCatalogueScanner::writeData(const char *, qint64)
{
    return -1;
}

/** Takes the bytes that are plain where they stand, which most are, and returns how many. */
qint64 KTCatalogueScanner::skipPlain(const char *data, qint64 length)
{
    quint8 place = 0;
    bool isLimited = true;
    switch (myState) {
    case State::Text:
        place = PLAIN_IN_TEXT;
        break;
    case State::Value:
        place = PLAIN_IN_VALUE;
        break;
    case State::TagName:
    case State::AttributeName:
        place = PLAIN_IN_NAME;
        break;
    case State::EndTag:
        place = PLAIN_IN_NAME;
        isLimited = false;
        break;
    case State::CData:
        place = PLAIN_IN_SECTION;
        break;
    case State::Comment:
    case State::Instruction:
        place = PLAIN_IN_SECTION;
        isLimited = false;
        break;
    default:
        return 0;
    }
    const qint64 end = isLimited ? std::min<qint64>(length, MAXIMUM_VALUE_LENGTH - myLength) : length;
    qint64 count = 0;
    while (count < end && (PLACES[static_cast<unsigned char>(data[count])] & place))
        ++count;
    if (count > 0) {
        myPosition.column += static_cast<int>(count);
        myAfterCarriageReturn = false;
        if (place == PLAIN_IN_SECTION)
            myRecent.resize(0);
        if (isLimited)
            myLength += static_cast<int>(count);
    }
    return count;
}

void KTCatalogueScanner::scan(char byte)
{
    // No text in UTF-8 has one, while any markup in UTF-16 or UTF-32 does.
    if (byte == '\0') {
        myTokenPosition = myPosition;
        refuse(KTCatalogueErrorKind::NotWellFormed,
               QStringLiteral("a NUL character; the file is not UTF-8 text"));
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
    if (myState != State::MarkupStart)
        myRecent.append(byte);
    switch (myState) {
    case State::MarkupStart:
        if (byte == '!') {
            myState = State::Declaration;
            myRecent = "!";
        } else if (byte == '?') {
            myState = State::Instruction;
        } else if (byte == '/') {
            myState = State::EndTag;
        } else {
            myMarks.append({myTokenPosition, true});
            myAttributes = 0;
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
            refuse(KTCatalogueErrorKind::LimitExceeded,
                   QStringLiteral("limit exceeded: a catalogue has no document type declaration"));
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
        enter(State::Text);
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
        myMarks.append({myPosition, false});
        if (++myAttributes > MAXIMUM_ATTRIBUTES)
            refuse(KTCatalogueErrorKind::LimitExceeded,
                   QStringLiteral("limit exceeded: more than %1 attributes in one element")
                       .arg(MAXIMUM_ATTRIBUTES));
    }
    countTowardsLimit();
}

void KTCatalogueScanner::enter(State state)
{
    myState = state;
    myTokenPosition = myPosition;
    myLength = 0;
    myRecent.resize(0);
}

void KTCatalogueScanner::countTowardsLimit()
{
    if (++myLength > MAXIMUM_VALUE_LENGTH)
        refuse(
            KTCatalogueErrorKind::LimitExceeded,
            QStringLiteral("limit exceeded: a value of more than %1 KiB").arg(MAXIMUM_VALUE_LENGTH / 1024));
}

void KTCatalogueScanner::refuse(KTCatalogueErrorKind kind, const QString &reason)
{
    if (myRefusal.isEmpty()) {
        myRefusal = reason;
        myRefusalKind = kind;
    }
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
