#include "KTCatalogueArticle.h"

QDomElement KTCatalogueArticle::element() const
{
    if (!myDocument.documentElement().isNull())
        return myDocument.documentElement();
    QVector<QDomElement> built;
    for (const Element &element : myElements) {
        QDomElement node = myDocument.createElement(view(element.name).toString());
        for (int i = element.firstAttribute; i < element.firstAttribute + element.attributeCount; ++i) {
            const Attribute &attribute = myAttributes.at(i);
            node.setAttribute(view(attribute.name).toString(), view(attribute.value).toString());
        }
        if (element.parent < 0)
            myDocument.appendChild(node);
        else
            built[element.parent].appendChild(node);
        built.append(node);
    }
    return myDocument.documentElement();
}

void KTCatalogueArticle::clear()
{
    myText.resize(0);
    myElements.resize(0);
    myAttributes.resize(0);
    if (!myDocument.documentElement().isNull())
        myDocument = QDomDocument();
}

void KTCatalogueArticle::appendElement(const QStringRef &name, const KTFilePosition &position, int parent)
{
    myElements.append({append(name), position, parent, myAttributes.size(), 0});
}

void KTCatalogueArticle::appendAttribute(const QStringRef &name, const QStringRef &value,
                                         const KTFilePosition &position)
{
    const Text nameText = append(name);
    myAttributes.append({nameText, append(value), position});
    ++myElements.last().attributeCount;
}

KTCatalogueArticle::Text KTCatalogueArticle::append(const QStringRef &text)
{
    const int begin = myText.size();
    myText.append(text);
    return {begin, text.size()};
}
