#include "task/displayfeed.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace DisplayFeed {

void feedVif(const __datagram_aggregation &from, __vif_data &to)
{
    for (int c = 0; c < kChannels; ++c) {
        const ChannelRms &row = from.channel[c];
        to.voltage[c] = row.voltage;
        to.voltagePeak[c] = row.voltagePeak;
        to.voltageOffset[c] = row.voltageOffset;
        to.voltageCrest[c] = row.voltageCrest;
        to.current[c] = row.current;
        to.currentPeak[c] = row.currentPeak;
        to.currentOffset[c] = row.currentOffset;
        to.currentCrest[c] = row.currentCrest;
    }
}

void feedPower(const __datagram_aggregation &from, __power_data &to)
{
    for (int c = 0; c < 3; ++c) {
        to.voltage[c] = from.channel[c].voltage;
        to.current[c] = from.channel[c].current;
    }
    for (int c = 0; c < kChannels; ++c) {
        const PowerRow &power = from.power[c];
        to.row[c]
            = { power.active, power.reactive, power.apparent, power.factor, power.fundamentalFactor, power.tangent };
        to.activeEnergy[c] = float(from.energy[c].active);
        to.apparentEnergy[c] = float(from.energy[c].apparent);
        to.reactiveEnergy[c] = float(from.energy[c].reactive);
    }
}

namespace {

void feedHarmChannel(float rms, float offset, float distortion, const SpectrumLine *lines, const SpectrumLine *inter,
                     int orders, HarmChannel &to)
{
    to.rms = rms;
    to.offset = offset;
    to.distortion = distortion;
    for (int h = 0; h < orders; ++h) {
        to.harmonic[h] = { lines[h].magnitude, lines[h].frequency, lines[h].phase };
        to.inter[h].magnitude = inter[h].magnitude;
        to.inter[h].frequency = inter[h].frequency;
    }
}

float mean(const QList<float> &values)
{
    return std::accumulate(values.begin(), values.end(), 0.0f) / float(values.size());
}

} // namespace

void feedHarmonics(const __datagram_aggregation &from, int orders, harm_data &to)
{
    const int n = std::clamp(orders, 0, kHarmonicOrders);
    for (int c = 0; c < kChannels; ++c) {
        const ChannelRms &row = from.channel[c];
        const ChannelSpectrum &spectrum = from.spectrum[c];
        feedHarmChannel(row.voltage, row.voltageOffset, spectrum.voltageDistortion, spectrum.voltage,
                        spectrum.voltageInter, n, to.channel[c]);
        feedHarmChannel(row.current, row.currentOffset, spectrum.currentDistortion, spectrum.current,
                        spectrum.currentInter, n, to.channel[c + kChannels]);
    }
}

void feedUnbalance(const __datagram_aggregation &from, __unbalance_data &to)
{
    to.frequency = from.frequency;
    to.voltageNegativeRatio = from.voltageSequence.negativeRatio;
    to.voltageZeroRatio = from.voltageSequence.zeroRatio;
    to.currentNegativeRatio = from.currentSequence.negativeRatio;
    to.currentZeroRatio = from.currentSequence.zeroRatio;
    for (int c = 0; c < kChannels; ++c) {
        const ChannelRms &row = from.channel[c];
        to.voltageFundamental[c] = row.voltageFundamental;
        to.currentFundamental[c] = row.currentFundamental;
        to.voltageAngle[c] = row.voltageAngle;
        to.currentAngle[c] = row.currentAngle;
        to.angleDifference[c] = row.angleDifference;
    }
}

void feedMainsSignal(const __datagram_aggregation &from, float signedFrequency, __mains_sig_data &to)
{
    to.frequency = signedFrequency;
    for (int c = 0; c < kChannels; ++c) {
        const MainsSignalRow &row = from.mainsSignal[c];
        to.signal1[c] = row.ratio1;
        to.signal2[c] = row.ratio2;
        appendLimited(to.mean1[c], row.volt1, kMainsSignalMeans);
        appendLimited(to.mean2[c], row.volt2, kMainsSignalMeans);
        to.signal1Mean[c] = mean(to.mean1[c]);
        to.signal2Mean[c] = mean(to.mean2[c]);
    }
}

void appendLimited(QList<float> &list, float value, int limit)
{
    while (list.size() >= limit && !list.isEmpty())
        list.removeFirst();
    list.append(value);
}

void trendVif(__vif_data &data)
{
    const struct
    {
        VifTrend trend;
        const float *values;
    } rows[] = {
        { VifTrendURms, data.voltage },        { VifTrendUPeak, data.voltagePeak },
        { VifTrendUCrest, data.voltageCrest }, { VifTrendUDc, data.voltageOffset },
        { VifTrendIRms, data.current },        { VifTrendIPeak, data.currentPeak },
        { VifTrendICrest, data.currentCrest }, { VifTrendIDc, data.currentOffset },
    };
    for (const auto &row : rows) {
        for (int c = 0; c < kChannels; ++c)
            appendLimited(data.trend[row.trend].series[c], row.values[c], kTrendPoints);
    }
    appendLimited(data.trend[VifTrendFrequency].series[0], std::fabs(data.frequency), kTrendPoints);
}

void trendPower(__power_data &data)
{
    for (int c = 0; c < kChannels; ++c) {
        const PowerDisplayRow &row = data.row[c];
        const float values[]
            = { row.active, row.apparent, row.reactive, row.factor, row.fundamentalFactor, row.tangent };
        for (int q = 0; q < 6; ++q)
            appendLimited(data.trend[q].series[c], values[q], kTrendPoints);
    }
    for (int c = 0; c < 3; ++c) {
        appendLimited(data.trend[6].series[c], data.voltage[c], kTrendPoints);
        appendLimited(data.trend[7].series[c], data.current[c], kTrendPoints);
    }
}

void trendMainsSignal(__mains_sig_data &data)
{
    for (int c = 0; c < kChannels; ++c) {
        const float values[] = { data.signal1[c] * 100.0f, data.signal1Mean[c], data.signal2[c] * 100.0f,
                                 data.signal2Mean[c],      data.rms1[c],        data.rms2[c] };
        for (int q = 0; q < 6; ++q)
            appendLimited(data.trend[q].series[c], values[q], kTrendPoints);
    }
    appendLimited(data.frequencyTrend, std::fabs(data.frequency), kTrendPoints);
}

} // namespace DisplayFeed
