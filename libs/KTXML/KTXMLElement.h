#pragma once

#include "ktxml_export.h"

#include <QDomElement>
#include <QString>
#include <QStringView>

struct KTXMLFragment;

/**
 * An element as the readers see it, whether it stands in a QDomDocument or in a KTXMLFragment.
 *
 * One of a fragment refers to it, which must outlive it unchanged. A null element has no name, attributes or
 * children.
 */
class KTXML_EXPORT KTXMLElement
{
public:
    KTXMLElement() = default;
    explicit KTXMLElement(const QDomElement &element)
        : myElement(element)
    {
    }

    [[nodiscard]] bool isNull() const { return !myFragment && myElement.isNull(); }
    [[nodiscard]] QString tagName() const;
    [[nodiscard]] bool hasAttribute(const QString &name) const;
    /** The value of the attribute, with the default for a missing one; one without text is not missing. */
    [[nodiscard]] QString attribute(const QString &name, const QString &defaultValue = QString()) const;
    /**
     * The value to be looked at only, which a fragment has not to copy; null for a missing attribute. Valid
     * as long as element and storage, in which the text is kept where it has no place.
     */
    [[nodiscard]] QStringView attributeView(const QString &name, QString *storage) const;

    /** The first child with the name, and the next one behind this; null where there is none. */
    [[nodiscard]] KTXMLElement firstChildElement(const QString &tagName) const;
    [[nodiscard]] KTXMLElement nextSiblingElement(const QString &tagName) const;

private:
    friend struct KTXMLFragment;

    KTXMLElement(const KTXMLFragment *fragment, int index)
        : myFragment(fragment)
        , myIndex(index)
    {
    }
    int indexOfAttribute(QStringView name) const;
    KTXMLElement firstIn(int begin, int end, QStringView tagName) const;

    QDomElement myElement;
    const KTXMLFragment *myFragment = nullptr;
    int myIndex = 0;
};

Q_DECLARE_TYPEINFO(KTXMLElement, Q_MOVABLE_TYPE);
