#include "KTHtmlWriter.h"

#include "KTFileName.h"
#include "KTTerminalText.h"
#include "KTToolText.h"

#include <KTQtTypes.h>

#include <QCryptographicHash>

#include <cmath>

namespace {

// A comment of CSS and of JavaScript around each mark, so that they are nothing there.
const QString FENCE_BEGIN = QStringLiteral("/*");
const QString FENCE_END = QStringLiteral("*/");
const QString MARK_BEGIN = QStringLiteral("<![CDATA[");
const QString MARK_END = QStringLiteral("]]>");
constexpr int DECIMALS = 2;

QString fenced(const QString &content)
{
    return FENCE_END + QLatin1Char('\n') + content + FENCE_BEGIN;
}

} // namespace

KTHtmlWriter::KTHtmlWriter(QIODevice *device)
    : myXml(device)
{
}

void KTHtmlWriter::writeDocumentType()
{
    myXml.writeDTD(QStringLiteral("<!DOCTYPE html>"));
    line();
}

void KTHtmlWriter::start(const char *name, const char *style)
{
    myXml.writeStartElement(QLatin1String(name));
    if (style)
        myXml.writeAttribute(QStringLiteral("class"), QLatin1String(style));
}

void KTHtmlWriter::end()
{
    myXml.writeCharacters(QString());
    myXml.writeEndElement();
}

void KTHtmlWriter::empty(const char *name, const char *style)
{
    myXml.writeEmptyElement(QLatin1String(name));
    if (style)
        myXml.writeAttribute(QStringLiteral("class"), QLatin1String(style));
}

void KTHtmlWriter::attribute(const char *name, const QString &value)
{
    myXml.writeAttribute(QLatin1String(name), visible(value));
}

void KTHtmlWriter::attribute(const char *name, int value)
{
    myXml.writeAttribute(QLatin1String(name), QString::number(value));
}

void KTHtmlWriter::attribute(const char *name, double value)
{
    myXml.writeAttribute(QLatin1String(name), number(value));
}

void KTHtmlWriter::text(const QString &text)
{
    myXml.writeCharacters(visible(text));
}

void KTHtmlWriter::element(const char *name, const QString &text, const char *style)
{
    start(name, style);
    this->text(text);
    end();
}

void KTHtmlWriter::foreign(const char *name, const QString &text, const char *style)
{
    start(name, style);
    attribute("dir", QStringLiteral("auto"));
    this->text(shortened(text));
    end();
}

void KTHtmlWriter::line()
{
    myXml.writeCharacters(QStringLiteral("\n"));
}

void KTHtmlWriter::code(const char *name, const QString &content)
{
    start(name);
    myXml.writeCharacters(FENCE_BEGIN);
    myXml.writeCDATA(fenced(content));
    myXml.writeCharacters(FENCE_END);
    myXml.writeEndElement();
}

QString KTHtmlWriter::codeHash(const QString &content)
{
    const QString whole = FENCE_BEGIN + MARK_BEGIN + fenced(content) + MARK_END + FENCE_END;
    const QByteArray hash = QCryptographicHash::hash(whole.toUtf8(), QCryptographicHash::Sha256);
    return QStringLiteral("'sha256-%1'").arg(QString::fromLatin1(hash.toBase64()));
}

QString KTHtmlWriter::shortened(const QString &text, int length)
{
    if (text.size() <= length)
        return text;
    // The two halves of a character stay together.
    const int end = text.at(length).isLowSurrogate() ? length - 1 : length;
    return KTToolText::tr("%1… (%2 characters)").arg(text.left(end), QString::number(text.size()));
}

QString KTHtmlWriter::visible(const QString &text)
{
    return KTFileName::escaped(KTTerminalText::escaped(text));
}

QString KTHtmlWriter::number(double value)
{
    QString text = QString::number(std::isfinite(value) ? value : 0.0, 'f', DECIMALS);
    KTSize length = text.size();
    while (text.at(length - 1) == QLatin1Char('0'))
        --length;
    text.truncate(text.at(length - 1) == QLatin1Char('.') ? length - 1 : length);
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}
