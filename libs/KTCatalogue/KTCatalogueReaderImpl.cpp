#include "KTCatalogueReaderImpl.h"

#include "KTCatalogueText.h"
#include "KTStartTag.h"
#include "KTXMLError.h"

#include <KTArithmetic.h>

#include <QIODevice>

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

namespace {

using Kind = KTCatalogueErrorKind;

constexpr std::string_view CATALOGUE_ELEMENT = "catalogue";
constexpr std::string_view ARTICLE_ELEMENT = "article";
constexpr int ROOT_DEPTH = 1;
constexpr int ARTICLE_DEPTH = 2;
constexpr int CHUNK_SIZE = 16 * 1024;
// The parser tells names and values in turn.
constexpr int ATTRIBUTE_STRIDE = 2;

QString limitText(const QString &what)
{
    return KTCatalogueText::tr("limit exceeded: ") + what;
}

QString valueLimit()
{
    return limitText(
        KTCatalogueText::tr("a value of more than %1 KiB").arg(KTCatalogueReader::MAX_VALUE_LENGTH / 1024));
}

/** True when the value that is read is not the one that is written. */
bool needsDecoding(const char *begin, const char *end)
{
    return std::any_of(begin, end,
                       [](char byte) { return byte == '&' || byte == '\t' || byte == '\n' || byte == '\r'; });
}

/** Turns places in a text, which count bytes of UTF-8, into such that count units of UTF-16. */
class Utf16Places
{
public:
    explicit Utf16Places(const QByteArray &text)
        : myBegin(text.constData())
        , myEnd(myBegin + text.size())
        , myNext(nextLong(myBegin))
    {
    }

    /** The slices come in the order of their places. */
    void convert(KTXMLFragment::Slice *slice)
    {
        const int begin = unitsTo(slice->begin);
        slice->length = unitsTo(slice->begin + slice->length) - begin;
        slice->begin = begin;
    }

private:
    static bool isAscii(char byte) { return (byte & 0x80) == 0; }

    /** The next byte of a character that has more than one; most texts have few. */
    const char *nextLong(const char *from) const
    {
        constexpr quint64 NOT_ASCII = 0x8080'8080'8080'8080;
        for (quint64 word = 0; myEnd - from >= qint64(sizeof word); from += sizeof word) {
            std::memcpy(&word, from, sizeof word);
            if (word & NOT_ASCII)
                break;
        }
        return std::find_if_not(from, myEnd, isAscii);
    }

    int unitsTo(int place)
    {
        while (myNext < myBegin + place) {
            // Further bytes have no unit of their own; a character of four bytes has two units.
            if ((*myNext & 0xc0) == 0x80)
                ++mySurplus;
            else if ((*myNext & 0xf8) == 0xf0)
                --mySurplus;
            myNext = nextLong(myNext + 1);
        }
        return place - mySurplus;
    }

    const char *myBegin;
    const char *myEnd;
    const char *myNext;
    /** How many bytes there are more than units up to there. */
    int mySurplus = 0;
};

/** Gives the fragment its text, the tags in UTF-8 that its slices are places in, and the values beside it. */
void setText(KTXMLFragment *fragment, const QByteArray &tags,
             const std::vector<std::pair<int, QByteArray>> &decodedValues)
{
    fragment->text = QString::fromUtf8(tags);
    if (fragment->text.size() != tags.size()) {
        Utf16Places places(tags);
        KTXMLFragment::Attribute *attribute = fragment->attributes.data();
        for (KTXMLFragment::Element &element : fragment->elements) {
            places.convert(&element.name);
            for (const auto *const end = attribute + element.attributeCount; attribute != end; ++attribute) {
                places.convert(&attribute->name);
                places.convert(&attribute->value);
            }
        }
    }
    for (const auto &[index, value] : decodedValues) {
        const QString decoded = QString::fromUtf8(value);
        fragment->attributes[index].value
            = {KTArithmetic::sizeOf(fragment->text), KTArithmetic::sizeOf(decoded)};
        fragment->text += decoded;
    }
}

} // namespace

KTCatalogueReaderImpl::KTCatalogueReaderImpl(QIODevice *device)
    : myDevice(device)
    // Without namespaces, so that names are told as they stand.
    , myParser(XML_ParserCreate("UTF-8"))
{
    setHandlers();
}

KTCatalogueReaderImpl::~KTCatalogueReaderImpl()
{
    XML_ParserFree(myParser);
}

void KTCatalogueReaderImpl::setHandlers()
{
    XML_SetUserData(myParser, this);
    XML_SetElementHandler(
        myParser,
        [](void *context, const XML_Char *, const XML_Char **attributes) {
            static_cast<KTCatalogueReaderImpl *>(context)->startElement(attributes);
        },
        [](void *context, const XML_Char *) { static_cast<KTCatalogueReaderImpl *>(context)->endElement(); });
    XML_SetCharacterDataHandler(myParser, [](void *context, const XML_Char *, int length) {
        static_cast<KTCatalogueReaderImpl *>(context)->addText(length);
    });
    XML_SetCommentHandler(myParser, [](void *context, const XML_Char *) {
        static_cast<KTCatalogueReaderImpl *>(context)->leaveText();
    });
    XML_SetProcessingInstructionHandler(myParser, [](void *context, const XML_Char *, const XML_Char *) {
        static_cast<KTCatalogueReaderImpl *>(context)->leaveText();
    });
    XML_SetXmlDeclHandler(myParser, [](void *context, const XML_Char *, const XML_Char *, int) {
        static_cast<KTCatalogueReaderImpl *>(context)->leaveText();
    });
    XML_SetStartDoctypeDeclHandler(
        myParser, [](void *context, const XML_Char *, const XML_Char *, const XML_Char *, int) {
            static_cast<KTCatalogueReaderImpl *>(context)->refuseDocumentType();
        });
}

void KTCatalogueReaderImpl::beginAs(const KTCatalogueReaderImpl &other, const KTFilePosition &position)
{
    myDecoder.beginAs(other.myDecoder);
    myIsDecided = true;
    // The parser needs the root element that the article is in.
    parse(QByteArray("<catalogue>"), false);
    myQueue.clear();
    myTracker = KTTextTracker(position, myDecoder.width());
    myTextBegin = position;
}

KTCatalogueReader::Item KTCatalogueReaderImpl::next(KTCatalogueArticle *article)
{
    while (myQueue.empty() && !hasFailed() && !myIsAtEnd)
        feed();
    if (myQueue.empty()) {
        myIsErrorDue = hasFailed();
        return hasFailed() ? Item::Error : Item::End;
    }
    const Item item = myQueue.front().item;
    std::swap(*article, *myQueue.front().article);
    myPool.push_back(std::move(myQueue.front().article));
    myQueue.pop_front();
    return item;
}

void KTCatalogueReaderImpl::feed()
{
    QByteArray chunk(CHUNK_SIZE, Qt::Uninitialized);
    const qint64 length = myDevice->read(chunk.data(), chunk.size());
    // A device at its end may say so with an error code as well; then there is nothing wrong with it.
    const bool isLast = length == 0 || (length < 0 && myDevice->atEnd());
    if (length < 0 && !isLast) {
        advanceTo(KTArithmetic::sizeOf(myWindow));
        fail(Kind::Unreadable,
             KTCatalogueText::tr("the file cannot be read: %1").arg(myDevice->errorString()),
             myTracker.position());
        return;
    }
    chunk.truncate(static_cast<int>(std::max<qint64>(length, 0)));
    if (!myIsDecided) {
        myHead += chunk;
        if (!isLast && !KTInputDecoder::isEnough(myHead))
            return;
        decide();
        chunk = std::exchange(myHead, QByteArray());
    }
    if (!hasFailed())
        parse(myDecoder.decode(chunk, isLast), isLast);
}

/** Finds out the file's encoding from its first bytes. */
void KTCatalogueReaderImpl::decide()
{
    myIsDecided = true;
    KTFilePosition begin;
    const int skipped = myDecoder.begin(myHead);
    myHead.remove(0, skipped);
    begin.offset = skipped;
    myTracker = KTTextTracker(begin, myDecoder.width());
    myTextBegin = begin;
    if (!myDecoder.error().isEmpty())
        fail(Kind::NotWellFormed, myDecoder.error(), begin);
}

void KTCatalogueReaderImpl::parse(const QByteArray &text, bool isLast)
{
    const bool hasNul = !append(text);
    const bool isBroken = hasNul || !myDecoder.error().isEmpty();
    const int unseen = KTArithmetic::sizeOf(myWindow) - myUnseen;
    // The parser begins anew with markup that is not complete: what it gets then is as much again, so that
    // long markup costs no time out of proportion.
    if (!isLast && !isBroken && unseen < myUnseen && myWindow.size() <= KTCatalogueReader::MAX_MARKUP_LENGTH)
        return;
    const int begin = std::exchange(myUnseen, myWindow.size());
    // Where the text breaks off, the parser is to tell what is wrong before.
    const bool isParsed = XML_Parse(myParser, bytes(begin), unseen, isLast || isBroken) == XML_STATUS_OK;
    if (isBroken && (isParsed || KTXMLError::isAboutEnd(XML_GetErrorCode(myParser)))) {
        fail(Kind::NotWellFormed,
             hasNul ? KTCatalogueText::tr("a NUL character; the file is no text") : myDecoder.error(),
             positionOf(KTArithmetic::sizeOf(myWindow)));
    } else if (!isParsed) {
        failAsParser(isLast || isBroken);
    }
    if (hasFailed())
        return;
    // Outside of the root element the parser is done with text that its errors are about.
    if (myDepth > 0)
        advanceTo(std::max(eventBegin(), place(myTrackedOffset)));
    const int done = place(myTrackedOffset);
    myWindow.remove(0, done);
    myWindowOffset = myTrackedOffset;
    myUnseen -= done;
    checkPending();
    myIsAtEnd = isLast;
}

/**
 * Puts the text into the window, up to a NUL, and tells whether there is none. The parser must not see one:
 * at the begin of a file it would take it for a part of UTF-16.
 */
bool KTCatalogueReaderImpl::append(const QByteArray &text)
{
    const auto *const begin = text.constData();
    const void *const nul = std::memchr(begin, '\0', static_cast<std::size_t>(text.size()));
    myWindow.append(begin, nul ? static_cast<int>(static_cast<const char *>(nul) - begin) : text.size());
    return !nul;
}

/** What the parser waits for the end of must not grow beyond the limits either. */
void KTCatalogueReaderImpl::checkPending()
{
    if (myWindow.size() > KTCatalogueReader::MAX_MARKUP_LENGTH) {
        fail(Kind::LimitExceeded,
             limitText(KTCatalogueText::tr("a tag, comment or instruction of more than %1 MiB")
                           .arg(KTCatalogueReader::MAX_MARKUP_LENGTH / (1024 * 1024))),
             myTracker.position());
        return;
    }
    if (!myWindow.startsWith('<') || myWindow.startsWith("<!") || myWindow.startsWith("<?"))
        return;
    checkLimits(0, KTArithmetic::sizeOf(myWindow));
}

/** Refuses a tag, or the beginning of one, with too many attributes or too long values. */
void KTCatalogueReaderImpl::checkLimits(int begin, int end)
{
    int count = 0;
    KTStartTag::forEachAttribute(bytes(begin), bytes(end), [&](const KTStartTag::Attribute &attribute) {
        return isWithinLimits(attribute, ++count);
    });
}

void KTCatalogueReaderImpl::refuseDocumentType()
{
    const auto begin = static_cast<int>(myWindow.indexOf("<!DOCTYPE", place(myTrackedOffset)));
    fail(Kind::LimitExceeded, limitText(KTCatalogueText::tr("a catalogue has no document type declaration")),
         positionOf(std::max(begin, 0)));
}

void KTCatalogueReaderImpl::startElement(const char **attributes)
{
    if (hasFailed())
        return;
    const int tagBegin = eventBegin();
    const int tagEnd = eventEnd();
    advanceTo(tagBegin);
    const KTFilePosition position = myTracker.position();
    const std::string_view elementName = KTStartTag::name(bytes(tagBegin + 1), bytes(tagEnd));
    const auto nameLength = static_cast<int>(elementName.size());
    myOpenNames.append(elementName.data(), nameLength);
    myOpenElements.push_back({KTArithmetic::sizeOf(myOpenNames), position.line});
    ++myDepth;
    if (myDepth == ROOT_DEPTH && elementName != CATALOGUE_ELEMENT) {
        fail(Kind::NotWellFormed,
             KTCatalogueText::tr("the root element is '%1', not '%2'")
                 .arg(openElement(), QLatin1String(CATALOGUE_ELEMENT.data())),
             position);
    } else if (myDepth > KTCatalogueReader::MAX_DEPTH) {
        fail(Kind::LimitExceeded,
             limitText(
                 KTCatalogueText::tr("more than %1 levels of elements").arg(KTCatalogueReader::MAX_DEPTH)),
             position);
    } else if (nameLength > KTCatalogueReader::MAX_VALUE_LENGTH) {
        fail(Kind::LimitExceeded, valueLimit(), position);
    } else if (tagEnd - tagBegin > KTCatalogueReader::MAX_VALUE_LENGTH
               || XML_GetSpecifiedAttributeCount(myParser)
                   > ATTRIBUTE_STRIDE * KTCatalogueReader::MAX_ATTRIBUTES) {
        checkLimits(tagBegin, tagEnd);
    }
    if (hasFailed())
        return;
    if (myDepth <= ARTICLE_DEPTH)
        beginItem();
    if (myArticle)
        appendElement(tagBegin, tagEnd, nameLength, attributes);
    leaveText();
    if (myDepth > ARTICLE_DEPTH)
        return;
    if (myDepth == ROOT_DEPTH || elementName != ARTICLE_ELEMENT) {
        myArticle->myTagPlaces.last().elementEnd = myTracker.position();
        finishItem(myDepth == ROOT_DEPTH ? Item::Root : Item::Other);
    } else if (!isWanted()) {
        myPool.push_back(std::move(myArticle));
    }
}

/** Takes an article out of the pool to be filled. */
void KTCatalogueReaderImpl::beginItem()
{
    if (myPool.empty()) {
        myArticle = std::make_unique<KTCatalogueArticle>();
    } else {
        myArticle = std::move(myPool.back());
        myPool.pop_back();
    }
    myArticle->myFragment.clear();
    myArticle->myTags.resize(0);
    myArticle->myTagPlaces.resize(0);
    myArticle->myAttributePlaces.resize(0);
    myArticle->myWidth = myDecoder.width();
    myDecodedValues.clear();
    myElement = -1;
}

/** Appends the element with its attributes to the item. */
void KTCatalogueReaderImpl::appendElement(int tagBegin, int tagEnd, int nameLength, const char **attributes)
{
    KTXMLFragment &fragment = myArticle->myFragment;
    const int offset = KTArithmetic::sizeOf(myArticle->myTags);
    const char *const tag = bytes(tagBegin);
    const auto inTags = [=](const char *byte) { return offset + static_cast<int>(byte - tag); };
    const int firstAttribute = KTArithmetic::sizeOf(fragment.attributes);
    myArticle->myTags.append(tag, tagEnd - tagBegin);
    myArticle->myTagPlaces.append(
        KTCatalogueArticle::Tag {offset, offset + tagEnd - tagBegin, myTracker.position(), KTFilePosition()});
    KTStartTag::forEachAttribute(tag, bytes(tagEnd), [&](const KTStartTag::Attribute &attribute) {
        const Place place {inTags(attribute.nameBegin), inTags(attribute.nameEnd),
                           inTags(attribute.valueBegin), inTags(attribute.valueEnd)};
        if (needsDecoding(attribute.valueBegin, attribute.valueEnd))
            myDecodedValues.emplace_back(myArticle->myAttributePlaces.size(), attributes[1]);
        myArticle->myAttributePlaces.append(place);
        fragment.attributes.append(KTXMLFragment::Attribute {
            {place.nameBegin,  place.nameEnd - place.nameBegin  },
            {place.valueBegin, place.valueEnd - place.valueBegin}
        });
        attributes += ATTRIBUTE_STRIDE;
        return true;
    });
    const KTXMLFragment::Slice name {offset + 1, nameLength};
    fragment.elements.append(KTXMLFragment::Element {
        name, myElement, firstAttribute, KTArithmetic::sizeOf(fragment.attributes) - firstAttribute, 0});
    myElement = KTArithmetic::sizeOf(fragment.elements) - 1;
}

void KTCatalogueReaderImpl::endElement()
{
    if (hasFailed())
        return;
    leaveText();
    --myDepth;
    myOpenElements.pop_back();
    myOpenNames.truncate(myOpenElements.empty() ? 0 : myOpenElements.back().nameEnd);
    if (!myArticle)
        return;
    KTXMLFragment::Element &element = myArticle->myFragment.elements[myElement];
    element.end = KTArithmetic::sizeOf(myArticle->myFragment.elements);
    myArticle->myTagPlaces[myElement].elementEnd = myTracker.position();
    myElement = element.parent;
    if (myElement < 0)
        finishItem(Item::Article);
}

/** Whether the article is to be collected whose start tag was read. */
bool KTCatalogueReaderImpl::isWanted() const
{
    if (!myIsWanted)
        return true;
    KTXMLFragment tag = myArticle->myFragment;
    tag.elements.first().end = 1;
    setText(&tag, myArticle->myTags, myDecodedValues);
    return myIsWanted(tag.element());
}

void KTCatalogueReaderImpl::finishItem(Item item)
{
    KTXMLFragment &fragment = myArticle->myFragment;
    fragment.elements.first().end = KTArithmetic::sizeOf(fragment.elements);
    setText(&fragment, myArticle->myTags, myDecodedValues);
    myQueue.push_back({item, std::move(myArticle)});
}

void KTCatalogueReaderImpl::addText(int length)
{
    myTextLength += length;
    if (myTextLength > KTCatalogueReader::MAX_VALUE_LENGTH)
        fail(Kind::LimitExceeded, valueLimit(), myTextBegin);
}

/** Markup ends a text, and the next one begins behind it. */
void KTCatalogueReaderImpl::leaveText()
{
    advanceTo(eventEnd());
    myTextLength = 0;
    myTextBegin = myTracker.position();
}

/** Takes over the parser's error; there may be more to read that tells about it. */
void KTCatalogueReaderImpl::failAsParser(bool isAtEnd)
{
    constexpr int MAX_CHARACTER_LENGTH = 4;
    const XML_Error code = XML_GetErrorCode(myParser);
    const int place = std::clamp(eventBegin(), this->place(myTrackedOffset), KTArithmetic::sizeOf(myWindow));
    while (!isAtEnd && myWindow.size() - place < MAX_CHARACTER_LENGTH) {
        const QByteArray chunk = myDevice->read(CHUNK_SIZE);
        isAtEnd = chunk.isEmpty() || !append(myDecoder.decode(chunk, false));
    }
    const KTXMLError::Text text {bytes(0), bytes(this->place(myTrackedOffset)), bytes(place),
                                 bytes(KTArithmetic::sizeOf(myWindow)), myWindowOffset == 0};
    const KTXMLError::Answer answer = KTXMLError::explain(code, text, openElement(), openLine());
    fail(Kind::NotWellFormed, answer.words, positionOf(static_cast<int>(answer.place - bytes(0))));
}

/** Moves the tracker on to the place in the window. */
void KTCatalogueReaderImpl::advanceTo(int place)
{
    const int from = this->place(myTrackedOffset);
    myTracker.advance(bytes(from), bytes(place));
    myTrackedOffset += place - from;
}

/** The position of a place that the tracker has not passed yet. */
KTFilePosition KTCatalogueReaderImpl::positionOf(int place) const
{
    KTTextTracker tracker = myTracker;
    const int from = this->place(myTrackedOffset);
    tracker.advance(bytes(from), bytes(std::max(from, place)));
    return tracker.position();
}

QString KTCatalogueReaderImpl::openElement() const
{
    const std::size_t count = myOpenElements.size();
    const int begin = count < 2 ? 0 : myOpenElements.at(count - 2).nameEnd;
    return QString::fromUtf8(myOpenNames.mid(begin));
}

void KTCatalogueReaderImpl::fail(KTCatalogueErrorKind kind, const QString &text,
                                 const KTFilePosition &position)
{
    if (hasFailed())
        return;
    myError = {kind, text, position};
    XML_StopParser(myParser, XML_FALSE);
}

/** The attribute is the one of this number in its tag; one beyond a limit is refused. */
bool KTCatalogueReaderImpl::isWithinLimits(const KTStartTag::Attribute &attribute, int number)
{
    const auto fails = [this](const QString &text, const char *place) {
        fail(Kind::LimitExceeded, text, positionOf(static_cast<int>(place - bytes(0))));
        return false;
    };
    if (number > KTCatalogueReader::MAX_ATTRIBUTES) {
        return fails(limitText(KTCatalogueText::tr("more than %1 attributes in one element")
                                   .arg(KTCatalogueReader::MAX_ATTRIBUTES)),
                     attribute.nameBegin);
    }
    if (attribute.nameEnd - attribute.nameBegin > KTCatalogueReader::MAX_VALUE_LENGTH)
        return fails(valueLimit(), attribute.nameBegin);
    if (attribute.valueEnd - attribute.valueBegin > KTCatalogueReader::MAX_VALUE_LENGTH)
        return fails(valueLimit(), attribute.valueBegin - 1);
    return true;
}
