#include "KTXMLElement.h"

#include "KTXMLFragment.h"

QString KTXMLElement::tagName() const
{
    return myFragment ? myFragment->view(myFragment->elements.at(myIndex).name).toString()
                      : myElement.tagName();
}

bool KTXMLElement::hasAttribute(const QString &name) const
{
    return myFragment ? indexOfAttribute(name) >= 0 : myElement.hasAttribute(name);
}

QString KTXMLElement::attribute(const QString &name, const QString &defaultValue) const
{
    if (!myFragment)
        return myElement.attribute(name, defaultValue);
    const int index = indexOfAttribute(name);
    return index < 0 ? defaultValue : myFragment->view(myFragment->attributes.at(index).value).toString();
}

QStringView KTXMLElement::attributeView(const QString &name, QString *storage) const
{
    if (!myFragment) {
        *storage = myElement.attribute(name);
        return *storage;
    }
    const int index = indexOfAttribute(name);
    return index < 0 ? QStringView() : myFragment->view(myFragment->attributes.at(index).value);
}

KTXMLElement KTXMLElement::firstChildElement(const QString &tagName) const
{
    if (!myFragment)
        return KTXMLElement(myElement.firstChildElement(tagName));
    return firstIn(myIndex + 1, myFragment->elements.at(myIndex).end, tagName);
}

KTXMLElement KTXMLElement::nextSiblingElement(const QString &tagName) const
{
    if (!myFragment)
        return KTXMLElement(myElement.nextSiblingElement(tagName));
    const KTXMLFragment::Element &data = myFragment->elements.at(myIndex);
    return data.parent < 0 ? KTXMLElement()
                           : firstIn(data.end, myFragment->elements.at(data.parent).end, tagName);
}

/** -1 for an attribute that is missing. */
int KTXMLElement::indexOfAttribute(QStringView name) const
{
    const KTXMLFragment::Element &data = myFragment->elements.at(myIndex);
    const int end = data.firstAttribute + data.attributeCount;
    for (int i = data.firstAttribute; i < end; ++i) {
        if (myFragment->view(myFragment->attributes.at(i).name) == name)
            return i;
    }
    return -1;
}

/** The first element with the name among those beside each other from one index on. */
KTXMLElement KTXMLElement::firstIn(int begin, int end, QStringView tagName) const
{
    for (int i = begin; i < end; i = myFragment->elements.at(i).end) {
        if (myFragment->view(myFragment->elements.at(i).name) == tagName)
            return KTXMLElement(myFragment, i);
    }
    return KTXMLElement();
}
