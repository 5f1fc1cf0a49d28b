#include "user/timezones.h"

#include <QTimeZone>

#include <algorithm>

namespace {

const QByteArray kUtc = QByteArrayLiteral("UTC");

} // namespace

QVector<QByteArray> TimeZones::list(const QList<QByteArray> &available, const QByteArray &used)
{
    QVector<QByteArray> zones;
    for (const QByteArray &zone : available) {
        if (!zone.startsWith(kUtc))
            zones.append(zone);
    }
    if (used != kUtc && !zones.contains(used))
        zones.append(used);
    std::sort(zones.begin(), zones.end());
    zones.prepend(kUtc);
    return zones;
}

QVector<QByteArray> TimeZones::list(const QByteArray &used)
{
    return list(QTimeZone::availableTimeZoneIds(), used);
}
