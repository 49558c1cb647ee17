#pragma once

#include <QFile>
#include <QIODevice>
#include <QString>

#include <memory>

/**
 * A file named on the command line that can be read again from any place: of what comes through a pipe, all
 * that was read is kept in a temporary file.
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
    QIODevice *device() { return myCopy ? myCopy.get() : &myFile; }

private:
    QString myName;
    QFile myFile;
    QString myError;
    /** Reads from the file, which is a stream; null for one that can be read again itself. */
    std::unique_ptr<QIODevice> myCopy;
};
