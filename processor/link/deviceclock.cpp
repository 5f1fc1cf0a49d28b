#include "link/deviceclock.h"

#include <QDateTime>

namespace wire {

bool DeviceClock::setCalendar(int year, int month, int day, int hours, int minutes, int seconds, qint64 simulatedMs)
{
    const QDate date(year, month, day);
    const QTime time(hours, minutes, seconds);
    if (!date.isValid() || !time.isValid() || year < 1970 || year > 2105) // seconds since 1970 are 32 bits on the wire
        return false;
    set(QDateTime(date, time, Qt::UTC).toMSecsSinceEpoch(), simulatedMs);
    return true;
}

bool DeviceClock::setBinary(const std::array<quint8, 8> &b, qint64 simulatedMs)
{
    return setCalendar(b[6] + 256 * b[7], b[5], b[4], b[2], b[1], b[0], simulatedMs);
}

bool DeviceClock::setPackedDecimal(const std::array<quint8, 8> &bytes, qint64 simulatedMs)
{
    int value[8];
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        const int high = bytes[i] >> 4;
        const int low = bytes[i] & 0x0F;
        if (high > 9 || low > 9)
            return false;
        value[i] = 10 * high + low;
    }
    return setCalendar(100 * value[7] + value[6], value[5], value[4], value[2], value[1], value[0], simulatedMs);
}

QString DeviceClock::text(quint64 msSince1970)
{
    return QDateTime::fromMSecsSinceEpoch(qint64(msSince1970), Qt::UTC)
        .toString(QStringLiteral("yyyy-MM-ddTHH:mm:ss.zzz"));
}

qint64 DeviceClock::fromText(const QString &text)
{
    QDateTime time = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (!time.isValid())
        return -1;
    if (time.timeSpec() == Qt::LocalTime) // as QDateTime calls a text without a zone
        time.setTimeSpec(Qt::UTC);
    return qMax<qint64>(-1, time.toMSecsSinceEpoch());
}

} // namespace wire
