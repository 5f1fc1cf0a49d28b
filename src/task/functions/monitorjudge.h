#pragma once

#include "task/functions/monitorband.h"
#include "task/functions/monitorsetup.h"
#include "task/functions/monitorsums.h"

struct __monitor_data;
struct __monitor_trend;
class SlowChecks;

/// Judges the values of a run of the monitor against its limits, keeps the records of its pages, and lets the event
/// detection see them. Times are ms since 1970. The wording of each rule: docs/formats/monitor.md.
class MonitorJudge
{
public:
    /// \a data, \a trend and \a events outlive it.
    MonitorJudge(const MonitorSetup &setup, __monitor_data &data, __monitor_trend &trend, SlowChecks &events);

    /// Mean of ten seconds.
    void frequency(float mean, qint64 time);
    // Means of ten minutes.
    void meanFrequency(float mean);
    void voltage(int phase, float mean, qint64 time);
    /// Percent, negative sequence.
    void unbalance(float ratio, qint64 time);
    /// \a row 0: THD, k: order k + 1; percent of the fundamental.
    void harmonic(int phase, int row, float ratio, qint64 time);
    /// All of \a sums that is no value of its own: percentiles of the mains-signalling values.
    void signal(MonitorSums &sums);
    /// A long-term flicker value.
    void plt(int phase, float value, qint64 time);

    const MonitorSetup &setup() const { return m_setup; }

private:
    void frequencyExtremes(float mean);
    void frequencyRatios(float mean);
    void voltageRatios(int phase, float mean);

    const MonitorSetup m_setup;
    __monitor_data &m_data;
    __monitor_trend &m_trend;
    SlowChecks &m_events;

    const MonitorBand m_frequencyBand;
    const MonitorBand m_voltageBand;
    MonitorBandRecord m_frequencies;
    MonitorBandRecord m_voltages[kMonitorPhases];
    SortedValues m_plts[kMonitorPhases];
    int m_harmonicValues[kMonitorPhases][kMonitorHarmonics] = {};
    int m_harmonicsWithin[kMonitorPhases][kMonitorHarmonics] = {};
};
