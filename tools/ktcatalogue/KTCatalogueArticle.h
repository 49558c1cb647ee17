#pragma once

#include "KTCatalogueScanner.h"

#include <QDomDocument>
#include <QDomElement>
#include <QStringView>
#include <QVector>

/**
 * One article of a catalogue: its elements with their attributes, without texts, which articles have none of.
 *
 * Everything stands in a few lists that the next article fills anew, because most of the time of reading a
 * catalogue would be spent on taking and freeing memory.
 */
class KTCatalogueArticle
{
public:
    /** A part of the article's text. */
    struct Text
    {
        int begin;
        int length;
    };
    struct Attribute
    {
        Text name;
        Text value;
        KTFilePosition position;
    };
    struct Element
    {
        Text name;
        /** Of the start tag. */
        KTFilePosition position;
        /** The place of the parent in elements(); -1 for the first one. */
        int parent;
        int firstAttribute;
        int attributeCount;
    };

    /** In document order; the first one is the article itself. */
    const QVector<Element> &elements() const { return myElements; }
    const QVector<Attribute> &attributes() const { return myAttributes; }
    /** Valid until the article changes. */
    QStringView view(Text text) const { return QStringView(myText).mid(text.begin, text.length); }

    /** The article as the library reads it; built when it is asked for. */
    QDomElement element() const;

    void clear();
    /** Appends an element and leaves its attributes to be appended. */
    void appendElement(const QStringRef &name, const KTFilePosition &position, int parent);
    void appendAttribute(const QStringRef &name, const QStringRef &value, const KTFilePosition &position);

private:
    Text append(const QStringRef &text);

    QString myText;
    QVector<Element> myElements;
    QVector<Attribute> myAttributes;
    mutable QDomDocument myDocument;
};
