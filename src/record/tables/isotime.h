#pragma once

#include <QByteArray>

/// A time as all exports write it: "2024-01-18T16:15:00.000Z". Years before 0 and from 10000 on, which only broken
/// files have, get a sign and as many digits as they need.
namespace IsoTime {

constexpr int kMost = 34; // bytes of the longest one

/// Writes the time at \a at, where there is room for kMost bytes, and answers its end.
char *print(char *at, qint64 msSince1970);
QByteArray text(qint64 msSince1970);

} // namespace IsoTime
