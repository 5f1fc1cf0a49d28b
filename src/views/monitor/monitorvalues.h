#pragma once

#include "model/channelset.h"
#include "model/eventselection.h"
#include "model/monitorrecords.h"
#include "settings/limits.h"
#include "widgets/charts/monitorharmhisto.h"
#include "widgets/charts/monitorhistogram.h"

#include <array>

/// Bars of the histogram, from left to right; L2 and L3 follow the first three.
enum MonitorBar {
    MonitorBarVoltage = 0,
    MonitorBarHarmonics = 3,
    MonitorBarFlicker = 6,
    MonitorBarDirs = 9, // dips, interruptions, rapid changes, swells
    MonitorBarUnbalance = 10,
    MonitorBarFrequency = 11,
    MonitorBarSignals = 12,
};

/// Events of a run that the limit set allows so many of.
struct MonitorEventCounts
{
    int dips = 0;
    int swells = 0;
    int interruptions = 0;
    int rvc = 0;
};

/// What the pages of the monitor judge by: the results as they stand, the set they are compared with, the wiring.
struct MonitorView
{
    const __monitor_data &data;
    const __monitor_trend &trend;
    const monitor_limit &limit;
    const ChannelSet &channels;
    MonitorEventCounts events = {};
};

/// From the results to what the histograms draw. Pure functions.
namespace MonitorValues {

enum Verdict { None, Within, Exceeded }; // None: no value yet

MonitorEventCounts count(const EventSelection &events);

/// Bars that a wiring has, a bit each: phases as many as are measured, the unbalance where there are three.
int histogramFlags(const ChannelSet &channels);
/// The bars of the histogram. Of several values behind one bar the worst counts.
std::array<ComplianceBar, MonitorHistogram::kBars> histogram(const MonitorView &view);
/// The bars of a phase's harmonics.
std::array<ComplianceBar, MonitorHarmHisto::kBars> harmonics(const MonitorView &view, int phase);

/// The limit of a row for all the time; kLimitNotApplied where the results go by none. The one of an order counts where
/// it is no larger than that of the distortion.
float harmonicWhole(const monitor_limit &limit, int row);
/// The smallest of all rows.
float harmonicWhole(const monitor_limit &limit);
/// The narrower side of a band for all the time.
float bandWhole(const LimitBand<float> &band);

/// Whether any value behind a bar was beyond its limits since the run began. The results of voltage and frequency are
/// not asked: they compare volts and hertz with percents (docs/kept.md), and fail where the ratios show nothing.
Verdict verdict(const MonitorView &view, int bar);
Verdict harmonicVerdict(const MonitorView &view, int phase, int row);

/// Row of a phase's harmonics that is nearest to its limit, or farthest above it.
int worstHarmonic(const __monitor_data &data, int phase);
/// Largest percentiles of the three phases, percent: at the time allowed and at all the time.
struct Signal
{
    float nep;
    float all;
};
Signal worstSignal(const MonitorView &view, int number); // 1 or 2

} // namespace MonitorValues
