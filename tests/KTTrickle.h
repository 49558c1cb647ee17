#pragma once

#include <QByteArray>
#include <QIODevice>

#include <cstring>

/** Gives out its bytes a few at a time, so that what belongs together comes in pieces. */
class KTTrickle : public QIODevice
{
public:
    KTTrickle(const QByteArray &bytes, int piece)
        : myBytes(bytes)
        , myPiece(piece)
    {
        open(ReadOnly | Unbuffered);
    }
    bool atEnd() const override { return myBytes.isEmpty(); }

protected:
    qint64 readData(char *data, qint64 maximum) override
    {
        const QByteArray piece = myBytes.left(static_cast<int>(qMin<qint64>(maximum, myPiece)));
        std::memcpy(data, piece.constData(), static_cast<std::size_t>(piece.size()));
        myBytes.remove(0, piece.size());
        return piece.size();
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray myBytes;
    int myPiece;
};
