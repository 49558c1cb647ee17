#include "KTOrderProjectInfo.h"

#include <QDataStream>
#include <QDebug>

KTOrderProjectInfo::KTOrderProjectInfo(const QString &xtciSession, const KTOrderId &orderId,
                                       int orderPosition)
    : myXtciSession(xtciSession)
    , myOrderId(orderId)
    , myOrderPosition(orderPosition)
{
}

KTOrderProjectInfo::~KTOrderProjectInfo() = default;

KTOrderProjectInfo KTOrderProjectInfo::createDeletingProjetInfo()
{
    KTOrderProjectInfo info(QString(), KTOrderId(), 0);
    info.myDeleteProjectInfo = true;
    return info;
}

bool KTOrderProjectInfo::isValid() const
{
    return myOrderId.isValid() && myOrderPosition >= 0 && !myXtciSession.isNull();
}

QDataStream &KTOrderProjectInfo::operator<<(QDataStream &stream) const
{
    return stream << myOrderId.toString(false) << qint32(myOrderPosition) << myXtciSession;
}

QDebug operator<<(QDebug stream, const KTOrderProjectInfo &info)
{
    return stream << info.orderId() << info.orderPosition() << info.xtciSession();
}
