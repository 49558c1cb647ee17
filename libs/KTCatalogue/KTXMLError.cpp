#include "KTXMLError.h"

#include "KTCatalogueText.h"
#include "KTCheckText.h"
#include "KTStartTag.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <string_view>

namespace {

using KTCheckText::quoted;
using KTXMLError::Answer;
using KTXMLError::Text;

QString quoted(const char *begin, const char *end)
{
    return quoted(QString::fromUtf8(begin, static_cast<int>(end - begin)));
}

/** How many bytes the character has that begins here; 0 for bytes that are not UTF-8. */
int characterLength(const char *begin, const char *end)
{
    const auto first = static_cast<uchar>(*begin);
    const int length = first < 0x80 ? 1 : first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    if (end - begin < length)
        return 0;
    // The decoder writes the replacement character for everything that it does not take.
    const QString text = QString::fromUtf8(begin, length);
    const bool isReplaced = text.contains(QChar(QChar::ReplacementCharacter));
    return isReplaced && std::memcmp(begin, "\xef\xbf\xbd", 3) != 0 ? 0 : length;
}

/** Whether the character is none that XML allows, as a control character is. */
bool isForbidden(const char *character, int length)
{
    const auto first = static_cast<uchar>(*character);
    if (length == 1)
        return first < 0x20 && !KTStartTag::isBlank(*character);
    return length == 3 && std::memcmp(character, "\xef\xbf", 2) == 0
        && (static_cast<uchar>(character[2]) & 0xfe) == 0xbe;
}

bool startsWith(const char *begin, const char *end, std::string_view text)
{
    return std::string_view(begin, static_cast<std::size_t>(end - begin)).substr(0, text.size()) == text;
}

QString unclosed(const QString &openElement, int openLine)
{
    return KTCatalogueText::tr("the element %1 of line %2 is not closed")
        .arg(quoted(openElement))
        .arg(openLine);
}

/** The markup that is open at the place begins here; null in a text. */
const char *beginOfMarkup(const Text &text)
{
    for (const char *at = text.place; at != text.begin;) {
        --at;
        if (*at == '<')
            return at;
        if (*at == '>')
            return nullptr;
    }
    return nullptr;
}

/** The "&" of the reference that the place is in or behind; null where there is none. */
const char *beginOfReference(const Text &text)
{
    const char *at = text.place;
    while (at != text.begin
           && (static_cast<uchar>(at[-1]) >= 0x80 || std::isalnum(static_cast<uchar>(at[-1]))
               || std::strchr("#._:-", at[-1])))
        --at;
    return at != text.begin && at[-1] == '&' ? at - 1 : nullptr;
}

bool isXmlsOwn(std::string_view name)
{
    constexpr std::string_view NAMES[] = {"amp", "lt", "gt", "quot", "apos"};
    return std::find(std::begin(NAMES), std::end(NAMES), name) != std::end(NAMES);
}

/** Whether the number of a reference, "#228" or "#xe4", is none of a character. */
bool isNoCharacter(std::string_view name)
{
    const bool isHexadecimal = name.substr(0, 2) == "#x";
    const QByteArray digits(name.data() + (isHexadecimal ? 2 : 1),
                            static_cast<int>(name.size()) - (isHexadecimal ? 2 : 1));
    bool ok = false;
    const uint number = digits.toUInt(&ok, isHexadecimal ? 16 : 10);
    return !ok || number > 0x10ffff || (number & 0x1ff800) == 0xd800 || (number & 0x1ffffe) == 0xfffe
        || (number < 0x20 && number != '\t' && number != '\n' && number != '\r');
}

/**
 * The first reference of the kind from the place on, "&" and name: inside of a tag the parser tells the tag
 * only.
 */
Answer reference(const Text &text, bool isNumber, const char *words)
{
    for (const char *at = text.place; at != text.end; ++at) {
        if (*at != '&')
            continue;
        const char *const end = std::find(at, text.end, ';');
        const std::string_view name(at + 1, static_cast<std::size_t>(end - at - 1));
        const bool isWrong = isNumber ? name.substr(0, 1) == "#" && isNoCharacter(name)
                                      : name.substr(0, 1) != "#" && !isXmlsOwn(name);
        if (isWrong)
            return {QString::fromLatin1(words).arg(quoted(at, std::min(end + 1, text.end))), at};
    }
    return {QString::fromLatin1(words).arg(QStringLiteral("'&'")), text.place};
}

/** What the file ends inside of. */
QString unclosedMarkup(const char *begin, const char *end)
{
    if (startsWith(begin, end, "<!--"))
        return KTCatalogueText::tr("a comment is not closed by '-->'");
    if (startsWith(begin, end, "<?"))
        return KTCatalogueText::tr("what begins with '<?' is not closed by '?>'");
    if (*begin == '&')
        return KTCatalogueText::tr("'&' must be written as '&amp;'");
    bool isInValue = false;
    KTStartTag::forEachAttribute(begin, end, [&](const KTStartTag::Attribute &attribute) {
        isInValue = attribute.valueBegin != end && attribute.valueEnd == end;
        return true;
    });
    return isInValue ? KTCatalogueText::tr("a value of this tag is not closed by a quote")
                     : KTCatalogueText::tr("the tag has no '>'");
}

/** What is wrong inside of a tag that begins at the markup. */
Answer wrongTag(const Text &text, const char *markup)
{
    if (text.place == markup + 1)
        return {KTCatalogueText::tr("a name is missing; in a text '<' must be written as '&lt;'"), markup};
    const char before = text.place[-1];
    if (before == '"' || before == '\'') {
        return {KTCatalogueText::tr("there must be a blank here, or a quote before is missing"), text.place};
    }
    const char *end = text.place;
    while (end != markup && (KTStartTag::isBlank(end[-1]) || end[-1] == '='))
        --end;
    const char *begin = end;
    while (begin != markup && !KTStartTag::isBlank(begin[-1]) && begin[-1] != '<')
        --begin;
    if (begin != markup + 1 && begin != end && markup[1] != '/')
        return {KTCatalogueText::tr("the attribute %1 has no value in quotes").arg(quoted(begin, end)),
                text.place};
    return {KTCatalogueText::tr("what stands here belongs into no tag"), text.place};
}

/** A character that cannot stand where it does. */
Answer invalidToken(const Text &text)
{
    const int length = text.place == text.end ? 1 : characterLength(text.place, text.end);
    if (length == 0) {
        return {KTCatalogueText::tr(
                    "the byte 0x%1 is not UTF-8; save the file as UTF-8, or name its encoding in the "
                    "first line")
                    .arg(static_cast<uchar>(*text.place), 2, 16, QLatin1Char('0')),
                text.place};
    }
    if (text.place != text.end && isForbidden(text.place, length)) {
        return {
            KTCatalogueText::tr("the character U+%1 is not allowed in XML")
                .arg(uint(QString::fromUtf8(text.place, length).at(0).unicode()), 4, 16, QLatin1Char('0')),
            text.place};
    }
    if (const char *const reference = beginOfReference(text))
        return {KTCatalogueText::tr("'&' must be written as '&amp;'"), reference};
    // Where markup may begin, it would be taken for that.
    if (text.place != text.end && *text.place == '<') {
        return {KTCatalogueText::tr(
                    "a '<' inside of a tag: a quote or '>' before it is missing, or it must be '&lt;'"),
                text.place};
    }
    const char *const markup = beginOfMarkup(text);
    if (markup && startsWith(markup, text.end, "<!--"))
        return {KTCatalogueText::tr("'--' inside of a comment"), text.place};
    if (markup)
        return wrongTag(text, markup);
    if (text.place - text.begin >= 2 && startsWith(text.place - 2, text.end, "]]>"))
        return {KTCatalogueText::tr("']]>' in a text must be written as ']]&gt;'"), text.place};
    return {KTCatalogueText::tr("what stands here is no XML"), text.place};
}

} // namespace

bool KTXMLError::isAboutEnd(XML_Error error)
{
    return error == XML_ERROR_NO_ELEMENTS || error == XML_ERROR_UNCLOSED_TOKEN
        || error == XML_ERROR_PARTIAL_CHAR || error == XML_ERROR_UNCLOSED_CDATA_SECTION;
}

KTXMLError::Answer KTXMLError::explain(XML_Error error, const Text &text, const QString &openElement,
                                       int openLine)
{
    const auto at = [&text](const QString &words) { return Answer {words, text.place}; };
    // Of a text outside of the root element the parser tells this or that, and not its begin.
    const char *const outside = std::find_if_not(text.markupEnd, text.end, &KTStartTag::isBlank);
    if (openElement.isEmpty() && outside != text.end && *outside != '<' && outside <= text.place)
        return {KTCatalogueText::tr("there is text outside of the root element"), outside};
    switch (error) {
    case XML_ERROR_NO_ELEMENTS:
        if (!openElement.isEmpty())
            return {unclosed(openElement, openLine), text.end};
        return {text.isWholeFile && text.begin == text.end ? KTCatalogueText::tr("the file is empty")
                                                           : KTCatalogueText::tr("the file has no element"),
                text.end};
    case XML_ERROR_SYNTAX:
        return at(KTCatalogueText::tr("what stands here does not belong before the root element"));
    case XML_ERROR_INVALID_TOKEN:
        return invalidToken(text);
    case XML_ERROR_UNCLOSED_TOKEN:
        return at(unclosedMarkup(text.place, text.end));
    case XML_ERROR_PARTIAL_CHAR:
        return at(KTCatalogueText::tr("the file ends inside of a character"));
    case XML_ERROR_TAG_MISMATCH:
        return {KTCatalogueText::tr("the end tag is that of %1, but %2")
                    .arg(quoted(text.place, KTStartTag::endOfName(text.place, text.end)),
                         unclosed(openElement, openLine)),
                text.place - 2};
    case XML_ERROR_DUPLICATE_ATTRIBUTE:
        return at(KTCatalogueText::tr("the attribute %1 is there twice")
                      .arg(quoted(text.place, KTStartTag::endOfName(text.place, text.end))));
    case XML_ERROR_JUNK_AFTER_DOC_ELEMENT:
        return at(KTCatalogueText::tr("there is something behind the end of the root element"));
    case XML_ERROR_UNDEFINED_ENTITY:
        return reference(
            text, false,
            "there is no %1: XML knows '&amp;', '&lt;', '&gt;', '&quot;', '&apos;' and numbers such "
            "as '&#228;'");
    case XML_ERROR_BAD_CHAR_REF:
        return reference(text, true, "%1 is no character of XML");
    case XML_ERROR_MISPLACED_XML_PI:
        return at(KTCatalogueText::tr("'<?xml' may only stand at the very begin of the file"));
    case XML_ERROR_UNCLOSED_CDATA_SECTION:
        return at(KTCatalogueText::tr("a section is not closed by ']]>'"));
    default:
        return at(QString::fromUtf8(XML_ErrorString(error)));
    }
}
