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
 * The number that names an article of the catalogue; 0 and negative numbers name none.
 *
 * Product descriptions carry it as "id", "art_id" or "article_id". Every reader gives 0 when the source holds
 * no integral number of 32 bits; the writers write whatever the number is.
 */
class KTPRODUCTBASE_EXPORT KTArticleId
{
public:
    /** No article: 0. */
    KTArticleId() = default;
    KTArticleId(int id)
        : myId(id)
    {
    }
    /** Reads the member "id", or the one with the given key; a number in a text is no number. */
    KTArticleId(const QJsonObject &object);
    KTArticleId(const QJsonObject &object, const QString &key);
    KTArticleId(const QDomNamedNodeMap &attributes, const QString &attributeName);
    KTArticleId(const QDomElement &element, const QString &attributeName);
    KTArticleId(const KTXMLElement &element, const QString &attributeName);

    [[nodiscard]] static KTArticleId fromIdAttribute(const QDomElement &element);
    [[nodiscard]] static KTArticleId fromIdAttribute(const QDomNamedNodeMap &attributes);
    [[nodiscard]] static KTArticleId fromArtIdAttribute(const QDomElement &element);
    [[nodiscard]] static KTArticleId fromArtIdAttribute(const QDomNamedNodeMap &attributes);
    [[nodiscard]] static KTArticleId fromArticleIdAttribute(const QDomElement &element);
    [[nodiscard]] static KTArticleId fromArticleIdAttribute(const QDomNamedNodeMap &attributes);
    /** "art_id" where it is positive, else "id". */
    [[nodiscard]] static KTArticleId findId(const QDomElement &element);
    [[nodiscard]] static KTArticleId findId(const KTXMLElement &element);

    /** "id", the attribute and member name used where none is given. */
    static QString defaultKey();

    int id() const { return myId; }
    bool isValid() const { return myId > 0; }
    /** The number in decimal. */
    [[nodiscard]] QString toString() const;

    /** Appends a child with the attribute "id" to the parent and returns it; see KTXMLBuilder. */
    QDomElement createSubElement(QDomElement &parent, const QString &tagName) const;
    void toIdAttribute(QDomElement &element) const;
    void toArtIdAttribute(QDomElement &element) const;
    void toAttribute(QDomElement &element, const QString &attributeName) const;
    /** Inserts the member "id" as a number, replacing one that is there. */
    void toJSON(QJsonObject &object) const;

    /** True for the prints whose length is fixed by their article number. */
    bool isFotoWithoutVariableLength() const;
    /** True for the advent calendars that are printed behind their doors too. */
    bool isAdventCalendarWithDoorBackPrint() const;

    bool operator==(const KTArticleId &other) const { return myId == other.myId; }
    bool operator!=(const KTArticleId &other) const { return myId != other.myId; }
    bool operator==(int other) const { return myId == other; }
    bool operator!=(int other) const { return myId != other; }
    bool operator<(const KTArticleId &other) const { return myId < other.myId; }
    bool operator>(const KTArticleId &other) const { return myId > other.myId; }
    bool operator<=(const KTArticleId &other) const { return myId <= other.myId; }
    bool operator>=(const KTArticleId &other) const { return myId >= other.myId; }

    /** Writes the decimal text, not an integer: `id << stream`. Readers of the stored form expect a text. */
    QDataStream &operator<<(QDataStream &stream) const;

private:
    int myId = 0;
};

Q_DECLARE_TYPEINFO(KTArticleId, Q_MOVABLE_TYPE);
Q_DECLARE_METATYPE(KTArticleId)

/** The number XOR the seed. */
inline KTHashValue qHash(const KTArticleId &articleId, KTHashValue seed = 0)
{
    return static_cast<uint>(articleId.id()) ^ seed;
}
KT_DECLARE_STD_HASH(KTArticleId)

/** Writes the decimal text as a string. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTArticleId &articleId);
