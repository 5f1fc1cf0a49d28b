#include "task/functions/monitorjudge.h"

#include "detect/slowchecks.h"
#include "device/datatypes.h"
#include "model/monitorrecords.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kFrequencySpan = 10; // Hz on both sides of nominal, for the extremes shown

bool isApplied(float limit)
{
    return limit < kLimitNotApplied;
}

/// 0 when all values of a trend reach the limit, else 1. Kept: the share of those from the newest back to the first
/// one below the limit is divided as whole numbers.
int trendOk(const QList<float> &trend, float limit)
{
    const bool anyBelow = std::any_of(trend.begin(), trend.end(), [limit](float value) { return value < limit; });
    return trend.isEmpty() || anyBelow;
}

/// The largest ratio so far and the value that has it; 0 as the worst value: none yet.
void keepLargest(float ratio, float value, float &largest, float &worst)
{
    if (std::isnan(ratio) || (worst != 0 && !(ratio > largest)))
        return;
    largest = ratio;
    worst = value;
}

} // namespace

MonitorJudge::MonitorJudge(const MonitorSetup &setup, __monitor_data &data, __monitor_trend &trend, SlowChecks &events)
    : m_setup(setup), m_data(data), m_trend(trend), m_events(events),
      m_frequencyBand(setup.limits.frequency, setup.nominalFrequency),
      m_voltageBand(setup.limits.voltage, setup.nominalVolt)
{ }

// Frequency

void MonitorJudge::frequency(float mean, qint64 time)
{
    m_data.freqReady = 1;
    if (!std::isnan(mean))
        frequencyExtremes(mean);
    m_events.checkEventFreq({ time, mean });
    frequencyRatios(mean);
    m_frequencies.take(m_frequencyBand, mean);
    m_data.freqPercentileNep = m_frequencies.percentile(m_frequencyBand.nep() / 100);
    m_data.freqPercentileAll = m_frequencies.percentile(1);
    m_data.freqPartialOk = m_frequencies.partialOk();
    m_data.freqWholeOk = m_frequencies.wholeOk();
}

void MonitorJudge::frequencyExtremes(float mean)
{
    const float highest = float(m_frequencyBand.nominal() + kFrequencySpan);
    const float lowest = float(m_frequencyBand.nominal() - kFrequencySpan);
    if (m_frequencies.size() == 0) {
        m_data.freqMax = m_data.freqMin = std::clamp(mean, lowest, highest);
        return;
    }
    // Kept: the minimum is looked at only when the maximum did not rise.
    if (mean > m_data.freqMax)
        m_data.freqMax = std::min(mean, highest);
    else if (mean < m_data.freqMin)
        m_data.freqMin = std::max(mean, lowest);
}

void MonitorJudge::frequencyRatios(float mean)
{
    const MonitorBand::Ratios ratios = m_frequencyBand.ratios(mean);
    keepLargest(ratios.partial, mean, m_data.freqPartialRatio, m_data.freqWorstPartial);
    keepLargest(ratios.whole, mean, m_data.freqWholeRatio, m_data.freqWorstWhole);
}

void MonitorJudge::meanFrequency(float mean)
{
    m_data.voltReady = 1;
    m_trend.append(MonitorTrendFrequency, mean);
}

// Voltage

void MonitorJudge::voltage(int phase, float mean, qint64 time)
{
    MonitorBandRecord &record = m_voltages[phase];
    const bool first = record.size() == 0;
    if (!std::isnan(mean)) {
        m_data.voltMax[phase] = first ? mean : std::max(m_data.voltMax[phase], mean);
        m_data.voltMin[phase] = first ? mean : std::min(m_data.voltMin[phase], mean);
    }
    m_events.checkEventVolt(phase, { time, mean });
    voltageRatios(phase, mean);
    m_trend.append(MonitorTrendVoltage + phase, mean);
    record.take(m_voltageBand, mean);
    m_data.voltPercentileNep[phase] = record.percentile(m_voltageBand.nep() / 100);
    m_data.voltPercentileAll[phase] = record.percentile(1);
    m_data.voltPartialOk[phase] = record.partialOk();
    m_data.voltWholeOk[phase] = record.wholeOk();
}

void MonitorJudge::voltageRatios(int phase, float mean)
{
    const MonitorBand::Ratios ratios = m_voltageBand.ratios(mean);
    if (ratios.partial > m_data.voltPartialRatio[phase]) {
        m_data.voltPartialRatio[phase] = ratios.partial;
        m_data.voltWorstPartial[phase] = mean;
    }
    const float whole = m_voltageBand.hasWhole(mean) ? ratios.whole : 0;
    // Kept: what is not a number takes the place of any ratio, and any ratio takes its place.
    if (!(whole < m_data.voltWholeRatio[phase])) {
        m_data.voltWholeRatio[phase] = whole;
        m_data.voltWorstWhole[phase] = mean;
    }
}

// Unbalance and harmonics

void MonitorJudge::unbalance(float ratio, qint64 time)
{
    const LimitTolerance<float> &limit = m_setup.limits.neg;
    m_trend.append(MonitorTrendUnbalance, ratio);
    m_events.checkEventUnbal({ time, ratio });
    m_data.unbalPartialRatio = ratio * 100 / limit.partial;
    m_data.unbalWholeRatio = isApplied(limit.whole) ? ratio * 100 / limit.whole : 0;
    m_data.unbalOk = trendOk(m_trend.row[MonitorTrendUnbalance], limit.partial);
}

void MonitorJudge::harmonic(int phase, int row, float ratio, qint64 time)
{
    const float partial = m_setup.limits.harmonicPartial[row];
    const float whole = m_setup.limits.harmonicWhole[row];
    m_events.checkEventHarm(phase, row, { time, ratio });
    if (row == 0)
        m_trend.append(MonitorTrendThd + phase, ratio);
    m_data.harmPartialRatio[phase][row] = ratio * 100 / partial;
    // Kept: of an order the limit counts where it is no larger than that of the distortion.
    const bool applied = row == 0 ? isApplied(whole) : whole <= m_setup.limits.harmonicWhole[0];
    m_data.harmWholeRatio[phase][row] = applied ? ratio * 100 / whole : 0;
    ++m_harmonicValues[phase][row];
    if (ratio < partial)
        ++m_harmonicsWithin[phase][row];
    // Kept: divided as whole numbers, so that one value outside is enough.
    m_data.harmOk[phase][row] = m_harmonicsWithin[phase][row] / m_harmonicValues[phase][row];
}

// Mains signals and flicker

void MonitorJudge::signal(MonitorSums &sums)
{
    const LimitSignal<float> *const limits[] = { &m_setup.limits.frequency1, &m_setup.limits.frequency2 };
    float *const nep[] = { m_data.signal1PercentileNep, m_data.signal2PercentileNep };
    float *const all[] = { m_data.signal1PercentileAll, m_data.signal2PercentileAll };
    for (int frequency = 0; frequency < 2; ++frequency) {
        for (int phase = 0; phase < kMonitorPhases; ++phase) {
            const std::vector<float> &values = sums.sortedSignal(frequency, phase);
            const auto at = [&values](int place) { return values[std::size_t(place)]; };
            nep[frequency][phase] = DataTypes::percentileOf(limits[frequency]->nep / 100, int(values.size()), at);
            all[frequency][phase] = DataTypes::percentileOf(1, int(values.size()), at);
        }
    }
}

void MonitorJudge::plt(int phase, float value, qint64 time)
{
    const LimitFlicker<float> &limit = m_setup.limits.plt;
    m_data.flickerReady = 1;
    m_trend.append(MonitorTrendPlt + phase, value);
    m_events.checkEventFlicker(phase, { time, value });
    m_data.pltValue[phase] = value;
    // Kept: quotients, not percent, and the whole limit counts where the other quantities leave it out.
    m_data.pltPartialRatio[phase] = value / limit.partial;
    m_data.pltWholeRatio[phase] = limit.whole > 100.0f ? value / limit.whole : 0;
    m_plts[phase].insert(value);
    m_data.pltPercentileNep[phase] = m_plts[phase].percentile(limit.nep / 100);
    m_data.pltPercentileAll[phase] = m_plts[phase].percentile(1);
    m_data.pltOk[phase] = trendOk(m_trend.row[MonitorTrendPlt + phase], limit.partial);
}
