#include "KTFotoPaperType.h"

#include "KTArticleClass.h"

#include <KTFactRow.h>
#include <KTKeywordRow.h>
#include <KTXMLParser.h>

#include <QDebug>

#include <optional>

namespace {

// The numbers are what the order and production read; the words are only read.
constexpr KTKeywordRow<KTFotoPaperTypeEnum> KEYWORDS[] = {
    {"0",      KTFotoPaperTypeUnknown},
    {"1",      KTFotoPaperTypeGlossy },
    {"glossy", KTFotoPaperTypeGlossy },
    {"2",      KTFotoPaperTypeMatt   },
    {"matt",   KTFotoPaperTypeMatt   },
};

constexpr KTTextRow<KTFotoPaperTypeEnum> NAMES[] = {
    {KTFotoPaperTypeUnknown, QT_TRANSLATE_NOOP("KTFotoPaperType", "Unbekanntes Fotopapier")},
    {KTFotoPaperTypeGlossy,  QT_TRANSLATE_NOOP("KTFotoPaperType", "Glänzend")             },
    {KTFotoPaperTypeMatt,    QT_TRANSLATE_NOOP("KTFotoPaperType", "Matt")                  },
};

constexpr int BOTH_SURFACES = 0;

} // namespace

KTFotoPaperType::KTFotoPaperType()
    : KTFotoPaperType(KTFotoPaperTypeUnknown)
{
}

KTFotoPaperType::KTFotoPaperType(KTFotoPaperTypeEnum value)
    : KTEnumWrapper(value)
{
}

KTFotoPaperType::KTFotoPaperType(const QString &text)
    : KTFotoPaperType()
{
    setValue(text);
}

QList<KTFotoPaperType> KTFotoPaperType::createFromXTCI(const QString &text)
{
    const std::optional<int> code = KTXMLParser::parseInt(text);
    QList<KTFotoPaperType> surfaces;
    for (const KTFotoPaperTypeEnum surface : {KTFotoPaperTypeGlossy, KTFotoPaperTypeMatt}) {
        if (code == BOTH_SURFACES || code == surface)
            surfaces.append(surface);
    }
    return surfaces;
}

KTFotoPaperType KTFotoPaperType::defaultFor(const KTArticleClass &articleClass)
{
    const bool isPrint = articleClass.hasExactlyOneBit() && articleClass.matches(KTArticleClassPhoto);
    return isPrint ? KTFotoPaperTypeGlossy : KTFotoPaperTypeUnknown;
}

QString KTFotoPaperType::humanReadableName() const
{
    static const auto *const myTable
        = KTFactRows::createTextTable<KTFotoPaperTypeEnum>("KTFotoPaperType", NAMES);
    return myTable->valueOf(value());
}

QString KTFotoPaperType::encodeForProduction() const
{
    // Production's numbers are the keywords, except that it knows none for an unknown surface.
    return isNull() ? QString() : encode();
}

void KTFotoPaperType::fillTable(KTEnumToStringTable<KTFotoPaperTypeEnum> *table) const
{
    KTKeywordRows::insert(table, KEYWORDS);
}

QDebug operator<<(QDebug stream, const KTFotoPaperType &paperType)
{
    return stream << "KTFotoPaperType:" << paperType.debugText();
}
