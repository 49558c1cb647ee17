#pragma once

#include "KTCatalogueArticle.h"
#include "KTCatalogueFormat.h"
#include "KTFinding.h"

#include <KTDistanceUnit.h>

#include <QVarLengthArray>

#include <array>
#include <initializer_list>

/**
 * The element of an article that is being checked: its attributes by their ids, and the place to report to.
 * Not part of the library's interface.
 *
 * Elements and attributes are named by their index in the article's fragment.
 */
class KTElementCursor
{
public:
    using Id = KTAttributeId;
    /** In place of an attribute: the element itself is meant, or there is no such attribute. */
    static constexpr int NO_ATTRIBUTE = -1;

    /** Goes to the first element and forgets the findings. */
    void begin(const KTCatalogueArticle &article);
    /** Goes to the element and finds its attributes; of one that nothing reads there are none. */
    void enter(int element, KTElementKind kind);

    const KTCatalogueArticle &article() const { return *myArticle; }
    /** For the library's readers. */
    KTXMLElement element() const { return fragment().element(myIndex); }
    /** The unit of the element's lengths, as the library takes it: an unknown one is the layout unit. */
    KTDistanceUnit unit() const;
    int index() const { return myIndex; }
    KTElementKind kind() const { return myKind; }
    int parent() const { return data().parent; }
    int line() const { return myArticle->elementRange(myIndex).begin.line; }
    QStringView name() const { return fragment().view(data().name); }

    /** The attributes of the element are those from the first one to before the end. */
    int firstAttribute() const { return data().firstAttribute; }
    int endOfAttributes() const { return data().firstAttribute + data().attributeCount; }
    QStringView nameOf(int attribute) const
    {
        return fragment().view(fragment().attributes.at(attribute).name);
    }
    QStringView valueOf(int attribute) const
    {
        return fragment().view(fragment().attributes.at(attribute).value);
    }

    /** Null for an attribute that nothing reads. */
    const KTAttributeRow *rowOf(int attribute) const { return myRows.at(attribute - firstAttribute()); }

    bool has(Id id) const { return attribute(id) != NO_ATTRIBUTE; }
    int attribute(Id id) const { return myAttributes[static_cast<std::size_t>(id)]; }
    /** The first of the attributes that is there. */
    int firstOf(std::initializer_list<Id> ids) const;
    /** The value of the attribute; null when it is missing. */
    QStringView value(Id id) const { return has(id) ? valueOf(attribute(id)) : QStringView(); }

    void report(KTRule rule, const QString &message, int attribute = NO_ATTRIBUTE)
    {
        reportAt(myIndex, rule, message, attribute);
    }
    void reportAt(int element, KTRule rule, const QString &message, int attribute = NO_ATTRIBUTE);
    /** What was reported, in the order of the places; without file. */
    QVector<KTFinding> findings(int articleId);

private:
    const KTXMLFragment &fragment() const { return myArticle->fragment(); }
    const KTXMLFragment::Element &data() const { return fragment().elements.at(myIndex); }

    const KTCatalogueArticle *myArticle = nullptr;
    int myIndex = 0;
    KTElementKind myKind = KTElementKind::Unread;
    std::array<int, KTCatalogueFormat::ATTRIBUTE_COUNT> myAttributes {};
    QVarLengthArray<const KTAttributeRow *, 32> myRows;
    QVector<KTFinding> myFindings;
};
