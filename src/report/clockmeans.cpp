#include "report/clockmeans.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr double kEnough = 0.9; // of the length
constexpr double kAlready = 0.95; // rows of this part of the length are such intervals themselves
} // namespace

ClockMeans::ClockMeans(std::size_t lanes, double interval, qint64 length, Taker taker)
    : m_interval(interval), m_length(length), m_taker(std::move(taker)), m_squares(lanes), m_values(lanes),
      m_times(lanes)
{ }

void ClockMeans::take(qint64 time, const std::vector<double> &values)
{
    // Their intervals follow the cycles of the supply, not the clock: two may end in the same interval of it.
    if (m_interval >= kAlready * double(m_length))
        return m_taker(time, values);
    const qint64 slot = (time - 1) / m_length;
    const double border = double(slot * m_length);
    const double begin = double(time) - m_interval;
    // What two rows seem to overlap by has been counted.
    if (begin < border && !(m_any && m_slot == slot))
        add(slot - 1, border - begin, values);
    add(slot, double(time) - std::max(begin, border), values);
}

void ClockMeans::add(qint64 slot, double covered, const std::vector<double> &values)
{
    if (m_any && slot != m_slot)
        close();
    m_slot = slot;
    m_any = true;
    m_covered += covered;
    for (std::size_t lane = 0; lane < std::min(values.size(), m_squares.size()); ++lane) {
        if (!std::isfinite(values[lane]))
            continue;
        m_squares[lane] += values[lane] * values[lane] * covered;
        m_times[lane] += covered;
    }
}

void ClockMeans::close()
{
    bool any = false;
    for (std::size_t lane = 0; lane < m_squares.size(); ++lane) {
        const bool enough = m_times[lane] >= kEnough * double(m_length);
        any = any || enough;
        m_values[lane] = enough ? std::sqrt(m_squares[lane] / m_times[lane]) : std::numeric_limits<double>::quiet_NaN();
    }
    if (any)
        m_taker((m_slot + 1) * m_length, m_values);
    else if (m_covered >= m_interval) // less is the edge of a row that belongs to the neighbour
        ++m_incomplete;
    std::fill(m_squares.begin(), m_squares.end(), 0);
    std::fill(m_times.begin(), m_times.end(), 0);
    m_covered = 0;
    m_any = false;
}

void ClockMeans::finish()
{
    if (m_any)
        close();
}
