#include "pages/starttime.h"

#include <algorithm>

void StartTime::reset(const QDateTime &now)
{
    m_immediate = true;
    if (!now.isValid())
        return;
    setDate(now.date().year(), now.date().month(), now.date().day());
    m_time = QTime(now.time().hour(), now.time().minute());
}

QDateTime StartTime::moment(const QTimeZone &zone) const
{
    // The toolkit's own way may be two hours off where the time does not exist.
    const QDateTime asUtc(m_date, m_time, Qt::UTC);
    const QDateTime near = asUtc.addSecs(-zone.offsetFromUtc(asUtc));
    return asUtc.addSecs(-zone.offsetFromUtc(near));
}

quint32 StartTime::begin(const QTimeZone &zone) const
{
    return m_immediate ? 0 : quint32(moment(zone).toSecsSinceEpoch());
}

void StartTime::setDate(int year, int month, int day)
{
    const QDate first(std::clamp(year, kFirstYear, kLastYear), std::clamp(month, 1, 12), 1);
    m_date = first.addDays(std::clamp(day, 1, first.daysInMonth()) - 1);
}

void StartTime::stepYear(int step)
{
    setDate(m_date.year() + step, m_date.month(), m_date.day());
}

void StartTime::stepMonth(int step)
{
    setDate(m_date.year(), m_date.month() + step, m_date.day());
}

void StartTime::stepDay(int step)
{
    setDate(m_date.year(), m_date.month(), m_date.day() + step);
}

void StartTime::stepHour(int step)
{
    m_time = QTime(std::clamp(m_time.hour() + step, 0, 23), m_time.minute());
}

void StartTime::stepMinute(int step)
{
    m_time = QTime(m_time.hour(), std::clamp(m_time.minute() + step, 0, 59));
}

std::vector<EditorPage::Row> StartTime::rows()
{
    const auto timed = [this] { return !m_immediate; };
    const auto field = [this, timed](const char *name, const char *caption, int (*value)(const StartTime &),
                                     void (StartTime::*move)(int)) {
        return EditorPage::Row { QString::fromLatin1(name),
                                 caption,
                                 [this, value] {
                                     return QStringLiteral("%1").arg(value(*this), 2, 10, QLatin1Char('0'));
                                 },
                                 [this, move](int step) { (this->*move)(step); },
                                 {},
                                 timed,
                                 "StartTime" };
    };
    return {
        { "start",
          QT_TRANSLATE_NOOP("StartTime", "Start"),
          [this] { return m_immediate ? tr("Immediate") : tr("Timed"); },
          [this](int step) { m_immediate = step < 0; },
          [this] { m_immediate = !m_immediate; },
          {},
          "StartTime" },
        field(
            "year", QT_TRANSLATE_NOOP("StartTime", "Year"), [](const StartTime &s) { return s.m_date.year(); },
            &StartTime::stepYear),
        field(
            "month", QT_TRANSLATE_NOOP("StartTime", "Month"), [](const StartTime &s) { return s.m_date.month(); },
            &StartTime::stepMonth),
        field(
            "day", QT_TRANSLATE_NOOP("StartTime", "Day"), [](const StartTime &s) { return s.m_date.day(); },
            &StartTime::stepDay),
        field(
            "hours", QT_TRANSLATE_NOOP("StartTime", "Hours"), [](const StartTime &s) { return s.m_time.hour(); },
            &StartTime::stepHour),
        field(
            "minutes", QT_TRANSLATE_NOOP("StartTime", "Minutes"), [](const StartTime &s) { return s.m_time.minute(); },
            &StartTime::stepMinute),
    };
}
