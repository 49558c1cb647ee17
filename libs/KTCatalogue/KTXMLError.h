#pragma once

#include <QString>

#include <expat.h>

/** Says in the words of a file's author what the XML parser found wrong, and where exactly. */
namespace KTXMLError {

/** The text around the error, in UTF-8. */
struct Text
{
    /** What is still known of it, which is all of the markup that the error is in. */
    const char *begin;
    /** Behind the last markup that is complete. */
    const char *markupEnd;
    /** Where the parser stands. */
    const char *place;
    const char *end;
    /** Whether the begin is that of the file. */
    bool isWholeFile;
};

struct Answer
{
    QString words;
    const char *place;
};

/** Whether there is nothing wrong but that the text ends. */
bool isAboutEnd(XML_Error error);
/** The innermost open element, if there is one, is the one with the name, whose tag stands in the line. */
Answer explain(XML_Error error, const Text &text, const QString &openElement, int openLine);

} // namespace KTXMLError
