#pragma once

#include <QByteArray>
#include <QTemporaryFile>

class QIODevice;
class QString;

/**
 * Holds the program's output back until it is certain that there is an answer, so that a catalogue that turns
 * out to be broken gives no half-written one. Long output waits in a temporary file, so memory stays flat.
 */
class KTSpool
{
public:
    /** Adds the text, in UTF-8. */
    void write(const QString &text);
    /** Adds the bytes as they are. */
    void write(const QByteArray &bytes);
    /** Hands everything on to the device; false when anything could not be written or kept. */
    bool deliver(QIODevice *device);

private:
    void spill();

    QByteArray myMemory;
    QTemporaryFile myFile;
    bool myIsComplete = true;
};
