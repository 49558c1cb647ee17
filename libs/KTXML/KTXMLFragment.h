#pragma once

#include "KTXMLElement.h"
#include "ktxml_export.h"

#include <QString>
#include <QStringView>
#include <QVector>

/**
 * A part of an XML document in a few flat lists, without texts between its tags.
 *
 * Whoever fills it can use it for the next part again, because most of the time of reading a large document
 * would be spent on taking and freeing memory.
 */
struct KTXML_EXPORT KTXMLFragment
{
    /** A part of the text. */
    struct Slice
    {
        int begin;
        int length;
    };
    /** An attribute as it stands in its element. */
    struct Attribute
    {
        Slice name;
        Slice value;
    };
    /** An element; its attributes lie side by side in the list of all. */
    struct Element
    {
        Slice name;
        /** The index of the parent; -1 for the first element. */
        int parent;
        int firstAttribute;
        int attributeCount;
        /** The index behind the last element inside. */
        int end;
    };

    /** The names and values of everything. */
    QString text;
    /** In document order; the first one holds all others. */
    QVector<Element> elements;
    QVector<Attribute> attributes;

    /** Valid until the fragment changes. */
    [[nodiscard]] QStringView view(Slice slice) const
    {
        return QStringView(text).mid(slice.begin, slice.length);
    }
    /** The element at the index; a null element where there is none. */
    [[nodiscard]] KTXMLElement element(int index = 0) const;
    /** Forgets the content, but keeps the memory. */
    void clear();
};
