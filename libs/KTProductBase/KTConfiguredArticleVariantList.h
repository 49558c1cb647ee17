#pragma once

#include "KTArticleVariantsList.h"
#include "KTConfiguredArticleVariant.h"

#include <QList>

#include <initializer_list>
#include <type_traits>
#include <utility>

/**
 * The options that the catalogue offers for one article, in the order of their source.
 *
 * Every constructor and reader skips invalid options and keeps duplicates. "Matching" options of a choice are
 * those whose value is the one that the choice holds for their key.
 */
class KTPRODUCTBASE_EXPORT KTConfiguredArticleVariantList : public QList<KTConfiguredArticleVariant>
{
    template <typename T>
    using IfOption = std::enable_if_t<std::is_same_v<T, KTConfiguredArticleVariant>>;

public:
    KTConfiguredArticleVariantList() = default;
    /** See readVariants(). */
    KTConfiguredArticleVariantList(const QDomElement &element);
    KTConfiguredArticleVariantList(const KTXMLElement &element);
    KTConfiguredArticleVariantList(const KTConfiguredArticleVariant &variant);
    /**
     * The valid ones of several options. Templates, so that braces around an element, or around key and
     * value, go on meaning the constructors above.
     */
    template <typename T, typename = IfOption<T>>
    KTConfiguredArticleVariantList(const QList<T> &variants)
        : QList<KTConfiguredArticleVariant>(variants)
    {
        removeInvalid();
    }
    template <typename T, typename = IfOption<T>>
    KTConfiguredArticleVariantList(QList<T> &&variants)
        : QList<KTConfiguredArticleVariant>(std::move(variants))
    {
        removeInvalid();
    }
    template <typename T, typename = IfOption<T>>
    KTConfiguredArticleVariantList(std::initializer_list<T> variants)
        : QList<KTConfiguredArticleVariant>(variants)
    {
        removeInvalid();
    }
    KTConfiguredArticleVariantList(const KTConfiguredArticleVariantList &other) = default;
    KTConfiguredArticleVariantList(KTConfiguredArticleVariantList &&other) noexcept = default;
    KTConfiguredArticleVariantList &operator=(const KTConfiguredArticleVariantList &other) = default;
    KTConfiguredArticleVariantList &operator=(KTConfiguredArticleVariantList &&other) noexcept = default;
    virtual ~KTConfiguredArticleVariantList();

    /** Reads options like "alcolor:black", separated by ","; blanks are a part of the key or value. */
    [[nodiscard]] static KTConfiguredArticleVariantList createFromCSV(const QString &text);
    /**
     * Expands a compound option ("giftboxcolor;boxstyle" with "black;wood") into one option per key. Nothing
     * but key and value is taken over; a key and a value with different numbers of parts give an empty list.
     */
    [[nodiscard]] static KTConfiguredArticleVariantList
    createForProduction(const KTConfiguredArticleVariant &variant);
    /** The same expansion, for options reduced to key and value beforehand. */
    [[nodiscard]] static KTConfiguredArticleVariantList
    createFromReduced(const KTConfiguredArticleVariant &variant);

    /** Replaces the options by those of the "form" children of the element's first "forms" child. */
    void readVariants(const QDomElement &element);
    void readVariants(const KTXMLElement &element);

    /** The distinct keys, sorted by UTF-16 code units. */
    QStringList keys() const;
    /** The options with the key. */
    [[nodiscard]] KTConfiguredArticleVariantList filter(const QString &key) const;
    bool contains(const KTConfiguredArticleVariant &variant) const;
    /** True when each option of the other list is contained; so for an empty one. */
    bool contains(const KTConfiguredArticleVariantList &other) const;
    /** True when each pair of the choice is offered; so for an empty choice. */
    bool contains(const KTArticleVariants &chosen) const;
    /** True when the lists share an option; also when either is empty. */
    bool containsAtLeastOne(const KTConfiguredArticleVariantList &other) const;

    /** The first matching option, or an empty one. */
    KTConfiguredArticleVariant variant(const KTArticleVariants &chosen) const;
    /** The first option with the key, or an empty one. */
    KTConfiguredArticleVariant variantByKey(const QString &key) const;
    /** The first option with the value, or an empty one. */
    KTConfiguredArticleVariant variantByValue(const QString &value) const;
    /** The first option that is not charged, or an empty one. */
    KTConfiguredArticleVariant notAccountableVariant() const;

    /** The pairs of the preselected options; the last one of a key wins. */
    [[nodiscard]] KTArticleVariants defaultVariants() const;
    /** Key name and visible name ("Cover colour: Black") of the matching options, sorted. */
    QStringList visibleNames(const KTArticleVariants &chosen) const;
    /** The editor names of the matching options, sorted; duplicates are kept. */
    QStringList editorNames(const KTArticleVariants &chosen) const;
    /** Each box style with each cover photo option, or alone where there are none; box styles first. */
    [[nodiscard]] KTArticleVariantsList possibleBoxStyles() const;
    /** The expanded options like "alcolor:black" joined by ";", in list order. */
    [[nodiscard]] QString joinForOrderTxt() const;

    /** Keeps what the other list contains; an empty list may become a copy of the other instead. */
    void intersect(const KTConfiguredArticleVariantList &other, bool adoptWhenEmpty);

private:
    template <typename Predicate>
    KTConfiguredArticleVariantList filtered(Predicate predicate) const;
    template <typename Predicate>
    KTConfiguredArticleVariant firstWhere(Predicate predicate) const;

    void appendIfValid(const KTConfiguredArticleVariant &variant);
    void removeInvalid();
};

Q_DECLARE_METATYPE(KTConfiguredArticleVariantList)

/** Writes "KTConfiguredArticleVariantList: [", each option after its position, and " ]". */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTConfiguredArticleVariantList &variants);
