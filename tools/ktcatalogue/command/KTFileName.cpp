#include "KTFileName.h"

#include "KTToolText.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QLatin1String STANDARD_INPUT("-");
constexpr ushort RAW_BYTE_BASE = 0xdc00;

/** How many bytes the character has that begins at the place; 0 for bytes that are not UTF-8. */
int characterLength(const QByteArray &bytes, int place)
{
    const auto first = static_cast<uchar>(bytes.at(place));
    const int length = first < 0x80 ? 1 : first >= 0xf0 ? 4 : first >= 0xe0 ? 3 : 2;
    const QByteArray character = bytes.mid(place, length);
    return QString::fromUtf8(character).toUtf8() == character ? length : 0;
}

/** The text with what the function makes of each byte that is not UTF-8. */
template <typename Function>
QByteArray bytesOf(const QString &text, Function function)
{
    QByteArray bytes;
    int done = 0;
    for (int i = 0; i < text.size(); ++i) {
        const bool isPaired = i > 0 && text.at(i - 1).isHighSurrogate();
        if (!KTFileName::isRawByte(text.at(i)) || isPaired)
            continue;
        bytes += text.mid(done, i - done).toUtf8();
        bytes += function(static_cast<char>(text.at(i).unicode() - RAW_BYTE_BASE));
        done = i + 1;
    }
    return bytes + text.mid(done).toUtf8();
}

std::optional<struct stat> statusOf(const QString &name)
{
    struct stat status;
    return stat(KTFileName::toBytes(name).constData(), &status) == 0 ? std::make_optional(status)
                                                                     : std::nullopt;
}

QString systemError()
{
    return qt_error_string(errno);
}

/** Where a link leads to; the name itself where there is nothing yet. */
QByteArray targetOf(const QByteArray &name)
{
    std::array<char, PATH_MAX> path;
    return realpath(name.constData(), path.data()) ? QByteArray(path.data()) : name;
}

mode_t newFileMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

} // namespace

QString KTFileName::fromBytes(const QByteArray &bytes)
{
    QString whole = QString::fromUtf8(bytes);
    if (whole.toUtf8() == bytes)
        return whole;
    QString text;
    for (int i = 0; i < bytes.size();) {
        const int length = characterLength(bytes, i);
        if (length == 0)
            text += QChar(RAW_BYTE_BASE + static_cast<uchar>(bytes.at(i)));
        else
            text += QString::fromUtf8(bytes.mid(i, length));
        i += std::max(length, 1);
    }
    return text;
}

QByteArray KTFileName::toBytes(const QString &text)
{
    return bytesOf(text, [](char byte) { return QByteArray(1, byte); });
}

QString KTFileName::escaped(const QString &name)
{
    return QString::fromUtf8(bytesOf(name, [](char byte) { return "\\x" + QByteArray(1, byte).toHex(); }));
}

bool KTFileName::isStandardInput(const QString &name)
{
    return name == STANDARD_INPUT;
}

QString KTFileName::open(QFile *file, const QString &name)
{
    if (isStandardInput(name))
        return file->open(stdin, QIODevice::ReadOnly) ? QString() : file->errorString();
    const int descriptor = ::open(toBytes(name).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return systemError();
    if (!file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle))
        return file->errorString();
    struct stat status;
    return fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode) ? qt_error_string(EISDIR) : QString();
}

bool KTFileName::isStream(const QString &name)
{
    const auto status = statusOf(name);
    return isStandardInput(name) || (status && !S_ISREG(status->st_mode));
}

bool KTFileName::areSame(const QString &name, const QString &other)
{
    const auto first = statusOf(name);
    const auto second = statusOf(other);
    return first && second && first->st_dev == second->st_dev && first->st_ino == second->st_ino;
}

QString KTFileName::replaceFile(const QString &name, const QByteArray &content)
{
    return replaceFile(name, [&content](QFile *file) { return file->write(content) == content.size(); });
}

QString KTFileName::replaceFile(const QString &name, const std::function<bool(QFile *file)> &write)
{
    const std::optional<struct stat> status = statusOf(name);
    if (status && !S_ISREG(status->st_mode))
        return KTToolText::tr("it is no regular file");
    const QByteArray target = targetOf(toBytes(name));
    QByteArray temporary = target + ".XXXXXX";
    const int descriptor = mkostemp(temporary.data(), O_CLOEXEC);
    if (descriptor < 0)
        return systemError();
    QFile file;
    const bool isWritten = file.open(descriptor, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle)
        && write(&file) && file.flush() && file.error() == QFileDevice::NoError;
    if (!isWritten) {
        // Less may be written without an error.
        QString error = file.error() == QFileDevice::NoError ? KTToolText::tr("it cannot be written whole")
                                                             : file.errorString();
        unlink(temporary.constData());
        return error;
    }
    if (fchmod(descriptor, status ? status->st_mode & 07777 : newFileMode()) != 0
        || rename(temporary.constData(), target.constData()) != 0) {
        QString reason = systemError();
        unlink(temporary.constData());
        return reason;
    }
    return QString();
}
