#include "KTXSDWriter.h"

#include "KTSchemaType.h"

namespace {

const QString NAMESPACE = QStringLiteral("http://www.w3.org/2001/XMLSchema");
const QString NAME = QStringLiteral("name");
const QString BASE = QStringLiteral("base");
const QString TYPE = QStringLiteral("type");
const QString VALUE = QStringLiteral("value");
const QString XPATH = QStringLiteral("xpath");
const QString STRING = QStringLiteral("xs:string");
const QString ANY_NAMESPACE = QStringLiteral("##any");
const QString UNBOUNDED = QStringLiteral("unbounded");
const QString MISPLACED_ATTRIBUTE = QStringLiteral("@belongs-elsewhere");

/** Whether a validator may add the default to an element that has no such attribute. */
bool canStandAlone(const KTAttributeRow &row)
{
    // Whether there is a slipcase depends on whether its width is there.
    return row.id != KTAttributeId::PageSlipcaseWidth && !row.isNeeded && !row.writtenDefault().isEmpty();
}

} // namespace

KTXSDWriter::KTXSDWriter(QIODevice *device)
    : myWriter(device)
{
    myWriter.setAutoFormatting(true);
    myWriter.setAutoFormattingIndent(2);
}

bool KTXSDWriter::write()
{
    myWriter.writeStartDocument();
    myWriter.writeNamespace(NAMESPACE, QStringLiteral("xs"));
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("schema"));
    writeDocumentation(KTSchemaText::title());
    for (const KTElementRow &row : KTCatalogueFormat::elements())
        writeElement(row);
    for (const KTSchemaType &type : KTSchemaType::all())
        writeType(type);
    myWriter.writeEndDocument();
    return !myWriter.hasError();
}

void KTXSDWriter::writeDocumentation(const QString &text)
{
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("annotation"));
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("documentation"));
    myWriter.writeAttribute(QStringLiteral("xml:lang"), KTSchemaText::language());
    myWriter.writeCharacters(text);
    myWriter.writeEndElement();
    myWriter.writeEndElement();
}

/** A union of what is offered, of what XML Schema has a type for, and of what is left. */
void KTXSDWriter::writeType(const KTSchemaType &type)
{
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("simpleType"));
    myWriter.writeAttribute(NAME, type.name);
    writeDocumentation(type.documentation);
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("union"));
    if (type.isOpen)
        myWriter.writeAttribute(QStringLiteral("memberTypes"), STRING);
    if (type.base.name) {
        myWriter.writeStartElement(NAMESPACE, QStringLiteral("simpleType"));
        myWriter.writeStartElement(NAMESPACE, QStringLiteral("restriction"));
        myWriter.writeAttribute(BASE, QStringLiteral("xs:") + QLatin1String(type.base.name));
        const std::pair<const char *, const char *> bounds[] = {
            {"minInclusive", type.base.minimum},
            {"maxInclusive", type.base.maximum}
        };
        for (const auto &[name, bound] : bounds) {
            if (!bound)
                continue;
            myWriter.writeEmptyElement(NAMESPACE, QString::fromLatin1(name));
            myWriter.writeAttribute(VALUE, QString::fromLatin1(bound));
        }
        myWriter.writeEndElement();
        myWriter.writeEndElement();
    }
    if (!type.values.isEmpty()) {
        myWriter.writeStartElement(NAMESPACE, QStringLiteral("simpleType"));
        myWriter.writeStartElement(NAMESPACE, QStringLiteral("restriction"));
        myWriter.writeAttribute(BASE, STRING);
        for (const KTSchemaValue &value : type.values) {
            myWriter.writeStartElement(NAMESPACE, QStringLiteral("enumeration"));
            myWriter.writeAttribute(VALUE, value.text);
            writeDocumentation(value.documentation);
            myWriter.writeEndElement();
        }
        myWriter.writeEndElement();
        myWriter.writeEndElement();
    }
    if (!type.patterns.isEmpty())
        writePatterns(type.patterns);
    myWriter.writeEndElement();
    myWriter.writeEndElement();
}

/** Patterns in one restriction are alternatives, so each that must match too has one of its own. */
void KTXSDWriter::writePatterns(const QStringList &patterns)
{
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("simpleType"));
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("restriction"));
    const QStringList inner = patterns.mid(1);
    if (inner.isEmpty())
        myWriter.writeAttribute(BASE, STRING);
    else
        writePatterns(inner);
    myWriter.writeEmptyElement(NAMESPACE, QStringLiteral("pattern"));
    myWriter.writeAttribute(VALUE, patterns.constFirst());
    myWriter.writeEndElement();
    myWriter.writeEndElement();
}

void KTXSDWriter::writeElement(const KTElementRow &row)
{
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("element"));
    myWriter.writeAttribute(NAME, row.name.toString());
    writeDocumentation(KTSchemaText::ofElement(row));
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("complexType"));
    myWriter.writeAttribute(QStringLiteral("mixed"), QStringLiteral("true"));
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("sequence"));
    myWriter.writeEmptyElement(NAMESPACE, QStringLiteral("any"));
    myWriter.writeAttribute(QStringLiteral("namespace"), ANY_NAMESPACE);
    myWriter.writeAttribute(QStringLiteral("processContents"), QStringLiteral("lax"));
    myWriter.writeAttribute(QStringLiteral("minOccurs"), QStringLiteral("0"));
    myWriter.writeAttribute(QStringLiteral("maxOccurs"), UNBOUNDED);
    myWriter.writeEndElement();
    for (const KTAttributeRow &attribute : KTCatalogueFormat::attributes()) {
        if (attribute.element == row.kind)
            writeAttribute(attribute);
    }
    myWriter.writeEmptyElement(NAMESPACE, QStringLiteral("anyAttribute"));
    myWriter.writeAttribute(QStringLiteral("namespace"), ANY_NAMESPACE);
    myWriter.writeAttribute(QStringLiteral("processContents"), QStringLiteral("lax"));
    myWriter.writeEndElement();
    writeMisplaced(row);
    myWriter.writeEndElement();
}

void KTXSDWriter::writeAttribute(const KTAttributeRow &row)
{
    const QString type = KTSchemaType::nameOf(row);
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("attribute"));
    myWriter.writeAttribute(NAME, row.name.toString());
    myWriter.writeAttribute(TYPE, type.isEmpty() ? STRING : type);
    if (row.isNeeded)
        myWriter.writeAttribute(QStringLiteral("use"), QStringLiteral("required"));
    if (canStandAlone(row))
        myWriter.writeAttribute(QStringLiteral("default"), row.writtenDefault());
    writeDocumentation(KTSchemaText::ofAttribute(row));
    myWriter.writeEndElement();
}

/** Refuses children that belong into another element. The key's name is what a validator says of it. */
void KTXSDWriter::writeMisplaced(const KTElementRow &row)
{
    QStringList misplaced;
    for (const KTElementRow &other : KTCatalogueFormat::elements()) {
        if (other.parent != row.kind)
            misplaced.append(other.name.toString());
    }
    myWriter.writeStartElement(NAMESPACE, QStringLiteral("key"));
    myWriter.writeAttribute(NAME, QStringLiteral("not-in-") + row.name.toString());
    myWriter.writeEmptyElement(NAMESPACE, QStringLiteral("selector"));
    myWriter.writeAttribute(XPATH, misplaced.join(QLatin1Char('|')));
    myWriter.writeEmptyElement(NAMESPACE, QStringLiteral("field"));
    myWriter.writeAttribute(XPATH, MISPLACED_ATTRIBUTE);
    myWriter.writeEndElement();
}
