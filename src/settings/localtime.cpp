#include "settings/localtime.h"

#include "settings/config_data.h"
#include "platform/clock.h"

QTimeZone LocalTime::localTimeZone()
{
    // The zone is kept, as making one reads the zone's file and a table asks once a line.
    static QByteArray keptId;
    static QTimeZone zone;
    const QByteArray id = m_userConfig_g.getTimeZone().toLatin1();
    if (!zone.isValid() || id != keptId) {
        zone = QTimeZone(QTimeZone::isTimeZoneIdAvailable(id) ? id : QByteArrayLiteral("UTC"));
        keptId = id;
    }
    return zone;
}

QDateTime LocalTime::currentDateTime()
{
    return toLocalDateTime(Clock::now());
}

QDateTime LocalTime::toLocalDateTime(const QDateTime &dateTime)
{
    return dateTime.toTimeZone(localTimeZone());
}
