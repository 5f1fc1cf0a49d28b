#include "detect/rvcfifo.h"

#include <algorithm>
#include <cmath>

void RvcFifo::init_rvc_fifo(int frequency, int seconds, float band, float settleFactor, float minStep, float minRate)
{
    const int wholeSeconds = qBound(0, seconds, kMaxSeconds);
    m_window = qBound(0, frequency, 1000) * wholeSeconds * 2;
    m_windowTime = 1000u * quint64(wholeSeconds);
    m_capacity = 4 * m_window;
    m_time.assign(size_t(m_capacity), 0);
    m_value.assign(size_t(m_capacity), 0.0f);
    m_band = band / 100.0f;
    m_settleFactor = settleFactor / 100.0f;
    m_minStep = minStep / 100.0f;
    m_minRate = minRate / 100.0f;
    m_write = m_last = m_header = m_transition = m_sub = 0;
    m_state = Seeking;
}

void RvcFifo::rvc_fifo_push(const _value_with_time &sample)
{
    if (m_capacity == 0)
        return;
    m_time[size_t(m_write)] = sample.time;
    m_value[size_t(m_write)] = sample.value;
    m_last = m_write;
    m_write = next(m_write);
    if (m_write == m_header)
        m_header = next(m_header);
}

int RvcFifo::rvc_fifo_len(int from, int to) const
{
    const int count = to - from + 1 + (to < from ? m_capacity : 0);
    return count > m_capacity ? 0 : count;
}

void RvcFifo::rvc_fifo_header_moveto(int position)
{
    m_header = qBound(0, position, m_capacity - 1);
}

RvcFifo::Statistics RvcFifo::rvc_steady_state_condition(int from, int to) const
{
    // Four lanes side by side: one sum, maximum and minimum alone would wait for themselves at every sample.
    constexpr int kLanes = 4;
    double sum[kLanes] = { 0, 0, 0, 0 };
    const float first = m_value[size_t(from)];
    float max[kLanes] = { first, first, first, first };
    float min[kLanes] = { first, first, first, first };
    const auto pass = [&](const float *values, int count) {
        int i = 0;
        for (; i + kLanes <= count; i += kLanes) {
            for (int k = 0; k < kLanes; ++k) {
                const float v = values[i + k];
                sum[k] += double(v);
                max[k] = v > max[k] ? v : max[k];
                min[k] = v < min[k] ? v : min[k];
            }
        }
        for (; i < count; ++i) {
            const float v = values[i];
            sum[0] += double(v);
            max[0] = v > max[0] ? v : max[0];
            min[0] = v < min[0] ? v : min[0];
        }
    };
    const int count = rvc_fifo_len(from, to);
    const int head = qMin(count, m_capacity - from); // up to the end of the ring; the rest stands at its start
    pass(m_value.data() + from, head);
    pass(m_value.data(), count - head);
    return { float((sum[0] + sum[1] + sum[2] + sum[3]) / qMax(count, 1)), *std::max_element(max, max + kLanes),
             *std::min_element(min, min + kLanes) };
}

bool RvcFifo::leavesBand(const Statistics &window, float band)
{
    return (1.0f + band) * window.mean < window.max || window.mean * (1.0f - band) > window.min;
}

bool RvcFifo::rvc_events_loop(const RvcLimits &limits, bool mayRecord, RvcChange *change)
{
    if (m_capacity == 0)
        return false;
    switch (m_state) {
    case Seeking:
        seek();
        return false;
    case Steady:
        watch();
        return false;
    case Transition:
        return settle(limits, mayRecord, change);
    case Idle:
        return false;
    }
    m_state = Seeking;
    return false;
}

void RvcFifo::seek()
{
    if (rvc_fifo_len(m_header, m_last) < m_window)
        return;
    const Statistics window = rvc_steady_state_condition(m_header, m_last);
    rvc_fifo_header_moveto(next(m_header));
    if (leavesBand(window, m_band))
        return;
    m_reference = window.mean;
    m_referenceTime = m_time[size_t(m_last)];
    m_state = Steady;
}

void RvcFifo::watch()
{
    const Statistics window = rvc_steady_state_condition(m_header, m_last);
    const float sample = m_value[size_t(m_last)];
    const qint64 time = m_time[size_t(m_last)];
    if (sample > m_reference * (1.0f - m_band) && sample < m_reference * (1.0f + m_band)) {
        // Kept: reference minus sample, unsigned. Every later sample passes, so the reference follows the
        // window at each half cycle.
        if (quint64(m_referenceTime) - quint64(time) > m_windowTime) {
            m_reference = window.mean;
            m_referenceTime = time;
        }
    } else {
        m_transition = m_last;
        m_state = Transition;
    }
    rvc_fifo_header_moveto(next(m_header));
}

bool RvcFifo::settle(const RvcLimits &limits, bool mayRecord, RvcChange *change)
{
    const int length = rvc_fifo_len(m_header, m_last);
    if (length < 2 * m_window)
        return false;
    if (length == 2 * m_window)
        m_sub = next(m_transition);
    const Statistics window = rvc_steady_state_condition(m_sub, m_last);
    const qint64 startTime = m_time[size_t(m_transition)];
    const qint64 endTime = m_time[size_t(m_sub)];
    const quint64 elapsed = quint64(endTime) - quint64(startTime);
    if (leavesBand(window, (1.0f - m_settleFactor) * m_band)) {
        if (elapsed > m_windowTime) {
            rvc_fifo_header_moveto(m_sub);
            m_state = Seeking;
        } else {
            m_sub = next(m_sub);
        }
        return false;
    }
    m_steady = window.mean;
    m_steadyTime = m_time[size_t(m_last)];
    if (!mayRecord)
        return false;

    const float d = std::fabs(m_steady - m_reference);
    // Kept: the step is compared with the whole reference level. With a mains reference this never holds together
    // with a step smaller than a dip.
    bool record = d < limits.dipDistance && d < limits.swellDistance && d > (1.0f + m_band) * m_reference;
    if (record && !(d > m_minStep * m_reference))
        record = elapsed != 0 && d / m_reference / float(elapsed) * 1000.0f > m_minRate;
    if (record)
        *change = { d, startTime, endTime };
    rvc_fifo_header_moveto(m_sub);
    m_state = Seeking;
    return record;
}
