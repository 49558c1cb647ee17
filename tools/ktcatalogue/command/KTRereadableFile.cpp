#include "KTRereadableFile.h"

#include "KTFileName.h"

namespace {
constexpr int CHUNK_SIZE = 64 * 1024;
}

KTRereadableFile::KTRereadableFile(const QString &name)
    : myName(name)
    , myError(KTFileName::open(&myFile, name))
{
    // Standard input may be a file, but need not be at its begin.
    if (myError.isEmpty() && KTFileName::isStream(name))
        copy();
}

void KTRereadableFile::copy()
{
    if (!myCopy.open()) {
        myError = QStringLiteral("no temporary file for it: %1").arg(myCopy.errorString());
        return;
    }
    QByteArray chunk(CHUNK_SIZE, Qt::Uninitialized);
    while (true) {
        const qint64 length = myFile.read(chunk.data(), chunk.size());
        // A device at its end may say so with an error code as well; then there is nothing wrong with it.
        if (length == 0 || (length < 0 && myFile.atEnd()))
            break;
        if (length < 0) {
            myError = QStringLiteral("the file cannot be read: %1").arg(myFile.errorString());
            return;
        }
        if (myCopy.write(chunk.constData(), length) != length) {
            myError = QStringLiteral("no room for a copy of it: %1").arg(myCopy.errorString());
            return;
        }
    }
    if (!myCopy.flush() || !myCopy.seek(0))
        myError = QStringLiteral("no room for a copy of it: %1").arg(myCopy.errorString());
}
