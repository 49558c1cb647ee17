#include "KTXMLBuilder.h"

#include <QDomDocument>
#include <QDomElement>
#include <QString>

QDomElement KTXMLBuilder::buildDomElement(QDomElement &parent, const QString &tag)
{
    if (parent.isNull())
        return QDomElement();
    return parent.appendChild(parent.ownerDocument().createElement(tag)).toElement();
}

QDomElement KTXMLBuilder::buildDomElement(QDomElement &parent, const QString &tag, const QString &text)
{
    QDomElement child = buildDomElement(parent, tag);
    if (!child.isNull())
        child.appendChild(child.ownerDocument().createTextNode(text));
    return child;
}
