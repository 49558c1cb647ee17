#include "KTPageSizeSpec.h"

#include <KTArithmetic.h>

#include <QDebug>

using KTArithmetic::saturated;

KTPageSizeSpec::KTPageSizeSpec(const QSize &usableSize, const KTMargins &bleedMargins)
    : myUsableSize(usableSize)
    , myBleedMargins(bleedMargins)
{
}

QSize KTPageSizeSpec::totalSize() const
{
    // Not by way of the margins' total, which may have saturated already.
    return QSize(saturated(qint64(myUsableSize.width()) + myBleedMargins.left() + myBleedMargins.right()),
                 saturated(qint64(myUsableSize.height()) + myBleedMargins.top() + myBleedMargins.bottom()));
}

QPoint KTPageSizeSpec::topLeftOffsetOfUsablePrintArea() const
{
    return myBleedMargins.topLeft();
}

QPointF KTPageSizeSpec::slipcaseTranslationPoint() const
{
    if (myUsableSlipcaseCoverSize.width() < 0 || myUsableSlipcaseCoverSize.height() < 0)
        return QPointF();
    const double difference = double(myUsableSize.height()) - myUsableSlipcaseCoverSize.height();
    return QPointF(0.0, difference * 0.5);
}

bool KTPageSizeSpec::operator==(const KTPageSizeSpec &other) const
{
    return myUsableSize == other.myUsableSize && myBleedMargins == other.myBleedMargins;
}

QDebug operator<<(QDebug stream, const KTPageSizeSpec &spec)
{
    return stream << "{ usable=" << spec.usableSize() << ", 4Scaling" << spec.usableSlipcaseCoverSize();
}
