#include "KTPageContext.h"

#include <QDebug>

KTPageContext::KTPageContext(const KTPageType &pageType, const KTPageAlignment &alignment)
    : myPageType(pageType)
    , myAlignment(alignment)
{
}

KTPageContext::~KTPageContext() = default;

bool KTPageContext::isValid() const
{
    return myPageType.isValid() && !myAlignment.isNull();
}

bool KTPageContext::matchesWith(const KTPageContext &other) const
{
    return hasPageType(other.myPageType) && hasAlignment(other.myAlignment);
}

bool KTPageContext::hasPageType(const KTPageType &pageType) const
{
    return myPageType.matches(pageType);
}

bool KTPageContext::hasAlignment(const KTPageAlignment &alignment) const
{
    return myAlignment.matches(alignment);
}

QString KTPageContext::dump() const
{
    return QStringLiteral("%1 %2").arg(myPageType.encode(), myAlignment.encode());
}

bool KTPageContext::operator==(const KTPageContext &other) const
{
    return myPageType == other.myPageType && myAlignment == other.myAlignment;
}

bool KTPageContext::operator<(const KTPageContext &other) const
{
    return myPageType != other.myPageType ? myPageType < other.myPageType : myAlignment < other.myAlignment;
}

QDebug operator<<(QDebug stream, const KTPageContext &context)
{
    const QDebugStateSaver saver(stream);
    stream.noquote() << context.dump();
    return stream;
}
