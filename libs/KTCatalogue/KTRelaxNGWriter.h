#pragma once

#include "KTCatalogueFormat.h"

#include <QXmlStreamWriter>

struct KTSchemaType;

/** Writes the format as RELAX NG in its XML syntax. Not part of the library's interface. */
class KTRelaxNGWriter
{
public:
    explicit KTRelaxNGWriter(QIODevice *device);
    /** False when the device did not take everything. */
    bool write();

private:
    void start(const QString &element);
    /** With its only attribute. */
    void start(const QString &element, const QString &attribute, const QString &value);
    void end() { myWriter.writeEndElement(); }
    void writeRef(const QString &name);
    void writeText(const QString &element, const QString &text);
    void writeDocumentation(const QString &text);
    void writeParam(const QString &name, const QString &value);
    void writeType(const KTSchemaType &type);
    void writeElement(const KTElementRow &row);
    void writeAttribute(const KTAttributeRow &row);
    void writeOtherAttributes(const QStringList &known);
    void writeOtherElements();

    QXmlStreamWriter myWriter;
};
