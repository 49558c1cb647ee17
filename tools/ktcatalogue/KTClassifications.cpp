#include "KTClassifications.h"

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
    const auto &known = CLASS().enumToStringTable()->keywordToValue;
    QStringList unknown;
    for (const QString &part : text.split(QLatin1Char(','))) {
        if (!known.contains(part.trimmed().toLower()))
            unknown.append(part.trimmed());
    }
    return unknown;
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

} // namespace

template <typename CLASS>
KTClassification classification(const char *className, const char *element, const char *attribute)
{
    KTClassification row;
    row.myClassName = QString::fromLatin1(className);
    row.myElement = QString::fromLatin1(element);
    row.myAttribute = QString::fromLatin1(attribute);
    row.myDecode = [](const QString &text) -> qint64 { return CLASS(text).value(); };
    row.myWritten = [](qint64 value) { return written(classified<CLASS>(value)); };
    row.myDisplayName = [](qint64 value) { return displayName(classified<CLASS>(value)); };
    row.myUnknownEntries = &unknownEntriesOf<CLASS>;
    row.myUnknownReadAs = [] { return written(CLASS(CLASS().enumToStringTable()->defaultValue)); };
    row.myKeywords = &keywordsOf<CLASS>;
    return row;
}

const QVector<KTClassification> &KTClassification::all()
{
    static const QVector<KTClassification> myAll {
        classification<KTArticleClass>("KTArticleClass", "article", "article_class"),
        classification<KTProductArrangement>("KTProductArrangement", "article", "arrangement"),
        classification<KTSpaceMagnitude>("KTSpaceMagnitude", "article", "space_magnitude"),
        classification<KTOrientation>("KTOrientation", "article", "orientation"),
        classification<KTCoverType>("KTCoverType", "article", "cover_type"),
        classification<KTPageBinding>("KTPageBinding", "article", "binding"),
        classification<KTPaperType>("KTPaperType", "article", "paper"),
        classification<KTFotoPaperType>("KTFotoPaperType", "article", "photo_paper"),
        classification<KTMaterialType>("KTMaterialType", "article", "material"),
        classification<KTDlpType>("KTDlpType", "article", "content_type"),
        classification<KTSpotColor>("KTSpotColor", "article", "spot_colors"),
        classification<KTPageType>("KTPageType", "page", "type"),
        classification<KTPageAlignment>("KTPageAlignment", "page", "alignment"),
        classification<KTDistanceUnit>("KTDistanceUnit", "", ""),
    };
    return myAll;
}

const KTClassification *KTClassification::ofAttribute(const QString &element, const QString &attribute)
{
    const auto found = std::find_if(all().begin(), all().end(), [&](const KTClassification &row) {
        return row.element() == element && row.attribute() == attribute;
    });
    return found == all().end() ? nullptr : &*found;
}

const KTClassification *KTClassification::ofClass(const QString &className)
{
    const auto found = std::find_if(all().begin(), all().end(), [&](const KTClassification &row) {
        return row.className() == className;
    });
    return found == all().end() ? nullptr : &*found;
}

const KTClassification *KTClassification::ofName(const QString &name)
{
    const auto found = std::find_if(all().begin(), all().end(), [&](const KTClassification &row) {
        return row.className() == name || (!name.isEmpty() && row.attribute() == name);
    });
    return found == all().end() ? nullptr : &*found;
}
