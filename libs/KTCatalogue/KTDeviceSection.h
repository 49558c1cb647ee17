#pragma once

#include <QIODevice>

#include <algorithm>

/** A part of an open device, from where that stands, so that nobody reads beyond what is wanted. */
class KTDeviceSection : public QIODevice
{
public:
    KTDeviceSection(QIODevice *device, qint64 length)
        : myDevice(device)
        , myLeft(length)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char *data, qint64 size) override
    {
        const qint64 length = myDevice->read(data, std::min(size, myLeft));
        myLeft -= std::max<qint64>(length, 0);
        return length;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QIODevice *myDevice;
    qint64 myLeft;
};
