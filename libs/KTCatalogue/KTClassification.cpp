#include "KTClassification.h"

#include <KTArticleClass.h>
#include <KTCoverType.h>
#include <KTDistanceUnit.h>
#include <KTDlpType.h>
#include <KTFotoPaperType.h>
#include <KTMaterialType.h>
#include <KTOrientation.h>
#include <KTPageAlignment.h>
#include <KTPageBinding.h>
#include <KTPageType.h>
#include <KTPaperType.h>
#include <KTProductArrangement.h>
#include <KTSpaceMagnitude.h>
#include <KTSpotColor.h>

#include <algorithm>

namespace {

// Each classification tells its name in its own words, and some have none.
template <typename CLASS>
QString displayName(const CLASS &)
{
    return QString();
}
QString displayName(const KTArticleClass &value)
{
    return value.toHumanReadable();
}
QString displayName(const KTCoverType &value)
{
    return value.humanReadableName();
}
QString displayName(const KTDlpType &value)
{
    return value.visibleName();
}
QString displayName(const KTFotoPaperType &value)
{
    return value.humanReadableName();
}
QString displayName(const KTOrientation &value)
{
    return value.humanReadable().trimmed();
}
QString displayName(const KTPageAlignment &value)
{
    return value.describe();
}
QString displayName(const KTPageBinding &value)
{
    return value.humanReadableName();
}
QString displayName(const KTPaperType &value)
{
    return value.humanReadableName();
}
QString displayName(const KTSpaceMagnitude &value)
{
    return value.humanReadableName();
}

template <typename CLASS>
CLASS classified(qint64 value)
{
    return CLASS(static_cast<decltype(CLASS().value())>(value));
}

template <typename CLASS>
QString written(const CLASS &value)
{
    return value.allKnownEnumValues().contains(value.value()) ? value.encode() : value.encodeCSV();
}

template <typename CLASS>
QStringList unknownEntriesOf(const QString &text)
{
    return CLASS().unknownEntries(text);
}

template <typename CLASS>
QVector<KTKeywordInfo> keywordsOf()
{
    QVector<KTKeywordInfo> keywords;
    for (const auto value : CLASS().allKnownEnumValues()) {
        const CLASS one(value);
        QStringList aliases = one.allPossibleKeywordsOneElement();
        aliases.removeAll(one.encode().toLower());
        keywords.append({one.encode(), aliases, value, displayName(one)});
    }
    std::sort(keywords.begin(), keywords.end(), [](const KTKeywordInfo &first, const KTKeywordInfo &second) {
        return first.value < second.value;
    });
    return keywords;
}

template <typename CLASS>
qint64 decoded(const QString &text)
{
    return CLASS(text).value();
}

template <typename CLASS>
QString writtenValue(qint64 value)
{
    return written(classified<CLASS>(value));
}

template <typename CLASS>
QString nameOfValue(qint64 value)
{
    return displayName(classified<CLASS>(value));
}

template <typename CLASS>
QString unknownReadAs()
{
    return written(CLASS(CLASS().enumToStringTable()->defaultValue));
}

} // namespace

/** Builds the rows when the library is compiled. */
struct KTClassificationRows
{
    using Id = KTClassificationId;
    static constexpr std::size_t COUNT = static_cast<std::size_t>(Id::COUNT);

    template <typename CLASS>
    static constexpr KTClassification row(Id id, const char *className)
    {
        KTClassification row;
        row.myId = id;
        row.myClassName = className;
        row.myDecode = &decoded<CLASS>;
        row.myWritten = &writtenValue<CLASS>;
        row.myDisplayName = &nameOfValue<CLASS>;
        row.myUnknownEntries = &unknownEntriesOf<CLASS>;
        row.myUnknownReadAs = &unknownReadAs<CLASS>;
        row.myKeywords = &keywordsOf<CLASS>;
        return row;
    }

    static constexpr std::array<KTClassification, COUNT> all()
    {
        return {
            {
             row<KTArticleClass>(Id::ArticleClass, "KTArticleClass"),
             row<KTProductArrangement>(Id::ProductArrangement, "KTProductArrangement"),
             row<KTSpaceMagnitude>(Id::SpaceMagnitude, "KTSpaceMagnitude"),
             row<KTOrientation>(Id::Orientation, "KTOrientation"),
             row<KTCoverType>(Id::CoverType, "KTCoverType"),
             row<KTPageBinding>(Id::PageBinding, "KTPageBinding"),
             row<KTPaperType>(Id::PaperType, "KTPaperType"),
             row<KTFotoPaperType>(Id::FotoPaperType, "KTFotoPaperType"),
             row<KTMaterialType>(Id::MaterialType, "KTMaterialType"),
             row<KTDlpType>(Id::DlpType, "KTDlpType"),
             row<KTSpotColor>(Id::SpotColor, "KTSpotColor"),
             row<KTPageType>(Id::PageType, "KTPageType"),
             row<KTPageAlignment>(Id::PageAlignment, "KTPageAlignment"),
             row<KTDistanceUnit>(Id::DistanceUnit, "KTDistanceUnit"),
             }
        };
    }

    static constexpr bool areInOrder()
    {
        const auto rows = all();
        for (std::size_t i = 0; i < COUNT; ++i) {
            if (rows[i].id() != static_cast<Id>(i))
                return false;
        }
        return true;
    }
};

static_assert(KTClassificationRows::areInOrder(), "an id is missing, or out of its place");

const std::array<KTClassification, KTClassificationRows::COUNT> &KTClassification::all()
{
    static constexpr auto ROWS = KTClassificationRows::all();
    return ROWS;
}

const KTClassification &KTClassification::of(KTClassificationId id)
{
    return all()[static_cast<std::size_t>(id)];
}

QStringList KTClassification::readableKeywords() const
{
    QStringList readable;
    for (const KTKeywordInfo &info : keywords())
        readable += QStringList(info.written) + info.aliases;
    return readable;
}
