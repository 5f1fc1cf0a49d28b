#pragma once

#include <QDateTime>
#include <QTimeZone>

/// Every time that is shown, in the zone of the user's choice. GUI thread.
class LocalTime
{
public:
    /// The user's zone; "UTC" if this system does not know it.
    static QTimeZone localTimeZone();
    static QDateTime currentDateTime();
    static QDateTime toLocalDateTime(const QDateTime &dateTime);
};
