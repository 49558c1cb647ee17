#include "KTRereadableFile.h"

#include "KTFileName.h"
#include "KTToolText.h"

#include <QTemporaryFile>

namespace {

/**
 * A stream whose past can be read again. It is copied as it is read, not before, so that one that never ends
 * does no harm: it is no catalogue, which is soon seen.
 */
class StreamCopy : public QIODevice
{
public:
    explicit StreamCopy(QIODevice *stream)
        : myStream(stream)
    {
        open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    }

    /** Why nothing can be kept; empty where all is well. */
    QString openCopy() { return myCopy.open() ? QString() : myCopy.errorString(); }
    bool isSequential() const override { return false; }
    qint64 size() const override { return myCopied; }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        if (pos() < myCopied)
            return myCopy.seek(pos()) ? myCopy.read(data, maximum) : -1;
        const qint64 length = myStream->read(data, maximum);
        if (length < 0) {
            // A device at its end may say so with an error code as well; then there is nothing wrong with it.
            setErrorString(myStream->errorString());
            return myStream->atEnd() ? 0 : -1;
        }
        if (!myCopy.seek(myCopied) || myCopy.write(data, length) != length || !myCopy.flush()) {
            setErrorString(KTToolText::tr("no room for a copy: %1").arg(myCopy.errorString()));
            return -1;
        }
        myCopied += length;
        return length;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QIODevice *myStream;
    QTemporaryFile myCopy;
    qint64 myCopied = 0;
};

} // namespace

KTRereadableFile::KTRereadableFile(const QString &name)
    : myName(name)
    , myError(KTFileName::open(&myFile, name))
{
    // Standard input may be a file, but need not be at its begin.
    if (!myError.isEmpty() || !KTFileName::isStream(name))
        return;
    auto copy = std::make_unique<StreamCopy>(&myFile);
    myError = copy->openCopy();
    myCopy = std::move(copy);
}
