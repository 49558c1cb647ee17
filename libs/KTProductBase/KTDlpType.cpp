#include "KTDlpType.h"

#include <KTDirectoryName.h>
#include <KTFactRow.h>
#include <KTKeywordRow.h>

#include <QDebug>

namespace {

constexpr KTKeywordRow<KTDlpTypeEnum> KEYWORDS[] = {
    {"background",          KTDlpTypeBackground       },
    {"template",            KTDlpTypeTemplate         },
    {"clipart",             KTDlpTypeClipart          },
    {"mask",                KTDlpTypeMask             },
    {"style_v2",            KTDlpTypeStyle            },
    {"layoutcollection",    KTDlpTypeLayoutcollection },
    {"form_parameter_data", KTDlpTypeFormParameterData},
    {"predefined_project",  KTDlpTypePredefinedProject},
    {"storybook",           KTDlpTypeStorybook        },
};
static_assert(KTKeywordRows::bits(KEYWORDS) == KTDlpTypeReserved9 - 1, "every kind has a keyword");

constexpr KTTextRow<KTDlpTypeEnum> NAMES[] = {
    {KTDlpTypeBackground, QT_TRANSLATE_NOOP("KTDlpType", "Hintergründe")  },
    {KTDlpTypeStyle,      QT_TRANSLATE_NOOP("KTDlpType", "Stile")          },
    {KTDlpTypeTemplate,   QT_TRANSLATE_NOOP("KTDlpType", "Designs")        },
    {KTDlpTypeClipart,    QT_TRANSLATE_NOOP("KTDlpType", "Cliparts")       },
    {KTDlpTypeMask,       QT_TRANSLATE_NOOP("KTDlpType", "Masken & Rahmen")},
    {KTDlpTypeStorybook,  QT_TRANSLATE_NOOP("KTDlpType", "Buchvorlagen")   },
};

struct DirectoryRow
{
    KTDlpTypeEnum value;
    KTDirectoryNameEnum directory;
    KTDirectoryNameEnum flaggedDirectory;
};

// Masks lie among the cliparts; story books are styles and have no directory of their own.
constexpr DirectoryRow DIRECTORIES[] = {
    {KTDlpTypeBackground,        KTDirectoryNameBackgrounds,        KTDirectoryNameBackgrounds       },
    {KTDlpTypeStyle,             KTDirectoryNameStyles,             KTDirectoryNameStyles            },
    {KTDlpTypeTemplate,          KTDirectoryNamePredefinedProjects, KTDirectoryNameTemplates         },
    {KTDlpTypeClipart,           KTDirectoryNameCliparts,           KTDirectoryNameCliparts          },
    {KTDlpTypeMask,              KTDirectoryNameCliparts,           KTDirectoryNameCliparts          },
    {KTDlpTypeLayoutcollection,  KTDirectoryNameLayoutCollections,  KTDirectoryNameLayoutCollections },
    {KTDlpTypeFormParameterData, KTDirectoryNameFormParameterData,  KTDirectoryNameFormParameterData },
    {KTDlpTypePredefinedProject, KTDirectoryNamePredefinedProjects, KTDirectoryNamePredefinedProjects},
};
constexpr DirectoryRow NO_DIRECTORY = {static_cast<KTDlpTypeEnum>(0), static_cast<KTDirectoryNameEnum>(0),
                                       static_cast<KTDirectoryNameEnum>(0)};

} // namespace

KTDlpType::KTDlpType()
    : KTDlpType(static_cast<KTDlpTypeEnum>(0))
{
}

KTDlpType::KTDlpType(KTDlpTypeEnum value)
    : KTEnumWrapper(value)
{
}

KTDlpType::KTDlpType(const QString &text)
    : KTDlpType()
{
    setValue(text);
}

QString KTDlpType::visibleName() const
{
    static const auto *const myTable = KTFactRows::createTextTable<KTDlpTypeEnum>("KTDlpType", NAMES);
    return myTable->valueOf(value());
}

QString KTDlpType::dlpPath(bool flag) const
{
    const DirectoryRow &row = KTFactRows::find(DIRECTORIES, value() & ~KTDlpTypeReserved9, NO_DIRECTORY);
    return KTDirectoryName(flag ? row.flaggedDirectory : row.directory).name();
}

QString KTDlpType::queryValue() const
{
    if (matches(KTDlpTypeStorybook))
        return KTDlpType(KTDlpTypeStyle).encode();
    KTDlpType kind = *this;
    return kind.exclude(KTDlpTypeReserved9).encode();
}

QString KTDlpType::describe() const
{
    return QStringLiteral("%1 | %2").arg(QString::number(value()), encode());
}

void KTDlpType::fillTable(KTEnumToStringTable<KTDlpTypeEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
}

QDebug operator<<(QDebug stream, const KTDlpType &dlpType)
{
    return stream << "KTDlpType:" << dlpType.debugText();
}
