#pragma once

#include "pages/editorpage.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QTimeZone>

/// When a measurement begins: at once, or at a time that the user sets field by field. Its rows stand in any editor
/// page; those of the date are grey while the start is immediate. The time is local time, in whole minutes, and always
/// a day of the calendar: another month or year takes the day along, to the month's last at most.
class StartTime
{
    Q_DECLARE_TR_FUNCTIONS(StartTime)

public:
    static constexpr int kFirstYear = 2000;
    static constexpr int kLastYear = 2099;

    /// Immediate, and the fields at \a now.
    void reset(const QDateTime &now);

    bool isImmediate() const { return m_immediate; }
    /// What the fields say, whether it counts or not.
    QDateTime time() const { return QDateTime(m_date, m_time); }
    /// The moment at which clocks of \a zone show what the fields say. Of a time that the change to summer time skips
    /// it is one an hour beside it.
    QDateTime moment(const QTimeZone &zone) const;
    /// When a measurement that is planned so begins, s since 1970; 0: at once.
    quint32 begin(const QTimeZone &zone) const;

    /// A field by \a step; each stops at its bounds, none carries into the next.
    void stepYear(int step);
    void stepMonth(int step);
    void stepDay(int step);
    void stepHour(int step);
    void stepMinute(int step);

    /// Rows "start", "year", "month", "day", "hours", "minutes". This outlives the page.
    std::vector<EditorPage::Row> rows();

private:
    void setDate(int year, int month, int day);

    bool m_immediate = true;
    QDate m_date { kFirstYear, 1, 1 };
    QTime m_time { 0, 0 };
};
