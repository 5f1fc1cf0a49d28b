#include "task/functions/monitorsums.h"

#include <algorithm>
#include <cmath>

void MonitorSums::add(const __datagram_aggregation &record)
{
    m_secondsFrequency += double(record.frequency);
    ++m_secondsCount;
    m_frequency += double(record.frequency);
    ++m_count;
    for (int phase = 0; phase < kMonitorPhases; ++phase) {
        m_voltage[phase] += double(record.channel[phase].voltage);
        const MainsSignalRow &signal = record.mainsSignal[phase];
        const float ratios[] = { signal.ratio1, signal.ratio2 };
        for (int frequency = 0; frequency < 2; ++frequency) {
            std::vector<float> &values = m_signal[frequency][phase];
            if (!std::isnan(ratios[frequency]) && values.size() < kMostSignals)
                values.push_back(ratios[frequency]);
        }
        addSpectra(record, phase);
    }
    const double ratios[] = { double(record.voltageSequence.negativeRatio), double(record.voltageSequence.zeroRatio) };
    for (int sequence = 0; sequence < 2; ++sequence)
        m_squares[sequence] += ratios[sequence] * ratios[sequence];
}

void MonitorSums::addSpectra(const __datagram_aggregation &record, int phase)
{
    const double fundamental = double(record.channel[phase].voltageFundamental);
    if (!(fundamental > 0))
        return;
    const ChannelSpectrum &spectrum = record.spectrum[phase];
    const double distortion = double(spectrum.currentDistortion);
    m_a[phase][0] += double(spectrum.voltageDistortion) / fundamental * 100;
    m_b[phase][0] += distortion / fundamental * 100;
    for (int row = 1; row < kMonitorSpectrumRows; ++row) {
        m_a[phase][row] += double(spectrum.voltage[row].magnitude) / fundamental * 100;
        // Without distortion its lines have no share in it.
        if (distortion > 0)
            m_b[phase][row] += double(spectrum.current[row].magnitude) / distortion * 100;
    }
}

float MonitorSums::takeTenSeconds()
{
    const float mean = float(m_secondsFrequency / m_secondsCount);
    m_secondsFrequency = 0;
    m_secondsCount = 0;
    return mean;
}

float MonitorSums::unbalance(int sequence) const
{
    return float(std::sqrt(m_squares[sequence] / m_count));
}

float MonitorSums::spectrum(double sum) const
{
    const float mean = float(sum / m_count);
    return mean < 0 ? 0 : mean;
}

const std::vector<float> &MonitorSums::sortedSignal(int frequency, int phase)
{
    std::vector<float> &values = m_signal[frequency][phase];
    std::sort(values.begin(), values.end());
    return values;
}

void MonitorSums::clearTenMinutes()
{
    m_count = 0;
    m_frequency = 0;
    std::fill_n(m_voltage, kMonitorPhases, 0.0);
    std::fill_n(m_squares, 2, 0.0);
    std::fill_n(&m_a[0][0], kMonitorPhases * kMonitorSpectrumRows, 0.0);
    std::fill_n(&m_b[0][0], kMonitorPhases * kMonitorSpectrumRows, 0.0);
    for (auto &frequency : m_signal) {
        for (std::vector<float> &values : frequency)
            values.clear();
    }
}
