#include "KTConfiguredArticleVariantList.h"

#include "KTVariantPairs.h"

#include <KTStringLiteral.h>
#include <KTXMLElement.h>

#include <QDebug>
#include <QDomElement>
#include <QSet>
#include <QVarLengthArray>

#include <algorithm>
#include <iterator>

namespace {

constexpr KTStringLiteral FORMS_ELEMENT = "forms";
constexpr KTStringLiteral FORM_ELEMENT = "form";
constexpr QChar CSV_SEPARATOR = u',';

/** To look many options up in. */
QSet<KTConfiguredArticleVariant> setOf(const KTConfiguredArticleVariantList &variants)
{
    return QSet<KTConfiguredArticleVariant>(variants.begin(), variants.end());
}

bool matches(const KTConfiguredArticleVariant &variant, const KTArticleVariants &chosen)
{
    return variant.value() == chosen.value(variant.key(), QString());
}

} // namespace

KTConfiguredArticleVariantList::KTConfiguredArticleVariantList(const QDomElement &element)
{
    readVariants(element);
}

KTConfiguredArticleVariantList::KTConfiguredArticleVariantList(const KTXMLElement &element)
{
    readVariants(element);
}

KTConfiguredArticleVariantList::KTConfiguredArticleVariantList(const KTConfiguredArticleVariant &variant)
{
    appendIfValid(variant);
}

KTConfiguredArticleVariantList::~KTConfiguredArticleVariantList() = default;

KTConfiguredArticleVariantList KTConfiguredArticleVariantList::createFromCSV(const QString &text)
{
    KTConfiguredArticleVariantList variants;
    for (const QString &part : text.split(CSV_SEPARATOR, Qt::SkipEmptyParts))
        variants.appendIfValid(KTConfiguredArticleVariant(part));
    return variants;
}

KTConfiguredArticleVariantList
KTConfiguredArticleVariantList::createForProduction(const KTConfiguredArticleVariant &variant)
{
    // Splitting drops empty parts, so there is no invalid option to skip.
    return createFromReduced(variant);
}

KTConfiguredArticleVariantList
KTConfiguredArticleVariantList::createFromReduced(const KTConfiguredArticleVariant &variant)
{
    KTConfiguredArticleVariantList variants;
    const QString key = variant.key();
    const QString value = variant.value();
    KTVariantPairs::forEachPart(key, value, [&](QStringView keyPart, QStringView valuePart) {
        variants.append(KTConfiguredArticleVariant(KTVariantPairs::partText(keyPart, key),
                                                   KTVariantPairs::partText(valuePart, value)));
    });
    return variants;
}

void KTConfiguredArticleVariantList::readVariants(const QDomElement &element)
{
    readVariants(KTXMLElement(element));
}

void KTConfiguredArticleVariantList::readVariants(const KTXMLElement &element)
{
    clear();
    const KTXMLElement forms = element.firstChildElement(FORMS_ELEMENT);
    for (KTXMLElement form = forms.firstChildElement(FORM_ELEMENT); !form.isNull();
         form = form.nextSiblingElement(FORM_ELEMENT)) {
        appendIfValid(KTConfiguredArticleVariant(form));
    }
}

QStringList KTConfiguredArticleVariantList::keys() const
{
    QStringList keys;
    for (const KTConfiguredArticleVariant &variant : *this)
        keys.append(variant.key());
    keys.removeDuplicates();
    keys.sort();
    return keys;
}

KTConfiguredArticleVariantList KTConfiguredArticleVariantList::filter(const QString &key) const
{
    return filtered([&key](const KTConfiguredArticleVariant &variant) { return variant.key() == key; });
}

bool KTConfiguredArticleVariantList::contains(const KTConfiguredArticleVariant &variant) const
{
    return std::find(begin(), end(), variant) != end();
}

bool KTConfiguredArticleVariantList::contains(const KTConfiguredArticleVariantList &other) const
{
    return setOf(*this).contains(setOf(other));
}

bool KTConfiguredArticleVariantList::contains(const KTArticleVariants &chosen) const
{
    const QStringList keys = chosen.keys();
    QVarLengthArray<bool, 64> isOffered(keys.size());
    std::fill(isOffered.begin(), isOffered.end(), false);
    KTSize missing = keys.size();
    for (auto variant = begin(); variant != end() && missing > 0; ++variant) {
        if (!matches(*variant, chosen))
            continue;
        // An option with an empty value matches without a chosen key.
        const auto key = std::lower_bound(keys.begin(), keys.end(), variant->key());
        if (key == keys.end() || *key != variant->key())
            continue;
        bool &isKeyOffered = isOffered[static_cast<int>(key - keys.begin())];
        missing -= isKeyOffered ? 0 : 1;
        isKeyOffered = true;
    }
    return missing == 0;
}

bool KTConfiguredArticleVariantList::containsAtLeastOne(const KTConfiguredArticleVariantList &other) const
{
    return isEmpty() || other.isEmpty() || setOf(*this).intersects(setOf(other));
}

KTConfiguredArticleVariant KTConfiguredArticleVariantList::variant(const KTArticleVariants &chosen) const
{
    return firstWhere(
        [&chosen](const KTConfiguredArticleVariant &variant) { return matches(variant, chosen); });
}

KTConfiguredArticleVariant KTConfiguredArticleVariantList::variantByKey(const QString &key) const
{
    return firstWhere([&key](const KTConfiguredArticleVariant &variant) { return variant.key() == key; });
}

KTConfiguredArticleVariant KTConfiguredArticleVariantList::variantByValue(const QString &value) const
{
    return firstWhere(
        [&value](const KTConfiguredArticleVariant &variant) { return variant.value() == value; });
}

KTConfiguredArticleVariant KTConfiguredArticleVariantList::notAccountableVariant() const
{
    return firstWhere([](const KTConfiguredArticleVariant &variant) { return variant.isNotAccountable(); });
}

KTArticleVariants KTConfiguredArticleVariantList::defaultVariants() const
{
    KTArticleVariants variants;
    for (const KTConfiguredArticleVariant &variant : *this) {
        if (variant.isDefault())
            variants.insert(variant.toArticleVariants());
    }
    return variants;
}

QStringList KTConfiguredArticleVariantList::visibleNames(const KTArticleVariants &chosen) const
{
    QStringList names;
    for (const KTConfiguredArticleVariant &variant : *this) {
        if (matches(variant, chosen))
            names.append(QStringLiteral("%1: %2").arg(variant.keyName(), variant.visibleName()));
    }
    names.sort();
    return names;
}

QStringList KTConfiguredArticleVariantList::editorNames(const KTArticleVariants &chosen) const
{
    QStringList names;
    for (const KTConfiguredArticleVariant &variant : *this) {
        if (matches(variant, chosen))
            names.append(variant.editorName());
    }
    names.sort();
    return names;
}

KTArticleVariantsList KTConfiguredArticleVariantList::possibleBoxStyles() const
{
    const KTConfiguredArticleVariantList photos = filter(KTArticleVariants::coverFotoKeyName());
    KTArticleVariantsList styles;
    for (const KTConfiguredArticleVariant &box : filter(KTArticleVariants::pictureBoxKeyName())) {
        if (photos.isEmpty())
            styles.append(box.toArticleVariants());
        for (const KTConfiguredArticleVariant &photo : photos) {
            KTArticleVariants style = box.toArticleVariants();
            style.insert(photo.toArticleVariants());
            styles.append(style);
        }
    }
    return styles;
}

QString KTConfiguredArticleVariantList::joinForOrderTxt() const
{
    qint64 size = 0;
    for (const KTConfiguredArticleVariant &variant : *this)
        size += KTVariantPairs::writtenSize(variant.key(), variant.value());
    KTVariantPairs::JoinedPairs pairs(KTVariantPairs::ORDER_TXT_SEPARATOR, size);
    for (const KTConfiguredArticleVariant &variant : *this) {
        KTVariantPairs::forEachPart(
            variant.key(), variant.value(),
            [&pairs](QStringView key, QStringView value) { pairs.append(key, value); });
    }
    return pairs.text();
}

void KTConfiguredArticleVariantList::intersect(const KTConfiguredArticleVariantList &other,
                                               bool adoptWhenEmpty)
{
    if (isEmpty() && adoptWhenEmpty)
        *this = other;
    else
        *this = filtered([offered = setOf(other)](const KTConfiguredArticleVariant &variant) {
            return offered.contains(variant);
        });
}

template <typename Predicate>
KTConfiguredArticleVariantList KTConfiguredArticleVariantList::filtered(Predicate predicate) const
{
    KTConfiguredArticleVariantList variants;
    std::copy_if(begin(), end(), std::back_inserter(variants), predicate);
    return variants;
}

template <typename Predicate>
KTConfiguredArticleVariant KTConfiguredArticleVariantList::firstWhere(Predicate predicate) const
{
    const auto found = std::find_if(begin(), end(), predicate);
    return found == end() ? KTConfiguredArticleVariant() : *found;
}

void KTConfiguredArticleVariantList::appendIfValid(const KTConfiguredArticleVariant &variant)
{
    if (variant.isValid())
        append(variant);
}

void KTConfiguredArticleVariantList::removeInvalid()
{
    const auto isInvalid = [](const KTConfiguredArticleVariant &variant) { return !variant.isValid(); };
    // Asked first, so that a list without invalid options goes on sharing its data.
    if (std::any_of(cbegin(), cend(), isInvalid))
        erase(std::remove_if(begin(), end(), isInvalid), end());
}

QDebug operator<<(QDebug stream, const KTConfiguredArticleVariantList &variants)
{
    stream << "KTConfiguredArticleVariantList: [";
    for (int i = 0; i < variants.size(); ++i)
        stream << i << ": " << variants.at(i);
    return stream << " ]";
}
