#include "KTMargins.h"

#include <KTArithmetic.h>

#include <QDebug>
#include <QPoint>
#include <QSize>

using KTArithmetic::saturated;

class KTMarginsImpl : public QSharedData
{
public:
    int top = 0;
    int bottom = 0;
    int left = 0;
    int right = 0;
};

KTMargins::KTMargins()
    : myImpl(new KTMarginsImpl)
{
}

KTMargins::KTMargins(int vertical, int horizontal)
    : KTMargins(vertical, vertical, horizontal, horizontal)
{
}

KTMargins::KTMargins(int top, int bottom, int left, int right)
    : KTMargins()
{
    myImpl->top = top;
    myImpl->bottom = bottom;
    myImpl->left = left;
    myImpl->right = right;
}

KTMargins::KTMargins(const KTMargins &other) = default;
KTMargins::KTMargins(KTMargins &&other) noexcept = default;
KTMargins &KTMargins::operator=(const KTMargins &other) = default;
KTMargins &KTMargins::operator=(KTMargins &&other) noexcept = default;
KTMargins::~KTMargins() = default;

int KTMargins::top() const
{
    return myImpl->top;
}

int KTMargins::bottom() const
{
    return myImpl->bottom;
}

int KTMargins::left() const
{
    return myImpl->left;
}

int KTMargins::right() const
{
    return myImpl->right;
}

QSize KTMargins::totalMarginWH() const
{
    return QSize(saturated(qint64(left()) + right()), saturated(qint64(top()) + bottom()));
}

QPoint KTMargins::topLeft() const
{
    return QPoint(left(), top());
}

QPoint KTMargins::bottomRight() const
{
    return QPoint(right(), bottom());
}

bool KTMargins::allNull() const
{
    return top() == 0 && bottom() == 0 && left() == 0 && right() == 0;
}

bool KTMargins::operator==(const KTMargins &other) const
{
    return myImpl == other.myImpl || (topLeft() == other.topLeft() && bottomRight() == other.bottomRight());
}

QDebug operator<<(QDebug stream, const KTMargins &margins)
{
    return stream << QStringLiteral("KTMargins: top: %1; bottom: %2; left: %3; right: %4")
                         .arg(margins.top())
                         .arg(margins.bottom())
                         .arg(margins.left())
                         .arg(margins.right());
}
