#pragma once

#include "ktproductbase_export.h"

#include <KTQtTypes.h>
#include <KTStdHash.h>

#include <QHash>
#include <QMetaType>
#include <QString>

class QDataStream;
class QDebug;

/**
 * The text under which the ordering side keeps an order.
 *
 * A null text means that there is no order; an empty one is an id like any other. Comparisons do not tell
 * the two apart, as those of QString do not; ask isValid().
 */
class KTPRODUCTBASE_EXPORT KTOrderId
{
public:
    /** No order. */
    KTOrderId() = default;
    KTOrderId(const QString &text);
    KTOrderId(const KTOrderId &other) = default;
    KTOrderId(KTOrderId &&other) noexcept = default;
    KTOrderId &operator=(const KTOrderId &other) = default;
    KTOrderId &operator=(KTOrderId &&other) noexcept = default;
    virtual ~KTOrderId();

    /** The text, if asked to with each "-" replaced by "_". */
    [[nodiscard]] QString toString(bool replaceHyphens) const;
    bool isValid() const { return !myText.isNull(); }
    /** Makes it the id of no order. */
    void clear();

    bool operator==(const KTOrderId &other) const { return myText == other.myText; }
    bool operator!=(const KTOrderId &other) const { return !(*this == other); }
    /** Orders by UTF-16 code units. */
    bool operator<(const KTOrderId &other) const { return myText < other.myText; }
    bool operator>(const KTOrderId &other) const { return other < *this; }
    bool operator<=(const KTOrderId &other) const { return !(*this > other); }
    bool operator>=(const KTOrderId &other) const { return !(*this < other); }

    /** Writes the text, a null one as such: `orderId << stream`. */
    QDataStream &operator<<(QDataStream &stream) const;

private:
    QString myText;
};

Q_DECLARE_METATYPE(KTOrderId)

/** The hash of the text with the same seed. */
inline KTHashValue qHash(const KTOrderId &orderId, KTHashValue seed = 0)
{
    return qHash(orderId.toString(false), seed);
}
KT_DECLARE_STD_HASH(KTOrderId)

/** Writes the text as a string. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTOrderId &orderId);
