#include "detect/powerevents.h"

#include <cmath>

// The detectors. Each starts an event, follows its extreme while it runs, and ends it.

namespace {

/// Dips, swells and interruptions start while the counter is at most this, all other events while it is below it.
constexpr int kEventLimit = 10000;

bool isFarther(float value, float than, float from)
{
    return std::fabs(double(value) - double(from)) > std::fabs(double(than) - double(from));
}

} // namespace

int PowerEvents::checkSwell(int n, const Samples &values)
{
    const bool running = m_globalBits & SwellRunning;
    if (!running && (m_counter > kEventLimit || n < 1))
        return 0;
    const float level = running ? m_settings.swellLevel - m_settings.swellHysteresis : m_settings.swellLevel;
    bool above = false;
    Extreme maximum { values.at(0).value, 0 };
    for (int i = 0; i < n; ++i) {
        const float value = values.at(i).value;
        if (value > level)
            above = true;
        if (i > 0 && value > maximum.value && above)
            maximum = { value, i };
    }
    const qint64 time = values.at(maximum.channel).time;

    if (!running) {
        if (!above)
            return 0;
        m_swell = maximum;
        if (addEventItem(EventSwell, maximum.channel, m_counter, maximum.value, time))
            m_globalBits |= SwellRunning;
        return 1;
    }
    if (maximum.value > m_swell.value)
        m_swell = maximum;
    if (above)
        return 1;
    m_globalBits &= ~quint32(SwellRunning);
    finishEvent(EventSwell, m_swell.channel, m_swell.value, time);
    return 0;
}

int PowerEvents::checkDipsOrInte(int n, const Samples &values)
{
    const bool running = m_globalBits & (DipRunning | InterruptionRunning);
    if (!running && m_rearmed)
        return startDipOrInterruption(n, values);
    if (m_globalBits & DipRunning)
        return continueDip(n, values);
    if (!running) {
        bool anyBelow = false;
        bool anyPresent = false;
        for (int i = 0; i < n; ++i) {
            const float value = values.at(i).value;
            anyBelow = anyBelow || value < m_settings.dipLevel;
            anyPresent = anyPresent || value >= m_settings.interruptionLevel;
        }
        m_rearmed = !anyBelow && anyPresent;
        return 0;
    }
    return continueInterruption(n, values);
}

int PowerEvents::startDipOrInterruption(int n, const Samples &values)
{
    if (m_counter > kEventLimit)
        return 0;
    bool below = false;
    bool allInterrupted = true; // Kept: a wiring without phases counts as interrupted.
    Extreme minimum { values.at(0).value, 0 };
    for (int i = 0; i < n; ++i) {
        const float value = values.at(i).value;
        below = below || value < m_settings.dipLevel;
        allInterrupted = allInterrupted && value < m_settings.interruptionLevel;
        if (i > 0 && value < minimum.value && (below || allInterrupted))
            minimum = { value, i };
    }
    m_dip = m_interruption = minimum;
    if (!allInterrupted && !below)
        return 0;
    m_rearmed = false;
    const qint64 time = values.at(minimum.channel).time;
    const qint32 type = allInterrupted ? EventInterruption : EventDip;
    if (addEventItem(type, minimum.channel, m_counter, minimum.value, time))
        m_globalBits |= allInterrupted ? InterruptionRunning : DipRunning;
    return 1;
}

int PowerEvents::continueDip(int n, const Samples &values)
{
    const float level = m_settings.dipLevel + m_settings.dipHysteresis;
    bool stillBelow = false;
    bool allInterrupted = true;
    Extreme minimum { values.at(0).value, 0 };
    for (int i = 0; i < n; ++i) {
        const float value = values.at(i).value;
        stillBelow = stillBelow || value < level;
        allInterrupted = allInterrupted && value < m_settings.interruptionLevel;
        if (i > 0 && value < minimum.value && stillBelow)
            minimum = { value, i };
    }
    const qint64 time = values.at(minimum.channel).time;
    if (minimum.value < m_dip.value)
        m_dip = minimum;
    if (!stillBelow) {
        m_globalBits &= ~quint32(DipRunning);
        finishEvent(EventDip, m_dip.channel, m_dip.value, time);
        return 0;
    }
    if (!allInterrupted)
        return 1;
    if (minimum.value < m_interruption.value)
        m_interruption = minimum;
    changeEventType(EventDip, m_interruption.channel, m_interruption.value, EventInterruption, time);
    return 1;
}

int PowerEvents::continueInterruption(int n, const Samples &values)
{
    const float level = m_settings.interruptionLevel + m_settings.interruptionHysteresis;
    bool recovered = false;
    Extreme minimum { values.at(0).value, 0 };
    for (int i = 0; i < n && !recovered; ++i) {
        const float value = values.at(i).value;
        if (i > 0 && value < minimum.value)
            minimum = { value, i };
        recovered = value >= level;
    }
    if (minimum.value < m_interruption.value)
        m_interruption = minimum;
    if (!recovered)
        return 1;
    m_globalBits &= ~quint32(InterruptionRunning);
    finishEvent(EventInterruption, m_interruption.channel, m_interruption.value, values.at(minimum.channel).time);
    return 0;
}

void PowerEvents::checkInrush(int i, const _value_with_time &sample)
{
    if (!(m_phaseBits[i] & InrushRunning)) {
        if (m_counter >= kEventLimit || !(double(sample.value) >= m_settings.inrushLevel))
            return;
        m_inrushMax[i] = sample.value;
        if (addEventItem(EventInrush, i, m_counter, sample.value, sample.time))
            m_phaseBits[i] |= InrushRunning;
        return;
    }
    if (double(sample.value) > m_settings.inrushLevel - m_settings.inrushHysteresis) {
        m_inrushMax[i] = qMax(m_inrushMax[i], sample.value);
        return;
    }
    m_phaseBits[i] &= ~quint32(InrushRunning);
    finishEvent(EventInrush, i, m_inrushMax[i], sample.time);
}

void PowerEvents::slowCheck(const SlowCheck &check, const _value_with_time &sample, bool outside, bool farther)
{
    if (!(*check.bits & check.bit)) {
        if (!outside || m_counter >= kEventLimit)
            return;
        *check.extreme = sample.value;
        if (addEventItem(check.type, check.channel, m_counter, sample.value, sample.time))
            *check.bits |= check.bit;
        return;
    }
    if (outside) {
        if (farther)
            *check.extreme = sample.value;
        return;
    }
    *check.bits &= ~check.bit;
    finishEvent(check.type, check.channel, *check.extreme, sample.time);
}

void PowerEvents::checkEventFreq(const _value_with_time &frequency)
{
    slowCheck({ &m_globalBits, FrequencyRunning, EventFrequency, 0, &m_frequencyExtreme }, frequency,
              frequency.value > m_settings.frequencyUpper || frequency.value < m_settings.frequencyLower,
              isFarther(frequency.value, m_frequencyExtreme, m_settings.nominalFrequency));
}

void PowerEvents::checkEventVolt(int phase, const _value_with_time &voltage)
{
    if (phase < 0 || phase >= kEventPhases)
        return;
    slowCheck({ &m_phaseBits[phase], VoltageRunning, EventRms, phase, &m_voltageExtreme[phase] }, voltage,
              voltage.value > m_settings.voltageUpper || voltage.value < m_settings.voltageLower,
              isFarther(voltage.value, m_voltageExtreme[phase], m_settings.nominalVolt));
}

void PowerEvents::checkEventUnbal(const _value_with_time &ratio)
{
    slowCheck({ &m_globalBits, UnbalanceRunning, EventUnbalance, 0, &m_unbalanceMax }, ratio,
              ratio.value > m_settings.unbalanceLimit, ratio.value > m_unbalanceMax);
}

void PowerEvents::checkEventHarm(int phase, int index, const _value_with_time &ratio)
{
    if (phase < 0 || phase >= kEventPhases || index < 0 || index >= kHarmonicLimits)
        return;
    slowCheck({ &m_harmonicBits[phase], 1u << index, index, phase, &m_harmonicMax[phase][index] }, ratio,
              ratio.value > m_settings.harmonicLimit[index], ratio.value > m_harmonicMax[phase][index]);
}

void PowerEvents::checkEventFlicker(int phase, const _value_with_time &plt)
{
    if (phase < 0 || phase >= kEventPhases)
        return;
    slowCheck({ &m_phaseBits[phase], FlickerRunning, EventFlicker, phase, &m_flickerMax[phase] }, plt,
              plt.value > m_settings.flickerLimit, plt.value > m_flickerMax[phase]);
}

void PowerEvents::checkRVC(int channel)
{
    const RvcLimits limits
        = { m_settings.nominalVolt - m_settings.dipLevel, m_settings.swellLevel - m_settings.nominalVolt };
    RvcChange change;
    if (!m_rvc[channel].rvc_events_loop(limits, m_counter < kEventLimit, &change))
        return;
    // Listed as finished at once: no curves, no duration, no buzzer, no waveform.
    ++m_counter;
    PQAEventItem event;
    event.channel = channel;
    event.type = EventRvc;
    event.finished = 1;
    event.value = change.value;
    event.startSeconds = quint32(change.startTime / 1000);
    event.startTime = change.startTime;
    event.endTime = change.endTime;
    m_events.append(event);
    refreshMbEvents();
}
