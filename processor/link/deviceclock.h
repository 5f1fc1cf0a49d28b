#pragma once

#include <QString>
#include <QtGlobal>

#include <array>

namespace wire {

/// The processor's own clock: simulated time since the start of the run, laid on the calendar. All times are UTC.
class DeviceClock
{
public:
    /// The calendar time (ms since 1970) at which simulated time 0 stands.
    explicit DeviceClock(qint64 startMs = 0) : m_baseMs(startMs) { }

    /// ms since 1970 at \a simulatedMs; never below 0.
    quint64 at(qint64 simulatedMs) const { return quint64(qMax<qint64>(0, m_baseMs + simulatedMs)); }

    void set(qint64 msSince1970, qint64 simulatedMs) { m_baseMs = msSince1970 - simulatedMs; }
    void shift(qint64 ms) { m_baseMs += ms; }

    /// Sets the clock from the eight bytes of a clock frame: seconds, minutes, hours, day of the week, day of the
    /// month, month, low and high byte of the year. False, and nothing is set, when they are no date and time.
    bool setBinary(const std::array<quint8, 8> &bytes, qint64 simulatedMs);
    /// The older form: packed-decimal bytes at the same places, byte 6 the year in the century, byte 7 the century.
    bool setPackedDecimal(const std::array<quint8, 8> &bytes, qint64 simulatedMs);

    /// "2024-01-18T16:15:00.000" of \a msSince1970.
    static QString text(quint64 msSince1970);
    /// ms since 1970 of "2024-01-18T16:15:00" (UTC), or -1.
    static qint64 fromText(const QString &text);

private:
    bool setCalendar(int year, int month, int day, int hours, int minutes, int seconds, qint64 simulatedMs);

    qint64 m_baseMs;
};

} // namespace wire
