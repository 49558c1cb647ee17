#pragma once

#include "ktcatalogue_export.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <array>

/** The classifications of the library, in the order of their attributes in a catalogue. */
enum class KTClassificationId {
    ArticleClass,
    ProductArrangement,
    SpaceMagnitude,
    Orientation,
    CoverType,
    PageBinding,
    PaperType,
    FotoPaperType,
    MaterialType,
    DlpType,
    SpotColor,
    PageType,
    PageAlignment,
    DistanceUnit,
    COUNT,
};

/** One value of a keyword table. */
struct KTKeywordInfo
{
    QString written;
    /** Further keywords, which are only read; in lower case. */
    QStringList aliases;
    qint64 value;
    QString displayName;
};

/**
 * A classification without its type: what its class reads, writes and shows, for programs that treat all of
 * them alike. Texts for people are translated as the class does it. Safe from any thread.
 */
class KTCATALOGUE_EXPORT KTClassification
{
public:
    /** All of them, in the order of their ids. */
    static const std::array<KTClassification, static_cast<std::size_t>(KTClassificationId::COUNT)> &all();
    static const KTClassification &of(KTClassificationId id);

    constexpr KTClassificationId id() const { return myId; }
    QString className() const { return QString::fromLatin1(myClassName); }

    /** The value that the library reads from a text. */
    qint64 decode(const QString &text) const { return myDecode(text); }
    /** The keyword that the library writes for the value; the bits' keywords for a union without one. */
    QString written(qint64 value) const { return myWritten(value); }
    QString displayName(qint64 value) const { return myDisplayName(value); }
    /** The entries of the text that are no keywords, see KTEnumToStringTable. */
    QStringList unknownEntries(const QString &text) const { return myUnknownEntries(text); }
    /** What is written for the value that an unknown entry becomes; empty for nothing at all. */
    QString unknownReadAs() const { return myUnknownReadAs(); }
    /** Every value with a keyword, in ascending order. */
    QVector<KTKeywordInfo> keywords() const { return myKeywords(); }
    /** Every keyword that is read. */
    QStringList readableKeywords() const;

private:
    friend struct KTClassificationRows;
    constexpr KTClassification() = default;

    KTClassificationId myId = KTClassificationId::COUNT;
    const char *myClassName = nullptr;
    qint64 (*myDecode)(const QString &) = nullptr;
    QString (*myWritten)(qint64) = nullptr;
    QString (*myDisplayName)(qint64) = nullptr;
    QStringList (*myUnknownEntries)(const QString &) = nullptr;
    QString (*myUnknownReadAs)() = nullptr;
    QVector<KTKeywordInfo> (*myKeywords)() = nullptr;
};
