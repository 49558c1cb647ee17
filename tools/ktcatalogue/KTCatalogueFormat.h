#pragma once

#include <QHash>
#include <QStringList>
#include <QStringView>
#include <QVector>

/** The elements that the library reads. */
enum class KTElementKind {
    Unread,
    Catalogue,
    Article,
    Composition,
    Spine,
    Page,
    Barcodes,
    Barcode,
    Forms,
    Form,
};

/** How an attribute's text is read. */
enum class KTAttributeType {
    Text,
    Keywords,
    Integer,
    Number,
    Boolean,
    Unit,
    Color,
};

/** Attributes that mean something together with others. */
enum class KTAttributeRole {
    ArtId,
    Id,
    ArticleClass,
    ProductName,
    PriceClass,
    ShippingGroup,
    Pages,
    MaxPages,
    PageStep,
    Pieces,
    Units,
    PackagesPerBlock,
    PageNr,
    PositionX,
    PositionY,
    Width,
    Height,
    Image,
    Key,
    Value,
    Preselected,
    Other,
};

/** An element that the library reads. */
struct KTElementRow
{
    KTElementKind kind;
    const char *name;
    KTElementKind parent;
    /** Whether the library reads only the first one in its parent. */
    bool isSingle;
};

/** An attribute that the library reads. */
struct KTAttributeRow
{
    KTElementKind element;
    const char *name;
    KTAttributeType type;
    KTAttributeRole role;
    /** What the library takes in place of an unreadable text, in words. */
    const char *replacement;
};

/** What the library reads from a catalogue: one table of elements and one of attributes. */
class KTCatalogueFormat
{
public:
    static const KTCatalogueFormat &instance();

    /** The element with the name in the parent; null when nothing reads it there. */
    const KTElementRow *element(KTElementKind parent, QStringView name) const;
    QString elementName(KTElementKind kind) const;
    /** The name of the element that the one with this name belongs into. */
    QString parentName(const QString &name) const;
    /** The attribute of the element; null when nothing reads it. */
    const KTAttributeRow *attribute(KTElementKind element, QStringView name) const;

    const QVector<KTAttributeRow> &attributes() const { return myAttributes; }
    /** The name of the attributes with the role, which is the same in each element. */
    QString attributeName(KTAttributeRole role) const { return myRoleNames.at(static_cast<int>(role)); }
    QStringList elementNames() const;
    QStringList attributeNames(KTElementKind element) const;

private:
    KTCatalogueFormat();

    QVector<KTAttributeRow> myAttributes;
    /** The attributes by name, for each element; the names are views of the keys' own texts. */
    QVector<QHash<QStringView, const KTAttributeRow *>> myIndex;
    QStringList myNames;
    QVector<QString> myRoleNames;
};
