#include "KTSpool.h"

#include <QString>

namespace {
constexpr int MEMORY_LIMIT = 1024 * 1024;
}

void KTSpool::write(const QString &text)
{
    write(text.toUtf8());
}

void KTSpool::write(const QByteArray &bytes)
{
    myMemory += bytes;
    if (myMemory.size() > MEMORY_LIMIT)
        spill();
}

void KTSpool::spill()
{
    const bool isOpen = myFile.isOpen() || myFile.open();
    if (!isOpen || myFile.write(myMemory) != myMemory.size())
        myIsComplete = false;
    myMemory.clear();
}

bool KTSpool::deliver(QIODevice *device)
{
    if (myFile.isOpen()) {
        spill();
        myIsComplete = myIsComplete && myFile.seek(0);
        while (myIsComplete && !myFile.atEnd()) {
            const QByteArray block = myFile.read(MEMORY_LIMIT);
            myIsComplete = !block.isEmpty() && device->write(block) == block.size();
        }
        return myIsComplete;
    }
    return myIsComplete && device->write(myMemory) == myMemory.size();
}
