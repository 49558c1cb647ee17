#pragma once

#include "ktxml_export.h"

class QDomElement;
class QString;

/** Writes child elements. */
class KTXML_EXPORT KTXMLBuilder
{
public:
    /** Appends an empty child and returns it; under a null parent nothing happens and a null element returns.
     */
    static QDomElement buildDomElement(QDomElement &parent, const QString &tag);
    /** The same for a child that holds the text. */
    static QDomElement buildDomElement(QDomElement &parent, const QString &tag, const QString &text);
};
