#include "views/monitor/monitorvalues.h"

#include <algorithm>
#include <cmath>

namespace MonitorValues {

namespace {

/// A limit that allows no event at all has no percentage; it shows whether there was one.
constexpr float kBeyond = 200.0f;

float percentOf(int count, int allowed)
{
    if (count <= 0)
        return 0;
    return allowed > 0 ? 100.0f * float(count) / float(allowed) : kBeyond;
}

/// The larger one; what is no number never wins.
float worse(float a, float b)
{
    return std::fmax(a, b);
}

ComplianceBar worse(const ComplianceBar &a, const ComplianceBar &b)
{
    return { worse(a.limit, b.limit), worse(a.allowed, b.allowed) };
}

ComplianceBar harmonicBar(const MonitorView &view, int phase, int row)
{
    const bool applied = harmonicWhole(view.limit, row) < kLimitNotApplied;
    return { applied ? view.data.harmWholeRatio[phase][row] : 0.0f, view.data.harmPartialRatio[phase][row] };
}

ComplianceBar worstHarmonicBar(const MonitorView &view, int phase)
{
    ComplianceBar worst;
    for (int row = 0; row < kMonitorHarmonics; ++row)
        worst = worse(worst, harmonicBar(view, phase, row));
    return worst;
}

ComplianceBar eventBar(const MonitorView &view)
{
    const float worst = std::max({ percentOf(view.events.dips, view.limit.dips.maxAllowed),
                                   percentOf(view.events.swells, view.limit.swells.maxAllowed),
                                   percentOf(view.events.interruptions, view.limit.interruptions.maxAllowed),
                                   percentOf(view.events.rvc, view.limit.rvc.maxAllowed) });
    return { worst, worst };
}

float ratio(float value, float limit)
{
    return limit > 0 ? value * 100.0f / limit : 0.0f;
}

/// Of flicker the record has quotients, and of a whole limit only where there is none: the part that counts follows
/// from the largest value.
ComplianceBar flickerBar(const MonitorView &view, int phase)
{
    const float whole = view.limit.plt.whole;
    return { whole < kLimitNotApplied ? ratio(view.data.pltPercentileAll[phase], whole) : 0.0f,
             view.data.pltPartialRatio[phase] * 100.0f };
}

ComplianceBar signalBar(const MonitorView &view)
{
    ComplianceBar worst;
    const LimitSignal<float> *limits[] = { &view.limit.frequency1, &view.limit.frequency2 };
    for (int i = 0; i < 2; ++i) {
        const Signal signal = worstSignal(view, i + 1);
        const float whole = limits[i]->whole;
        worst = worse(
            worst,
            { whole < kLimitNotApplied ? ratio(signal.all, whole) : 0.0f, ratio(signal.nep, limits[i]->partial) });
    }
    return worst;
}

bool harmonicsWithin(const __monitor_data &data, int phase)
{
    return std::all_of(std::begin(data.harmOk[phase]), std::end(data.harmOk[phase]), [](qint32 ok) { return ok > 0; });
}

bool isWithin(const ComplianceBar &bar)
{
    return bar.limit <= 100.0f && bar.allowed <= 100.0f;
}

/// Not above the limits of \a tolerance; what is no number is above none.
template <typename Tolerance> bool isBelow(float value, const Tolerance &tolerance)
{
    const bool exceeds = value > tolerance.partial || (tolerance.whole < kLimitNotApplied && value > tolerance.whole);
    return !exceeds;
}

Verdict verdictOf(bool ready, bool within)
{
    return !ready ? None : within ? Within : Exceeded;
}

} // namespace

MonitorEventCounts count(const EventSelection &events)
{
    MonitorEventCounts counts;
    for (int i = 0; i < events.size(); ++i) {
        switch (events.at(i).type) {
        case EventDip:
            ++counts.dips;
            break;
        case EventSwell:
            ++counts.swells;
            break;
        case EventInterruption:
            ++counts.interruptions;
            break;
        case EventRvc:
            ++counts.rvc;
            break;
        default:
            break;
        }
    }
    return counts;
}

int histogramFlags(const ChannelSet &channels)
{
    int flags = 1 << MonitorBarDirs | 1 << MonitorBarFrequency | 1 << MonitorBarSignals;
    for (int phase = 0; phase < channels.taskPhases; ++phase)
        flags
            |= 1 << (MonitorBarVoltage + phase) | 1 << (MonitorBarHarmonics + phase) | 1 << (MonitorBarFlicker + phase);
    if (channels.taskPhases == kMonitorPhases)
        flags |= 1 << MonitorBarUnbalance;
    return flags;
}

std::array<ComplianceBar, MonitorHistogram::kBars> histogram(const MonitorView &view)
{
    const __monitor_data &data = view.data;
    std::array<ComplianceBar, MonitorHistogram::kBars> bars;
    for (int phase = 0; phase < kMonitorPhases; ++phase) {
        bars[std::size_t(MonitorBarVoltage + phase)] = { data.voltWholeRatio[phase], data.voltPartialRatio[phase] };
        bars[std::size_t(MonitorBarHarmonics + phase)] = worstHarmonicBar(view, phase);
        bars[std::size_t(MonitorBarFlicker + phase)] = flickerBar(view, phase);
    }
    bars[MonitorBarDirs] = eventBar(view);
    bars[MonitorBarUnbalance] = { data.unbalWholeRatio, data.unbalPartialRatio };
    bars[MonitorBarFrequency]
        = { bandWhole(view.limit.frequency) < kLimitNotApplied ? data.freqWholeRatio : 0.0f, data.freqPartialRatio };
    bars[MonitorBarSignals] = signalBar(view);
    return bars;
}

std::array<ComplianceBar, MonitorHarmHisto::kBars> harmonics(const MonitorView &view, int phase)
{
    std::array<ComplianceBar, MonitorHarmHisto::kBars> bars;
    for (int row = 0; row < MonitorHarmHisto::kBars; ++row)
        bars[std::size_t(row)] = harmonicBar(view, phase, row);
    return bars;
}

float harmonicWhole(const monitor_limit &limit, int row)
{
    return limit.harmonicWhole[row] <= limit.harmonicWhole[0] ? limit.harmonicWhole[row] : kLimitNotApplied;
}

float harmonicWhole(const monitor_limit &limit)
{
    return *std::min_element(limit.harmonicWhole, limit.harmonicWhole + kMonitorHarmonics);
}

float bandWhole(const LimitBand<float> &band)
{
    return std::min(band.wholeUpper, band.wholeLower);
}

Verdict verdict(const MonitorView &view, int bar)
{
    const __monitor_data &data = view.data;
    const bool inBar = isWithin(histogram(view)[std::size_t(bar)]);
    if (bar < MonitorBarHarmonics)
        return verdictOf(data.voltReady > 0, inBar);
    if (bar < MonitorBarFlicker) // of which the bar shows the last ten minutes
        return verdictOf(data.voltReady > 0, inBar && harmonicsWithin(data, bar - MonitorBarHarmonics));
    if (bar < MonitorBarDirs)
        return verdictOf(data.flickerReady > 0,
                         inBar && isBelow(data.pltPercentileAll[bar - MonitorBarFlicker], view.limit.plt));
    switch (bar) {
    case MonitorBarUnbalance: {
        const QList<float> &trend = view.trend.row[MonitorTrendUnbalance];
        const bool all
            = std::all_of(trend.begin(), trend.end(), [&view](float value) { return isBelow(value, view.limit.neg); });
        return verdictOf(data.voltReady > 0, inBar && all);
    }
    case MonitorBarSignals:
        return verdictOf(data.voltReady > 0, inBar);
    default: // events, frequency
        return verdictOf(data.freqReady > 0, inBar);
    }
}

Verdict harmonicVerdict(const MonitorView &view, int phase, int row)
{
    return verdictOf(view.data.voltReady > 0, view.data.harmOk[phase][row] > 0);
}

int worstHarmonic(const __monitor_data &data, int phase)
{
    int worst = 0;
    for (int row = 1; row < kMonitorHarmonics; ++row) {
        if (data.harmPartialRatio[phase][row] > data.harmPartialRatio[phase][worst])
            worst = row;
    }
    return worst;
}

Signal worstSignal(const MonitorView &view, int number)
{
    const __monitor_data &data = view.data;
    const auto &nep = number == 1 ? data.signal1PercentileNep : data.signal2PercentileNep;
    const auto &all = number == 1 ? data.signal1PercentileAll : data.signal2PercentileAll;
    Signal worst { 0, 0 };
    for (int phase = 0; phase < view.channels.taskPhases; ++phase) {
        // The record has fractions of the nominal voltage.
        worst.nep = worse(worst.nep, nep[phase] * 100.0f);
        worst.all = worse(worst.all, all[phase] * 100.0f);
    }
    return worst;
}

} // namespace MonitorValues
