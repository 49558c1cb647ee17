#pragma once

#include "KTFilePosition.h"

#include <QByteArray>
#include <QString>

#include <iconv.h>

/**
 * Turns a file into UTF-8, whatever its encoding is. Not part of the library's interface.
 *
 * The encoding is told by a byte order mark, by the pattern that UTF-16 makes of "<?", or by the XML
 * declaration; else it is UTF-8.
 */
class KTInputDecoder
{
public:
    KTInputDecoder() = default;
    ~KTInputDecoder();

    /** True when the file's first bytes are enough to tell its encoding. */
    static bool isEnough(const QByteArray &head);
    /** Takes the first bytes and returns how many of them belong to the mark; see error(). */
    int begin(const QByteArray &head);

    /** Begins in the middle of a file that another decoder has begun with. */
    void beginAs(const KTInputDecoder &other);

    KTCharacterWidth width() const { return myWidth; }
    /** The next bytes in UTF-8, up to the first one that is no character; see error(). */
    QByteArray decode(const QByteArray &bytes, bool isLast);

    /** What cannot be decoded, in words; empty for nothing. */
    QString error() const { return myError; }

private:
    Q_DISABLE_COPY(KTInputDecoder)

    void open(const char *encoding, const QString &name, KTCharacterWidth width);

    QString myEncoding;
    /** What iconv calls it; null for UTF-8, which is handed through. */
    const char *myConverterName = nullptr;
    KTCharacterWidth myWidth = KTCharacterWidth::Utf8;
    /** Null like its name. */
    iconv_t myConverter = nullptr;
    /** The first bytes of a character that is not complete yet. */
    QByteArray myRest;
    QString myError;
};
