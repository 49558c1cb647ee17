#pragma once

#include "ktcore_export.h"

#include <KTSingleton.h>

#include <QString>

/**
 * Where the application's resources lie: below a root folder, and what is not there, below the share folder
 * installed beside this library.
 *
 * The root is the folder that the environment variable KTPRODUCTBASE_RESOURCES names. Without the variable,
 * or, with a warning, where it names no folder, it is the installed folder. Set another one before a second
 * thread asks.
 */
class KTCORE_EXPORT KTDirectoryConfig : public KTSingleton<KTDirectoryConfig>
{
public:
    KTDirectoryConfig();

    /** An absolute path; empty where there is neither a root nor an installed folder. */
    QString resourceRoot() const { return myResourceRoot; }
    /** A relative path counts from the present working directory; with an empty one there is no root. */
    void setResourceRoot(const QString &path);
    /**
     * The absolute path of the resource with this name, which is a path relative to the root, or else to the
     * installed folder.
     *
     * Names come from catalogues: only a regular file below the folder is found, whatever links lead to it.
     * An absolute name, one with a part "..", a folder or a device give an empty text, as a missing file
     * does. The last argument has no effect.
     */
    [[nodiscard]] QString resource(const QString &name, bool reserved) const;

private:
    QString myResourceRoot;
};
