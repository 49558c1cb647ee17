#pragma once

#include "KTFilePosition.h"
#include "ktcatalogue_export.h"

#include <KTXMLFragment.h>

#include <QByteArray>
#include <QVector>

/**
 * One article of a catalogue as it stands in the file: its elements with their attributes, and their places.
 *
 * KTCatalogueReader fills it and uses its memory for the next article again. Elements and attributes are
 * named by their index in the fragment.
 */
class KTCATALOGUE_EXPORT KTCatalogueArticle
{
public:
    const KTXMLFragment &fragment() const { return myFragment; }
    /** The article's own element, for the library's readers; valid until the article changes. */
    KTXMLElement root() const { return myFragment.element(); }

    /** From "<" to behind the end tag, or to behind the tag where there is no other. */
    KTFileRange elementRange(int element) const;
    /** The start tag, from "<" to behind ">". */
    KTFileRange tagRange(int element) const;
    /** From the attribute's name to behind its closing quote. */
    KTFileRange attributeRange(int element, int attribute) const;
    /** What stands between the attribute's quotes. */
    KTFileRange valueRange(int element, int attribute) const;

private:
    friend class KTCatalogueReaderImpl;

    struct Tag
    {
        /** In myTags. */
        int begin;
        int end;
        KTFilePosition position;
        /** Behind the element. */
        KTFilePosition elementEnd;
    };
    /** Places in myTags; the attribute ends behind the quote behind its value. */
    struct Place
    {
        int nameBegin;
        int nameEnd;
        int valueBegin;
        int valueEnd;
    };

    KTFileRange rangeInTag(int element, int begin, int end) const;

    KTXMLFragment myFragment;
    /** The start tags in UTF-8, one behind the other. */
    QByteArray myTags;
    QVector<Tag> myTagPlaces;
    QVector<Place> myAttributePlaces;
    KTCharacterWidth myWidth = KTCharacterWidth::Utf8;
};
