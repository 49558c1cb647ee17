#pragma once

#include <QDateTime>

#include <optional>

namespace KTMakingTime {

/** The time that everything counts as made at, where builds are to be the same; nothing for the present one.
 */
inline std::optional<QDateTime> demanded()
{
    bool ok = false;
    const qint64 seconds = qgetenv("SOURCE_DATE_EPOCH").toLongLong(&ok);
    return ok ? std::make_optional(QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC)) : std::nullopt;
}

} // namespace KTMakingTime
