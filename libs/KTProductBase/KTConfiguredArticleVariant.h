#pragma once

#include "KTArticleVariants.h"

#include <KTQtTypes.h>
#include <KTSpotColor.h>

#include <QColor>
#include <QSharedDataPointer>

class KTConfiguredArticleVariantImpl;
class KTXMLElement;
class QDomElement;

/**
 * One option as the catalogue offers it: key and value for the order, and what the dialogs show for them.
 *
 * Copies share their data until one of them changes. A moved-from option may only be assigned to or
 * destroyed. An option built in code counts as preselected, one read from the catalogue only when it says so.
 */
class KTPRODUCTBASE_EXPORT KTConfiguredArticleVariant
{
public:
    /** An empty option: invalid, but preselected. */
    KTConfiguredArticleVariant();
    /**
     * Reads the attributes of a "form" element. Missing texts are empty, missing flags false; a colour that
     * is missing or unknown (see QColor::setNamedColor()) is invalid.
     */
    KTConfiguredArticleVariant(const QDomElement &element);
    KTConfiguredArticleVariant(const KTXMLElement &element);
    KTConfiguredArticleVariant(const QString &key, const QString &value);
    /** From a text like "alcolor:black"; without exactly one ":" key and value stay empty. */
    KTConfiguredArticleVariant(const QString &keywordString);
    KTConfiguredArticleVariant(const KTConfiguredArticleVariant &other);
    KTConfiguredArticleVariant(KTConfiguredArticleVariant &&other) noexcept;
    KTConfiguredArticleVariant &operator=(const KTConfiguredArticleVariant &other);
    KTConfiguredArticleVariant &operator=(KTConfiguredArticleVariant &&other) noexcept;
    ~KTConfiguredArticleVariant();

    QString key() const;
    QString value() const;
    /** The display name of the key. */
    QString keyName() const;
    /** The display name of the value; empty for an invalid option. */
    QString visibleName() const;
    /** The name of the editor that offers the option. */
    QString editorName() const;
    /** A reference to the preview image. */
    QString preview() const;
    /** The colour of the swatch; invalid when none was given. */
    QColor color() const;
    /** True for a preselected option. */
    bool isDefault() const;
    /** True for an option that is not charged. */
    bool isNotAccountable() const;
    /** True when neither key nor value is empty. */
    bool isValid() const;
    /** True when the value is the written keyword of the spot colour. */
    bool isSpotColor(const KTSpotColor &spot) const;
    /**
     * Rich text of key name, swatch and value name; empty without a key name. The names are taken over as
     * they are, so that HTML in them is HTML of the result.
     */
    [[nodiscard]] QString describe() const;
    /**
     * "key:value", or an empty text for an invalid option. This is not the order text, which expands compound
     * options: see KTConfiguredArticleVariantList::joinForOrderTxt().
     */
    [[nodiscard]] QString toString() const;
    /** The pair of key and value; empty for an invalid option. */
    [[nodiscard]] KTArticleVariants toArticleVariants() const;

    /** Takes over preview and colour of the other option. */
    void merge(const KTConfiguredArticleVariant &other);

    /** Compares key and value alone. */
    bool operator==(const KTConfiguredArticleVariant &other) const;
    bool operator!=(const KTConfiguredArticleVariant &other) const { return !(*this == other); }
    /** Orders by key name, as the dialogs list options; it disagrees with equality on purpose. */
    bool operator<(const KTConfiguredArticleVariant &other) const;

private:
    QSharedDataPointer<KTConfiguredArticleVariantImpl> myImpl;
};

Q_DECLARE_TYPEINFO(KTConfiguredArticleVariant, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTConfiguredArticleVariant)

/** Hashes key and value, as equality compares them. */
KTPRODUCTBASE_EXPORT KTHashValue qHash(const KTConfiguredArticleVariant &variant, KTHashValue seed = 0);
/** Writes "KTConfiguredArticleVariant: key: %1 value: %2 " as one string. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTConfiguredArticleVariant &variant);
