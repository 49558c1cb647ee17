#include "KTOrderId.h"

#include <QDataStream>
#include <QDebug>

namespace {
constexpr QChar HYPHEN = u'-';
constexpr QChar HYPHEN_REPLACEMENT = u'_';
} // namespace

KTOrderId::KTOrderId(const QString &text)
    : myText(text)
{
}

KTOrderId::~KTOrderId() = default;

QString KTOrderId::toString(bool replaceHyphens) const
{
    QString text = myText;
    if (replaceHyphens)
        text.replace(HYPHEN, HYPHEN_REPLACEMENT);
    return text;
}

void KTOrderId::clear()
{
    myText.clear();
}

QDataStream &KTOrderId::operator<<(QDataStream &stream) const
{
    return stream << myText;
}

QDebug operator<<(QDebug stream, const KTOrderId &orderId)
{
    return stream << orderId.toString(false);
}
