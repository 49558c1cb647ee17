#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class QFile;

/**
 * Names of files as they are: bytes that are usually UTF-8, but need not be.
 *
 * A text made of a name has a lone surrogate, U+DC80 to U+DCFF, for each byte that is not UTF-8, so that the
 * name can be made of it again.
 */
namespace KTFileName {

QString fromBytes(const QByteArray &bytes);
/** The same for any text with such names in it. */
QByteArray toBytes(const QString &text);
/** True for what stands for a byte that is not UTF-8, unless it is the second half of a character. */
constexpr bool isRawByte(QChar character)
{
    return character.unicode() >= 0xdc80 && character.unicode() <= 0xdcff;
}
/** The name where only UTF-8 can be written: a byte that is not stands as "\xe4" and the like. */
QString escaped(const QString &name);

/** True for the name that means standard input. */
bool isStandardInput(const QString &name);
/** Opens the file, or standard input, for reading; says why not where that fails, else nothing. */
[[nodiscard]] QString open(QFile *file, const QString &name);
/** True for what can be read only once, such as a pipe. */
bool isStream(const QString &name);
/** True when both names, also by way of links, are those of one file that is there. */
bool areSame(const QString &name, const QString &other);

/**
 * Replaces the file by the content, or leaves everything as it is and says why: a part of a drawing is worse
 * than none. Nothing when that was done. Only regular files are replaced; links are followed.
 */
[[nodiscard]] QString replaceFile(const QString &name, const QByteArray &content);
/** The same for what the function writes; false of it means that nothing is to be replaced. */
[[nodiscard]] QString replaceFile(const QString &name, const std::function<bool(QFile *file)> &write);

} // namespace KTFileName
