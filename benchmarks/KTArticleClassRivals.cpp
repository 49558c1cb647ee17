#include "KTArticleClassRivals.h"

#include "KTArticleClassMetaEnum.h"

#include <QStringList>

#include <KTArticleClassHash.h>
#include <algorithm>

namespace {

qint64 decodeView(QStringView text, qint64 fallback)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.size() > MAX_WORD_LENGTH)
        return fallback;
    char keyword[MAX_WORD_LENGTH];
    char *end = keyword;
    for (const QChar character : trimmed) {
        const char16_t unit = character.unicode();
        if (unit > 0x7f) {
            // Its lower case may be ASCII after all.
            const QString lower = trimmed.toString().toLower();
            return trimmed == lower ? fallback : decodeView(lower, fallback);
        }
        *end++ = static_cast<char>(unit >= u'A' && unit <= u'Z' ? unit | 0x20 : unit);
    }
    const KTArticleClassWord *const word
        = KTArticleClassHash::find(keyword, static_cast<std::size_t>(end - keyword));
    return word ? word->value : fallback;
}

} // namespace

void KTLiteralArticleClasses::insert(const QString &keyword, qint64 value)
{
    myKeywordToValue.insert(keyword.toLower(), value);
    if (!myValueToKeyword.contains(value))
        myValueToKeyword.insert(value, keyword);
}

qint64 KTLiteralArticleClasses::decode(const QString &text, qint64 fallback) const
{
    return myKeywordToValue.value(text.trimmed().toLower(), fallback);
}

qint64 KTLiteralArticleClasses::decodeCSV(const QString &text) const
{
    qint64 values = 0;
    for (const QString &part : text.split(QLatin1Char(','), Qt::KeepEmptyParts, Qt::CaseSensitive))
        values |= decode(part, 0);
    return values;
}

QString KTLiteralArticleClasses::encode(qint64 value) const
{
    return myValueToKeyword.value(value);
}

QString KTLiteralArticleClasses::encodeCSV(qint64 value) const
{
    QList<qint64> bits;
    for (qint64 probe = 1; value > 0; probe <<= 1) {
        if (value & probe) {
            bits.append(probe);
            value &= ~probe;
        }
    }
    QStringList keywords;
    for (const qint64 bit : bits)
        keywords.append(encode(bit));
    return keywords.join(QStringLiteral(", "));
}

qint64 KTGperfArticleClasses::decode(const QString &text, qint64 fallback) const
{
    return decodeView(text, fallback);
}

qint64 KTGperfArticleClasses::decodeCSV(const QString &text) const
{
    const QStringView view(text);
    qint64 values = 0;
    for (auto start = view.begin();;) {
        const auto end = std::find(start, view.end(), QLatin1Char(','));
        values |= decodeView(QStringView(start, end), 0);
        if (end == view.end())
            return values;
        start = end + 1;
    }
}

KTMetaEnumArticleClasses::KTMetaEnumArticleClasses()
    : myRead(QMetaEnum::fromType<KTArticleClassMetaEnum::Reading::Read>())
    , myWritten(QMetaEnum::fromType<KTArticleClassMetaEnum::Written>())
{
}

int KTMetaEnumArticleClasses::decode(const QString &text, int fallback) const
{
    bool known = false;
    const int value = myRead.keyToValue(text.trimmed().toLower().toLatin1().constData(), &known);
    return known ? value : fallback;
}

int KTMetaEnumArticleClasses::decodeCSV(const QString &text) const
{
    return myRead.keysToValue(text.toLower().toLatin1().replace(',', '|').constData());
}

QString KTMetaEnumArticleClasses::encode(int value) const
{
    return QString::fromLatin1(myWritten.valueToKey(value));
}

QString KTMetaEnumArticleClasses::encodeCSV(int value) const
{
    return QString::fromLatin1(myWritten.valueToKeys(value).replace('|', ", "));
}
