#pragma once

#include "KTOrderId.h"

/** What is known of one project that was ordered, or the mark that this is to be deleted. */
class KTPRODUCTBASE_EXPORT KTOrderProjectInfo
{
public:
    /** Nothing known: no session, no order, position 0; not valid, and not the mark. */
    KTOrderProjectInfo() = default;
    /** The transfer session that sent the project, its order, and its position there, counted from 0. */
    KTOrderProjectInfo(const QString &xtciSession, const KTOrderId &orderId, int orderPosition);
    KTOrderProjectInfo(const KTOrderProjectInfo &other) = default;
    KTOrderProjectInfo(KTOrderProjectInfo &&other) noexcept = default;
    KTOrderProjectInfo &operator=(const KTOrderProjectInfo &other) = default;
    KTOrderProjectInfo &operator=(KTOrderProjectInfo &&other) noexcept = default;
    virtual ~KTOrderProjectInfo();

    /** The mark: no session, no order, position 0. The misspelling is part of the API. */
    [[nodiscard]] static KTOrderProjectInfo createDeletingProjetInfo();

    QString xtciSession() const { return myXtciSession; }
    KTOrderId orderId() const { return myOrderId; }
    int orderPosition() const { return myOrderPosition; }
    /** True for the mark. */
    bool deleteProjectInfo() const { return myDeleteProjectInfo; }
    /** True with a valid order, a position of at least 0 and a session that is not null (it may be empty). */
    bool isValid() const;

    void setOrderId(const KTOrderId &orderId) { myOrderId = orderId; }

    /** Writes the order's text, the position in 32 bits and the session, not the mark: `info << stream`. */
    QDataStream &operator<<(QDataStream &stream) const;

private:
    QString myXtciSession;
    KTOrderId myOrderId;
    int myOrderPosition = 0;
    bool myDeleteProjectInfo = false;
};

Q_DECLARE_METATYPE(KTOrderProjectInfo)
/** Writes the order's text, the position and the session. */
KTPRODUCTBASE_EXPORT QDebug operator<<(QDebug stream, const KTOrderProjectInfo &info);
