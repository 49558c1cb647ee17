#include "KTOrderRefusal.h"

QString KTOrderRefusal::toString() const
{
    if (reason == Reason::PageCount) {
        if (nearestPages.isEmpty())
            return QStringLiteral("cannot have %1 pages; no page count is valid").arg(pages);
        QStringList counts;
        for (const int count : nearestPages)
            counts.append(QString::number(count));
        return QStringLiteral("cannot have %1 pages; the nearest valid page counts: %2")
            .arg(QString::number(pages), counts.join(QStringLiteral(" and ")));
    }
    QString text = reason == Reason::UnknownValue
        ? QStringLiteral("does not offer '%1' for '%2'").arg(value, key)
        : QStringLiteral("has no option '%1'").arg(key);
    text += offered.isEmpty() ? QStringLiteral("; it offers none")
                              : QStringLiteral("; offered: ") + offered.join(QStringLiteral(", "));
    if (!nearest.isNull())
        text += QStringLiteral("; did you mean '%1'?").arg(nearest);
    return text;
}
