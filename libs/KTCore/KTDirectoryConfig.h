#pragma once

#include "ktcore_export.h"

#include <KTSingleton.h>

#include <QString>

/**
 * Where the application's resources lie: below one root folder.
 *
 * The root is the value of the environment variable KTPRODUCTBASE_RESOURCES or, without one, the share folder
 * installed beside this library. Set another one before a second thread asks.
 */
class KTCORE_EXPORT KTDirectoryConfig : public KTSingleton<KTDirectoryConfig>
{
public:
    KTDirectoryConfig();

    /** Empty when there is no root; then there are no resources. */
    QString resourceRoot() const { return myResourceRoot; }
    void setResourceRoot(const QString &path) { myResourceRoot = path; }
    /**
     * The absolute path of the resource with this name, which is a path relative to the root.
     *
     * Names come from catalogues: only a regular file below the root is found, whatever links lead to it.
     * An absolute name, one with a part "..", a folder or a device give an empty text, as a missing file
     * does. The last argument has no effect.
     */
    [[nodiscard]] QString resource(const QString &name, bool reserved) const;

private:
    QString myResourceRoot;
};
