#pragma once

#include <QString>
#include <QXmlStreamWriter>

class QIODevice;

/**
 * Writes HTML that is well-formed XML as well: whatever stands in a catalogue becomes text or the value of an
 * attribute, and can become nothing else.
 *
 * Names of elements and attributes are the program's own. Characters that a browser would obey instead of
 * showing are written as "\u202e" and the like, see KTTerminalText.
 */
class KTHtmlWriter
{
public:
    /** Writes to the open device, which it does not own. */
    explicit KTHtmlWriter(QIODevice *device);

    void writeDocumentType();

    /** Begins an element that has an end of its own. */
    void start(const char *name, const char *style = nullptr);
    /** Ends it; an empty one as "<td></td>", because "<td/>" would not be its end in HTML. */
    void end();
    /** An element without content, such as "br" or "path"; its attributes follow. */
    void empty(const char *name, const char *style = nullptr);
    /** To be called before the element has content. */
    void attribute(const char *name, const QString &value);
    void attribute(const char *name, int value);
    void attribute(const char *name, double value);
    void text(const QString &text);
    /** A whole element with a text. */
    void element(const char *name, const QString &text, const char *style = nullptr);
    /**
     * The same with a text from a catalogue, which decides by itself whether it runs from right to left. Long
     * ones are shown in part.
     */
    void foreign(const char *name, const QString &text, const char *style = nullptr);
    /** A line break, which nobody sees. */
    void line();
    /**
     * An element "style" or "script" with a content of our own, which is not escaped, but fenced in so that
     * both HTML and XML read it as it stands. Gives what a Content-Security-Policy has to know of it.
     */
    void code(const char *name, const QString &content);
    /** The source expression of such a content: "'sha256-...'". */
    static QString codeHash(const QString &content);

    /** True when the device did not take everything. */
    bool hasError() const { return myXml.hasError(); }

    /** How much of a text is shown where nobody needs all of it. */
    static constexpr int LONGEST_TEXT = 300;
    /** The begin of the text with the number of characters that it has, if it is longer than that. */
    static QString shortened(const QString &text, int length = LONGEST_TEXT);
    /** The text with everything made visible that is not to be obeyed, or that is no character at all. */
    static QString visible(const QString &text);
    /** With at most two decimals, and without those that say nothing. */
    static QString number(double value);

private:
    QXmlStreamWriter myXml;
};
