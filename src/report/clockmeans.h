#pragma once

#include <QtGlobal>

#include <functional>
#include <vector>

/// Values of ten minutes, or of three seconds, out of the shorter intervals of a recording: root mean squares over the
/// intervals of the clock, as the standards have them. An interval that reaches over two of them counts in each for as
/// long as it lies there. Times are ms since 1970.
class ClockMeans
{
public:
    static constexpr qint64 kTenMinutes = 10 * 60 * 1000;

    /// The end of an interval of the clock, and a value for each lane: not a number where less than nine tenths are
    /// there.
    using Taker = std::function<void(qint64 time, const std::vector<double> &values)>;

    /// \a interval: what one row covers, \a length: what a value is made of, both in ms.
    ClockMeans(std::size_t lanes, double interval, qint64 length, Taker taker);

    /// \a values: one for each lane, not a number where there is none; \a time is the end of their interval.
    void take(qint64 time, const std::vector<double> &values);
    void finish();
    /// Intervals of the clock that were too incomplete for every lane.
    qint64 incomplete() const { return m_incomplete; }

private:
    void add(qint64 slot, double covered, const std::vector<double> &values);
    void close();

    const double m_interval; // ms
    const qint64 m_length; // ms
    const Taker m_taker;
    qint64 m_slot = 0; // of the clock
    bool m_any = false;
    double m_covered = 0; // of the slot, ms
    std::vector<double> m_squares, m_values;
    std::vector<double> m_times; // ms of the slot that have a value
    qint64 m_incomplete = 0;
};
