#include "KTDirectoryConfig.h"

#include <KTStringLiteral.h>

#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMessageLogger>

#include <dlfcn.h>

namespace {

constexpr char ROOT_VARIABLE[] = "KTPRODUCTBASE_RESOURCES";

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

/** Looked for once; no member of the class, whose size programs that were built with 1.0.0 rely on. */
const QString &installedRoot()
{
    static const auto *const myRoot = [] {
        const QFileInfo root(QDir(libraryFolder()), QStringLiteral(KT_RESOURCES_FROM_LIBRARY));
        return new QString(root.isDir() ? root.canonicalFilePath() : QString());
    }();
    return *myRoot;
}

/** The folder that the environment names; empty, with a warning, where that is no folder. */
QString environmentRoot()
{
    QString root = QFile::decodeName(qgetenv(ROOT_VARIABLE));
    if (root.isEmpty() || QFileInfo(root).isDir())
        return root;
    QMessageLogger("libs/KTCore/KTDirectoryConfig", __LINE__, Q_FUNC_INFO, "default").warning()
        << ROOT_VARIABLE << "names no folder:" << root;
    return QString();
}

bool isRelativeWithoutDetour(const QString &name)
{
    return !name.isEmpty() && !name.contains(QChar::Null) && !QDir::isAbsolutePath(name)
        && !name.split(FOLDER_SEPARATOR).contains(PARENT_FOLDER);
}

/** The canonical path of the regular file below the folder; empty for anything else. */
QString fileBelow(const QString &folder, const QString &name)
{
    QString root = QFileInfo(folder).canonicalFilePath();
    if (root.isEmpty())
        return QString();
    if (!root.endsWith(FOLDER_SEPARATOR))
        root += FOLDER_SEPARATOR;
    const QString path = QFileInfo(root + name).canonicalFilePath();
    return path.startsWith(root) && QFileInfo(path).isFile() ? path : QString();
}

} // namespace

KTDirectoryConfig::KTDirectoryConfig()
{
    const QString root = environmentRoot();
    setResourceRoot(root.isEmpty() ? installedRoot() : root);
}

void KTDirectoryConfig::setResourceRoot(const QString &path)
{
    myResourceRoot = path.isEmpty() ? path : QDir::cleanPath(QDir().absoluteFilePath(path));
}

QString KTDirectoryConfig::resource(const QString &name, bool) const
{
    if (!isRelativeWithoutDetour(name))
        return QString();
    const QString path = fileBelow(myResourceRoot, name);
    return path.isEmpty() ? fileBelow(installedRoot(), name) : path;
}
