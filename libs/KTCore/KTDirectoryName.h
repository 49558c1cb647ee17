#pragma once

#include "ktcore_export.h"

#include <QMetaType>
#include <QString>

class QDebug;

/** The kinds of content directories; 0 is none. */
enum KTCORE_EXPORT KTDirectoryNameEnum : qint32 {
    KTDirectoryNameCliparts = 0x2,
    KTDirectoryNameStyles = 0x4,
    KTDirectoryNameBackgrounds = 0x8,
    KTDirectoryNameFormParameterData = 0x10,
    KTDirectoryNameLayoutCollections = 0x40,
    KTDirectoryNameTemplates = 0x10000,
    KTDirectoryNamePredefinedProjects = 0x20000,
};

/** The name of the directory that holds one kind of downloadable content. */
class KTCORE_EXPORT KTDirectoryName
{
public:
    /** No directory. */
    KTDirectoryName() = default;
    KTDirectoryName(KTDirectoryNameEnum value)
        : myValue(value)
    {
    }

    KTDirectoryNameEnum value() const { return myValue; }
    /** The name, such as "backgrounds"; a null string for what is no directory. */
    QString name() const;

    bool operator==(const KTDirectoryName &other) const { return myValue == other.myValue; }
    bool operator!=(const KTDirectoryName &other) const { return !(*this == other); }

private:
    KTDirectoryNameEnum myValue = static_cast<KTDirectoryNameEnum>(0);
};

Q_DECLARE_TYPEINFO(KTDirectoryName, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTDirectoryName)
KTCORE_EXPORT QDebug operator<<(QDebug stream, const KTDirectoryName &directory);
