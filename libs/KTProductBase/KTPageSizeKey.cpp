#include "KTPageSizeKey.h"

#include <QDebug>

namespace {
// Every alignment there is; the union has no keyword, so dumps have two blanks in its place.
constexpr auto ALL_ALIGNMENTS = static_cast<KTPageAlignmentEnum>(127);
} // namespace

KTPageSizeKey::KTPageSizeKey()
    : KTPageSizeKey(KTPageType(), 0)
{
}

KTPageSizeKey::KTPageSizeKey(const KTPageType &pageType, int pageCount)
    : myPageContext(pageType, ALL_ALIGNMENTS)
    , myPageCount(pageCount)
{
}

KTPageSizeKey::~KTPageSizeKey() = default;

bool KTPageSizeKey::isValid() const
{
    return myPageContext.isValid() && myPageCount >= 0;
}

QString KTPageSizeKey::dump() const
{
    return QStringLiteral("%1 %2").arg(myPageContext.dump(), QString::number(myPageCount));
}

bool KTPageSizeKey::operator==(const KTPageSizeKey &other) const
{
    return myPageCount == other.myPageCount && myPageContext == other.myPageContext;
}

bool KTPageSizeKey::operator<(const KTPageSizeKey &other) const
{
    return myPageCount != other.myPageCount && myPageContext < other.myPageContext;
}

QDebug operator<<(QDebug stream, const KTPageSizeKey &key)
{
    const QDebugStateSaver saver(stream);
    stream.noquote() << key.dump();
    if (!stream.autoInsertSpaces())
        stream << ' ';
    return stream;
}
