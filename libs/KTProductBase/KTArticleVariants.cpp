#include "KTArticleVariants.h"

#include "KTVariantPairs.h"

#include <KTStringLiteral.h>
#include <KTXMLParser.h>

#include <QDebug>
#include <QDomElement>
#include <QJsonArray>

#include <algorithm>

using KTVariantPairs::filled;
using KTVariantPairs::forEachPart;
using KTVariantPairs::JoinedPairs;
using KTVariantPairs::ORDER_TXT_SEPARATOR;
using KTVariantPairs::partText;

namespace {

constexpr KTStringLiteral COVER_COLOR_KEY = "alcolor";
constexpr KTStringLiteral COVER_FOTO_KEY = "coverphoto";
constexpr KTStringLiteral PICTURE_BOX_KEY = "boxstyle";
constexpr KTStringLiteral FLY_LEAF_COLOR_KEY = "flyleafcolor";
constexpr KTStringLiteral CFB_GIFT_BOX_COLOR_KEY = "giftboxcolor";
constexpr KTStringLiteral BLACK_CFB_GIFT_BOX_VALUE = "black";

constexpr KTStringLiteral KEY_ATTRIBUTE = "key";
constexpr KTStringLiteral VALUE_ATTRIBUTE = "value";

constexpr KTStringLiteral FORM_PARAMETER_PREFIX = "form_parameter-";
constexpr KTStringLiteral DEBUG_PAIR_TEMPLATE = "%1 = %2";
constexpr KTStringLiteral DEBUG_PAIR_SEPARATOR = "; ";
constexpr QChar FORM_PARAMETER_SEPARATOR = u':';
constexpr QChar MCF_SEPARATOR = u',';

bool isKeyValueSeparator(QChar character)
{
    return character == u':' || character == u'|' || character == u'+';
}

/** Inserts the pair that the text consists of; a text without exactly one separator is no pair. */
template <typename Predicate>
void insertPair(KTArticleVariants *variants, const QString &text, Predicate isSeparator)
{
    const auto separator = std::find_if(text.begin(), text.end(), isSeparator);
    if (separator == text.end() || std::any_of(separator + 1, text.end(), isSeparator))
        return;
    const int position = static_cast<int>(separator - text.begin());
    variants->insert(text.left(position), text.mid(position + 1));
}

qint64 writtenSize(const QHash<QString, QString> &variants)
{
    qint64 size = 0;
    for (auto pair = variants.begin(); pair != variants.end(); ++pair)
        size += KTVariantPairs::writtenSize(pair.key(), pair.value());
    return size;
}

} // namespace

KTArticleVariants::KTArticleVariants(const QDomElement &element)
{
    insert(KTXMLParser::attribute(element, KEY_ATTRIBUTE, QString(), true),
           KTXMLParser::attribute(element, VALUE_ATTRIBUTE, QString(), true));
}

KTArticleVariants::KTArticleVariants(const QJsonArray &array)
{
    for (const QJsonValue &entry : array) {
        insertPair(this, entry.toString().remove(FORM_PARAMETER_PREFIX),
                   [](QChar character) { return character == FORM_PARAMETER_SEPARATOR; });
    }
}

KTArticleVariants::KTArticleVariants(const QString &key, const QString &value)
{
    if (!key.isEmpty() && !value.isEmpty())
        insert(key, value);
}

KTArticleVariants::KTArticleVariants(const QString &keywordString)
{
    insertPair(this, keywordString, isKeyValueSeparator);
}

KTArticleVariants::~KTArticleVariants() = default;

KTArticleVariants KTArticleVariants::createFromMCF(const QString &text)
{
    KTArticleVariants variants;
    for (const QString &pair : text.split(MCF_SEPARATOR, Qt::SkipEmptyParts))
        insertPair(&variants, pair, isKeyValueSeparator);
    return variants;
}

KTArticleVariants KTArticleVariants::blackCFBGiftBox()
{
    return KTArticleVariants(CFB_GIFT_BOX_COLOR_KEY, BLACK_CFB_GIFT_BOX_VALUE);
}

QString KTArticleVariants::coverColorKeyName()
{
    return COVER_COLOR_KEY;
}

QString KTArticleVariants::coverFotoKeyName()
{
    return COVER_FOTO_KEY;
}

QString KTArticleVariants::pictureBoxKeyName()
{
    return PICTURE_BOX_KEY;
}

QString KTArticleVariants::flyLeafKeyColorName()
{
    return FLY_LEAF_COLOR_KEY;
}

QString KTArticleVariants::cfbGiftBoxColorKeyName()
{
    return CFB_GIFT_BOX_COLOR_KEY;
}

QString KTArticleVariants::blackCFBGiftBoxValue()
{
    return BLACK_CFB_GIFT_BOX_VALUE;
}

void KTArticleVariants::insert(const QString &key, const QString &value)
{
    myVariants.insert(key, value);
}

void KTArticleVariants::insert(const KTArticleVariants &other)
{
    // One by one: QHash would keep the other's hashes, which another seed of the application makes wrong.
    const QHash<QString, QString> added = other.myVariants;
    for (auto pair = added.begin(); pair != added.end(); ++pair)
        myVariants.insert(pair.key(), pair.value());
}

QString KTArticleVariants::value(const QString &key, const QString &defaultValue) const
{
    return myVariants.value(key, defaultValue);
}

QStringList KTArticleVariants::keys() const
{
    QStringList keys = myVariants.keys();
    keys.sort();
    return keys;
}

QStringList KTArticleVariants::values() const
{
    return myVariants.values();
}

bool KTArticleVariants::hasCoverColor() const
{
    return myVariants.contains(COVER_COLOR_KEY);
}

bool KTArticleVariants::hasFlyLeafColor() const
{
    return myVariants.contains(FLY_LEAF_COLOR_KEY);
}

bool KTArticleVariants::contains(const KTArticleVariants &other) const
{
    for (auto pair = other.myVariants.begin(); pair != other.myVariants.end(); ++pair) {
        if (myVariants.value(pair.key()) != pair.value())
            return false;
    }
    return true;
}

bool KTArticleVariants::containsAtLeastOne(const KTArticleVariants &other) const
{
    if (!isValid() || !other.isValid())
        return true;
    for (auto pair = myVariants.begin(); pair != myVariants.end(); ++pair) {
        if (other.myVariants.value(pair.key()) == pair.value())
            return true;
    }
    return false;
}

uint KTArticleVariants::hash() const
{
    return static_cast<uint>(qHash(myVariants, 0));
}

QString KTArticleVariants::toMCF() const
{
    JoinedPairs pairs(MCF_SEPARATOR, writtenSize(myVariants));
    for (auto pair = myVariants.begin(); pair != myVariants.end(); ++pair) {
        if (!pair.key().isEmpty() && !pair.value().isEmpty())
            pairs.append(pair.key(), pair.value());
    }
    return pairs.text();
}

QString KTArticleVariants::toOrderTxt() const
{
    JoinedPairs pairs(ORDER_TXT_SEPARATOR, writtenSize(myVariants));
    for (auto pair = myVariants.begin(); pair != myVariants.end(); ++pair) {
        forEachPart(pair.key(), pair.value(),
                    [&pairs](QStringView key, QStringView value) { pairs.append(key, value); });
    }
    return pairs.text();
}

KTArticleVariants KTArticleVariants::toXTCI() const
{
    KTArticleVariants expanded;
    for (auto pair = myVariants.begin(); pair != myVariants.end(); ++pair)
        expanded.splitForProduction(pair.key(), pair.value());
    return expanded;
}

void KTArticleVariants::splitForProduction(const QString &key, const QString &value)
{
    forEachPart(key, value, [&](QStringView keyPart, QStringView valuePart) {
        insert(partText(keyPart, key), partText(valuePart, value));
    });
}

QDebug operator<<(QDebug stream, const KTArticleVariants &variants)
{
    QStringList pairs;
    for (const QString &key : variants.keys())
        pairs.append(filled(DEBUG_PAIR_TEMPLATE, key, variants.value(key, QString())));
    return stream << pairs.join(DEBUG_PAIR_SEPARATOR);
}
