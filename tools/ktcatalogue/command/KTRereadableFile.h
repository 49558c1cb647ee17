#pragma once

#include <QFile>
#include <QString>
#include <QTemporaryFile>

/**
 * A file named on the command line that can be read again from any place: what comes through a pipe is copied
 * to a temporary file first.
 */
class KTRereadableFile
{
public:
    /** "-" names standard input. */
    explicit KTRereadableFile(const QString &name);

    QString name() const { return myName; }
    /** Why there is nothing to read; empty where there is. */
    QString error() const { return myError; }
    /** Open at its begin. */
    QIODevice *device() { return myCopy.isOpen() ? static_cast<QIODevice *>(&myCopy) : &myFile; }

private:
    void copy();

    QString myName;
    QFile myFile;
    QTemporaryFile myCopy;
    QString myError;
};
