#pragma once

#include <QByteArray>
#include <QList>
#include <QVector>

/// The time zones to choose from: "UTC", then those of the system's zone database by their names.
namespace TimeZones {

/// The toolkit's \a available zones without its own offsets ("UTC+02:00"), which no database holds; `used`, the zone in
/// use, stands in the list in any case.
QVector<QByteArray> list(const QList<QByteArray> &available, const QByteArray &used);
/// Those of this system. Without a zone database "UTC" alone.
QVector<QByteArray> list(const QByteArray &used);

} // namespace TimeZones
