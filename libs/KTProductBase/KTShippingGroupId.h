#pragma once

#include "ktproductbase_export.h"

#include <KTQtTypes.h>
#include <KTStdHash.h>

#include <QMetaType>
#include <QString>
#include <QtGlobal>

class KTXMLElement;
class QDataStream;
class QDebug;
class QDomElement;
class QDomNamedNodeMap;
class QJsonObject;

/**
 * The number of a group of articles that are shipped together. -1 is no group; every other number is one,
 * other negative numbers included.
 *
 * Every reader gives -1 when the source holds no integral number of 32 bits; the writers write whatever the
 * number is.
 */
class KTPRODUCTBASE_EXPORT KTShippingGroupId
{
public:
    /** No group: -1. */
    KTShippingGroupId() = default;
    KTShippingGroupId(int id)
        : myId(id)
    {
    }
    /** Reads the member "id"; a number in a text is no number. */
    KTShippingGroupId(const QJsonObject &object);
    /** Reads the attribute "id", or the one with the given name. */
    KTShippingGroupId(const QDomElement &element);
    KTShippingGroupId(const QDomElement &element, const QString &attributeName);
    KTShippingGroupId(const KTXMLElement &element, const QString &attributeName);
    KTShippingGroupId(const QDomNamedNodeMap &attributes);
    KTShippingGroupId(const QDomNamedNodeMap &attributes, const QString &attributeName);

    /** Reads a decimal number; blanks around it are ignored. */
    [[nodiscard]] static KTShippingGroupId createFrom(const QString &text);

    /** "id", the attribute and member name used where none is given. */
    static QString defaultKey();

    int id() const { return myId; }
    bool isValid() const { return myId != -1; }
    /** True for the group that is shipped together with other groups. */
    bool isCombinedTransfer() const { return myId == 0; }
    /** The number in decimal. */
    [[nodiscard]] QString toString() const;

    /** Sets the attribute "id". */
    void toXML(QDomElement &element) const;
    /** Inserts the member "id" as a number, replacing one that is there. */
    void toJSON(QJsonObject &object) const;

    bool operator==(const KTShippingGroupId &other) const { return myId == other.myId; }
    bool operator!=(const KTShippingGroupId &other) const { return myId != other.myId; }
    bool operator==(int other) const { return myId == other; }
    bool operator!=(int other) const { return myId != other; }
    bool operator<(const KTShippingGroupId &other) const { return myId < other.myId; }
    bool operator>(const KTShippingGroupId &other) const { return myId > other.myId; }
    bool operator<=(const KTShippingGroupId &other) const { return myId <= other.myId; }
    bool operator>=(const KTShippingGroupId &other) const { return myId >= other.myId; }

    /** Writes the decimal text, not an integer: `id << stream`. Readers of the stored form expect a text. */
    QDataStream &operator<<(QDataStream &stream) const;

private:
    int myId = -1;
};

Q_DECLARE_TYPEINFO(KTShippingGroupId, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTShippingGroupId)

/** The number XOR the seed. */
inline KTHashValue qHash(const KTShippingGroupId &groupId, KTHashValue seed = 0)
{
    return static_cast<uint>(groupId.id()) ^ seed;
}
KT_DECLARE_STD_HASH(KTShippingGroupId)

/** Writes the decimal text as a string. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTShippingGroupId &groupId);
