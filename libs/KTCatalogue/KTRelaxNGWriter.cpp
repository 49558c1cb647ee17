#include "KTRelaxNGWriter.h"

#include "KTSchemaType.h"

namespace {

const QString NAMESPACE = QStringLiteral("http://relaxng.org/ns/structure/1.0");
const QString ANNOTATIONS = QStringLiteral("http://relaxng.org/ns/compatibility/annotations/1.0");
const QString DATA_TYPES = QStringLiteral("http://www.w3.org/2001/XMLSchema-datatypes");
const QString LANGUAGE = QStringLiteral("xml:lang");

const QString NAME = QStringLiteral("name");
const QString TYPE = QStringLiteral("type");
const QString CHOICE = QStringLiteral("choice");
const QString DATA = QStringLiteral("data");
const QString DEFINE = QStringLiteral("define");
const QString ELEMENT = QStringLiteral("element");
const QString ATTRIBUTE = QStringLiteral("attribute");
const QString OPTIONAL = QStringLiteral("optional");
const QString ZERO_OR_MORE = QStringLiteral("zeroOrMore");
const QString ANY_NAME = QStringLiteral("anyName");
const QString EXCEPT = QStringLiteral("except");
const QString TEXT = QStringLiteral("text");
const QString STRING = QStringLiteral("string");
const QString PATTERN = QStringLiteral("pattern");

/** The definition of any element that nothing reads, and of what it holds. */
const QString OTHER_ELEMENT = QStringLiteral("other-element");
const QString ANYTHING = QStringLiteral("anything");

} // namespace

KTRelaxNGWriter::KTRelaxNGWriter(QIODevice *device)
    : myWriter(device)
{
    myWriter.setAutoFormatting(true);
    myWriter.setAutoFormattingIndent(2);
}

bool KTRelaxNGWriter::write()
{
    myWriter.writeStartDocument();
    myWriter.writeDefaultNamespace(NAMESPACE);
    myWriter.writeNamespace(ANNOTATIONS, QStringLiteral("a"));
    start(QStringLiteral("grammar"), QStringLiteral("datatypeLibrary"), DATA_TYPES);
    myWriter.writeAttribute(LANGUAGE, KTSchemaText::language());
    writeDocumentation(KTSchemaText::title());
    start(QStringLiteral("start"));
    writeRef(KTCatalogueFormat::elementName(KTElementKind::Catalogue));
    end();
    for (const KTElementRow &row : KTCatalogueFormat::elements())
        writeElement(row);
    writeOtherElements();
    for (const KTSchemaType &type : KTSchemaType::all())
        writeType(type);
    myWriter.writeEndDocument();
    return !myWriter.hasError();
}

void KTRelaxNGWriter::start(const QString &element)
{
    myWriter.writeStartElement(NAMESPACE, element);
}

void KTRelaxNGWriter::start(const QString &element, const QString &attribute, const QString &value)
{
    start(element);
    myWriter.writeAttribute(attribute, value);
}

void KTRelaxNGWriter::writeRef(const QString &name)
{
    myWriter.writeEmptyElement(NAMESPACE, QStringLiteral("ref"));
    myWriter.writeAttribute(NAME, name);
}

void KTRelaxNGWriter::writeText(const QString &element, const QString &text)
{
    myWriter.writeTextElement(NAMESPACE, element, text);
}

/** Stands first in what it is about, but behind a value, which has no place for it. */
void KTRelaxNGWriter::writeDocumentation(const QString &text)
{
    myWriter.writeStartElement(ANNOTATIONS, QStringLiteral("documentation"));
    myWriter.writeCharacters(text);
    end();
}

void KTRelaxNGWriter::writeParam(const QString &name, const QString &value)
{
    start(QStringLiteral("param"), NAME, name);
    myWriter.writeCharacters(value);
    end();
}

void KTRelaxNGWriter::writeType(const KTSchemaType &type)
{
    start(DEFINE, NAME, type.name);
    writeDocumentation(type.documentation);
    start(CHOICE);
    for (const KTSchemaValue &value : type.values) {
        start(QStringLiteral("value"), TYPE, STRING);
        myWriter.writeCharacters(value.text);
        end();
        writeDocumentation(value.documentation);
    }
    if (type.base.name) {
        start(DATA, TYPE, QString::fromLatin1(type.base.name));
        if (type.base.minimum)
            writeParam(QStringLiteral("minInclusive"), QString::fromLatin1(type.base.minimum));
        if (type.base.maximum)
            writeParam(QStringLiteral("maxInclusive"), QString::fromLatin1(type.base.maximum));
        end();
    }
    if (!type.patterns.isEmpty()) {
        start(DATA, TYPE, STRING);
        for (const QString &pattern : type.patterns)
            writeParam(PATTERN, pattern);
        end();
    }
    if (type.isOpen)
        myWriter.writeEmptyElement(NAMESPACE, TEXT);
    end();
    end();
}

void KTRelaxNGWriter::writeElement(const KTElementRow &row)
{
    start(DEFINE, NAME, row.name.toString());
    start(ELEMENT, NAME, row.name.toString());
    writeDocumentation(KTSchemaText::ofElement(row));
    // The order of attributes never matters. But of optional ones in a group libxml2 tries every subset, and
    // so needs twice the time for each further attribute; of those in an interleave it does not.
    start(QStringLiteral("interleave"));
    for (const KTAttributeRow &attribute : KTCatalogueFormat::attributes()) {
        if (attribute.element == row.kind)
            writeAttribute(attribute);
    }
    writeOtherAttributes(KTCatalogueFormat::attributeNames(row.kind));
    start(ZERO_OR_MORE);
    start(CHOICE);
    myWriter.writeEmptyElement(NAMESPACE, TEXT);
    for (const QString &child : KTCatalogueFormat::elementNames(row.kind))
        writeRef(child);
    writeRef(OTHER_ELEMENT);
    end();
    end();
    end();
    end();
    end();
}

void KTRelaxNGWriter::writeAttribute(const KTAttributeRow &row)
{
    if (!row.isNeeded)
        start(OPTIONAL);
    start(ATTRIBUTE, NAME, row.name.toString());
    writeDocumentation(KTSchemaText::ofAttribute(row));
    const QString type = KTSchemaType::nameOf(row);
    if (type.isEmpty())
        myWriter.writeEmptyElement(NAMESPACE, TEXT);
    else
        writeRef(type);
    end();
    if (!row.isNeeded)
        end();
}

void KTRelaxNGWriter::writeOtherAttributes(const QStringList &known)
{
    start(ZERO_OR_MORE);
    start(ATTRIBUTE);
    start(ANY_NAME);
    if (!known.isEmpty()) {
        start(EXCEPT);
        for (const QString &name : known)
            writeText(NAME, name);
        end();
    }
    end();
    myWriter.writeEmptyElement(NAMESPACE, TEXT);
    end();
    end();
}

/** Elements of any name but those that are read somewhere, with anything inside. */
void KTRelaxNGWriter::writeOtherElements()
{
    start(DEFINE, NAME, OTHER_ELEMENT);
    start(ELEMENT);
    start(ANY_NAME);
    start(EXCEPT);
    for (const KTElementRow &row : KTCatalogueFormat::elements())
        writeText(NAME, row.name.toString());
    end();
    end();
    writeRef(ANYTHING);
    end();
    end();

    start(DEFINE, NAME, ANYTHING);
    writeOtherAttributes({});
    start(ZERO_OR_MORE);
    start(CHOICE);
    myWriter.writeEmptyElement(NAMESPACE, TEXT);
    start(ELEMENT);
    myWriter.writeEmptyElement(NAMESPACE, ANY_NAME);
    writeRef(ANYTHING);
    end();
    end();
    end();
    end();
}
