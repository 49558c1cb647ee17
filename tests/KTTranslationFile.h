#pragma once

#include "KTTestSupport.h"

#include <QFile>
#include <QVector>

namespace KTTest {

/** A text in a file of Qt Linguist. */
struct Message
{
    QString context;
    QString source;
    QString translation;
    /** "unfinished", "vanished" or "obsolete", or nothing. */
    QString type;
};

/** All texts of the file; none where it cannot be read. */
inline QVector<Message> messagesIn(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QDomElement ts = KTTest::element(QString::fromUtf8(file.readAll()));
    const QDomNodeList elements = ts.elementsByTagName(u"message"_s);
    QVector<Message> messages;
    for (int i = 0; i < elements.size(); ++i) {
        const QDomElement message = elements.at(i).toElement();
        const QDomElement translation = message.firstChildElement(u"translation"_s);
        messages.append({message.parentNode().firstChildElement(u"name"_s).text(),
                         message.firstChildElement(u"source"_s).text(), translation.text(),
                         translation.attribute(u"type"_s)});
    }
    return messages;
}

} // namespace KTTest
