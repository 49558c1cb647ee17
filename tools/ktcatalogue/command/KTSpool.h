#pragma once

#include <KTQtTypes.h>

#include <QByteArray>
#include <QIODevice>
#include <QTemporaryFile>

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

/** Leads to a spool what only writes to devices, one byte behind the other. */
class KTSpoolDevice : public QIODevice
{
public:
    /** Open for writing; the spool must outlive it. */
    explicit KTSpoolDevice(KTSpool *spool)
        : mySpool(spool)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    }
    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 length) override
    {
        mySpool->write(QByteArray(data, static_cast<KTSize>(length)));
        return length;
    }

private:
    KTSpool *mySpool;
};
