#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

/// Ten-minute values out of the shorter intervals of a recording: root mean squares over the ten minutes of the clock,
/// as the standards have them. Times are ms since 1970.
class TenMinutes
{
public:
    static constexpr qint64 kLength = 10 * 60 * 1000;

    /// The end of the ten minutes, and a value for each lane: not a number where less than nine tenths are there.
    using Taker = std::function<void(qint64 time, const std::vector<double> &values)>;

    /// \a interval: what one row covers, ms.
    TenMinutes(std::size_t lanes, double interval, Taker taker);

    /// Whether values of ten minutes can be made of rows of this length at all.
    static bool canBeMadeOf(double interval) { return interval > 0 && interval <= 1.05 * double(kLength); }

    /// \a values: one for each lane, not a number where there is none; \a time is the end of their interval.
    void take(qint64 time, const std::vector<double> &values);
    void finish();
    /// Ten minutes that were too incomplete for every lane.
    qint64 incomplete() const { return m_incomplete; }

private:
    void close();

    const double m_interval;
    const Taker m_taker;
    qint64 m_slot = 0; // of the clock
    bool m_any = false;
    std::vector<double> m_squares, m_values;
    std::vector<qint64> m_counts;
    qint64 m_incomplete = 0;
};
