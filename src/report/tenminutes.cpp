#include "report/tenminutes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr double kEnough = 0.9; // of ten minutes
constexpr double kAlready = 0.95; // rows of this length are ten minutes themselves
} // namespace

TenMinutes::TenMinutes(std::size_t lanes, double interval, Taker taker)
    : m_interval(interval), m_taker(std::move(taker)), m_squares(lanes), m_values(lanes), m_counts(lanes)
{ }

void TenMinutes::take(qint64 time, const std::vector<double> &values)
{
    // Their intervals follow the cycles of the supply, not the clock: two may end in the same ten minutes of it.
    if (m_interval >= kAlready * double(kLength))
        return m_taker(time, values);
    const qint64 slot = (time - 1) / kLength;
    if (m_any && slot != m_slot)
        close();
    m_slot = slot;
    m_any = true;
    for (std::size_t lane = 0; lane < std::min(values.size(), m_squares.size()); ++lane) {
        if (!std::isfinite(values[lane]))
            continue;
        m_squares[lane] += values[lane] * values[lane];
        ++m_counts[lane];
    }
}

void TenMinutes::close()
{
    bool any = false;
    for (std::size_t lane = 0; lane < m_squares.size(); ++lane) {
        const bool enough = double(m_counts[lane]) * m_interval >= kEnough * double(kLength);
        any = any || enough;
        m_values[lane]
            = enough ? std::sqrt(m_squares[lane] / double(m_counts[lane])) : std::numeric_limits<double>::quiet_NaN();
    }
    if (any)
        m_taker((m_slot + 1) * kLength, m_values);
    else
        ++m_incomplete;
    std::fill(m_squares.begin(), m_squares.end(), 0);
    std::fill(m_counts.begin(), m_counts.end(), 0);
    m_any = false;
}

void TenMinutes::finish()
{
    if (m_any)
        close();
}
