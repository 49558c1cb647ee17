#include "KTDirectoryName.h"

#include <KTKeywordRow.h>

#include <QDebug>

namespace {

constexpr KTKeywordRow<KTDirectoryNameEnum> NAMES[] = {
    {"cliparts",            KTDirectoryNameCliparts          },
    {"styles",              KTDirectoryNameStyles            },
    {"backgrounds",         KTDirectoryNameBackgrounds       },
    {"form_parameter_data", KTDirectoryNameFormParameterData },
    {"layoutcollections",   KTDirectoryNameLayoutCollections },
    {"templates",           KTDirectoryNameTemplates         },
    {"predefined_projects", KTDirectoryNamePredefinedProjects},
};

} // namespace

QString KTDirectoryName::name() const
{
    for (const KTKeywordRow<KTDirectoryNameEnum> &row : NAMES) {
        if (row.value == myValue)
            return row.keyword;
    }
    return QString();
}

QDebug operator<<(QDebug stream, const KTDirectoryName &directory)
{
    return stream << "KTDirectoryName:" << directory.name();
}
