#include "KTDirectoryConfig.h"

#include <KTStringLiteral.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

namespace {

constexpr char ROOT_VARIABLE[] = "KTPRODUCTBASE_RESOURCES";
// Seen from the library: as it is installed, and as it lies in the build folder.
constexpr const char *ROOTS[] = {KT_RESOURCES_FROM_LIBRARY, "../share/KTProductBase"};

constexpr QChar FOLDER_SEPARATOR = u'/';
constexpr KTStringLiteral PARENT_FOLDER = "..";

/** Asked at run time, so that the installed files can be moved together. */
QString libraryFolder()
{
    static const char myAnchor = 0;
    Dl_info info;
    if (!dladdr(&myAnchor, &info) || !info.dli_fname)
        return QString();
    return QFileInfo(QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath()).path();
}

QString defaultResourceRoot()
{
    QString root = qEnvironmentVariable(ROOT_VARIABLE);
    if (!root.isEmpty())
        return root;
    const QDir folder(libraryFolder());
    for (const char *const path : ROOTS) {
        const QFileInfo candidate(folder, QString::fromUtf8(path));
        if (candidate.isDir())
            return candidate.canonicalFilePath();
    }
    return QString();
}

bool isRelativeWithoutDetour(const QString &name)
{
    return !name.isEmpty() && !name.contains(QChar::Null) && !QDir::isAbsolutePath(name)
        && !name.split(FOLDER_SEPARATOR).contains(PARENT_FOLDER);
}

} // namespace

KTDirectoryConfig::KTDirectoryConfig()
    : myResourceRoot(defaultResourceRoot())
{
}

QString KTDirectoryConfig::resource(const QString &name, bool) const
{
    QString root = QFileInfo(myResourceRoot).canonicalFilePath();
    if (root.isEmpty() || !isRelativeWithoutDetour(name))
        return QString();
    if (!root.endsWith(FOLDER_SEPARATOR))
        root += FOLDER_SEPARATOR;
    const QString path = QFileInfo(root + name).canonicalFilePath();
    return path.startsWith(root) && QFileInfo(path).isFile() ? path : QString();
}
