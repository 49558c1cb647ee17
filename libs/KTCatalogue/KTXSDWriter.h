#pragma once

#include "KTCatalogueFormat.h"

#include <QXmlStreamWriter>

struct KTSchemaType;

/**
 * Writes the format as W3C XML Schema 1.0. Not part of the library's interface.
 *
 * Beside named elements, XML Schema 1.0 has no place for elements of any other name, because it could not
 * tell which of both is meant; but the readers skip what they do not know. So each element takes any
 * children, and those that are declared are looked at wherever they stand. Which of them do not belong there
 * is said by a key: an element in the wrong place must have an attribute that there is none of.
 */
class KTXSDWriter
{
public:
    explicit KTXSDWriter(QIODevice *device);
    /** False when the device did not take everything. */
    bool write();

private:
    void writeDocumentation(const QString &text);
    void writeType(const KTSchemaType &type);
    void writePatterns(const QStringList &patterns);
    void writeElement(const KTElementRow &row);
    void writeAttribute(const KTAttributeRow &row);
    void writeMisplaced(const KTElementRow &row);

    QXmlStreamWriter myWriter;
};
