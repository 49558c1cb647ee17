#pragma once

#include <QDomDocument>
#include <QDomElement>
#include <QString>

#include <cstddef>

/** A text as a QString, short enough for data rows. */
inline QString operator""_s(const char16_t *text, std::size_t size)
{
    return QString::fromUtf16(text, static_cast<int>(size));
}

namespace KTTest {

/** The document element of an XML text. It keeps the document alive. */
inline QDomElement element(const QString &xml)
{
    QDomDocument document;
    document.setContent(xml);
    return document.documentElement();
}

/** An element as XML text without line breaks. */
inline QString xml(const QDomElement &element)
{
    QDomDocument document;
    document.appendChild(document.importNode(element, true));
    return document.toString(-1);
}

} // namespace KTTest
