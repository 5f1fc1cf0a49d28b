#pragma once

#include "model/datagramrecords.h"
#include "model/monitorrecords.h"

#include <vector>

constexpr int kMonitorSpectrumRows = 50; // rows of a stored spectrum

/// What aggregations add up to until ten seconds, or ten minutes, are full. Plain arithmetic.
class MonitorSums
{
public:
    void add(const __datagram_aggregation &record);

    /// Mean frequency of the ten seconds that end; not a number when no aggregation came.
    float takeTenSeconds();

    // Means of the ten minutes that end; not a number when no aggregation came.
    int count() const { return m_count; }
    float frequency() const { return float(m_frequency / m_count); }
    float voltage(int phase) const { return float(m_voltage[phase] / m_count); }
    /// Root mean square of the ratios in percent; 0: negative, 1: zero sequence.
    float unbalance(int sequence) const;
    /// Row 0: distortion, row k: order k + 1. A: of the voltage, percent of its fundamental. Nothing is negative.
    float spectrumA(int phase, int row) const { return spectrum(m_a[phase][row]); }
    /// B: of the current; row 0 in percent of the voltage's fundamental, the others in percent of the distortion.
    float spectrumB(int phase, int row) const { return spectrum(m_b[phase][row]); }
    /// Mains-signalling values of these ten minutes in ascending order, of the first (0) or the second frequency.
    const std::vector<float> &sortedSignal(int frequency, int phase);
    /// The next ten minutes begin.
    void clearTenMinutes();

private:
    /// Ten minutes have 3000 aggregations. While the measurement is held no ten minutes end; what comes then in a
    /// quarter of a day has room.
    static constexpr std::size_t kMostSignals = 108000;

    void addSpectra(const __datagram_aggregation &record, int phase);
    float spectrum(double sum) const;

    double m_secondsFrequency = 0;
    int m_secondsCount = 0;
    int m_count = 0;
    double m_frequency = 0;
    double m_voltage[kMonitorPhases] = {};
    double m_squares[2] = {};
    double m_a[kMonitorPhases][kMonitorSpectrumRows] = {};
    double m_b[kMonitorPhases][kMonitorSpectrumRows] = {};
    std::vector<float> m_signal[2][kMonitorPhases];
};
