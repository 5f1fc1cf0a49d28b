#pragma once

#include "model/pqaeventitem.h"

#include <vector>

/// A step between two steady states of one voltage.
struct RvcChange
{
    float value; // V, magnitude of the step
    qint64 startTime; // ms since 1970: the first sample outside the old steady state
    qint64 endTime; // ms since 1970: the first sample of the new steady state
};

/// Levels that a step must pass to become an event.
struct RvcLimits
{
    float dipDistance; // V, nominal voltage minus dip level: a larger step is a dip
    float swellDistance; // V, swell level minus nominal voltage: a larger step is a swell
};

/// Rapid-voltage-change detector of one voltage: a ring of half-cycle values and its state.
/// Fed once per half cycle; finds a steady state, the moment it is left, and the next steady state.
/// Holds no more than four windows and allocates once. Any float is welcome: what is not a number compares false.
class RvcFifo
{
public:
    enum State { Seeking = 1, Steady = 2, Transition = 3, Idle = 4 };

    /// Seconds above this count as this: a window of a minute already holds 48000 half cycles at 400 Hz.
    static constexpr int kMaxSeconds = 60;

    /// frequency in Hz, the four others in percent; a window is frequency * seconds * 2 half cycles and the ring holds
    /// four. A window of nothing switches the detector off.
    void init_rvc_fifo(int frequency, int seconds, float band, float settleFactor, float minStep, float minRate);

    /// Appends a sample; the header gives way when the ring is full.
    void rvc_fifo_push(const _value_with_time &sample);

    /// Looks at the newest sample. True when a step is to be recorded, which then stands in *change.
    /// With mayRecord false a settled change is left standing, and nothing moves.
    bool rvc_events_loop(const RvcLimits &limits, bool mayRecord, RvcChange *change);

    int capacity() const { return m_capacity; } // samples
    State state() const { return m_state; }
    float reference() const { return m_reference; } // V, mean of the last steady window

private:
    struct Statistics
    {
        float mean;
        float max;
        float min;
    };

    int rvc_fifo_len(int from, int to) const;
    int next(int position) const { return position + 1 == m_capacity ? 0 : position + 1; }
    void rvc_fifo_header_moveto(int position);
    Statistics rvc_steady_state_condition(int from, int to) const;
    static bool leavesBand(const Statistics &window, float band);
    void seek();
    void watch();
    bool settle(const RvcLimits &limits, bool mayRecord, RvcChange *change);

    // Times and values apart, so that the statistics run over plain floats.
    std::vector<qint64> m_time; // ms since 1970
    std::vector<float> m_value; // V
    int m_capacity = 0;
    int m_write = 0;
    int m_last = 0;
    int m_header = 0;
    int m_transition = 0;
    int m_sub = 0;
    State m_state = Seeking;

    int m_window = 0; // half cycles
    quint64 m_windowTime = 0; // ms
    float m_band = 0; // fraction
    float m_settleFactor = 0; // fraction
    float m_minStep = 0; // fraction
    float m_minRate = 0; // fraction per second

    float m_reference = 0; // V
    qint64 m_referenceTime = 0; // ms since 1970
    float m_steady = 0; // V, mean of the new steady window
    qint64 m_steadyTime = 0; // ms since 1970
};
