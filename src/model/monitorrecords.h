#pragma once

#include <QList>
#include <QtGlobal>

#include <cstddef>
#include <type_traits>

// What the monitor function found so far. LiveData owns it, the monitor writes it, its pages read it; main thread only.

constexpr int kMonitorPhases = 3;
constexpr int kMonitorHarmonics = 25; // row 0: THD, row k: order k + 1
constexpr int kMonitorTrendValues = 1024; // longest trend: a week and two hours of 10-minute values

/// Results of the monitor, 301 words. A ratio is percent of the limit, of flicker a plain quotient. A result is 1:
/// complies, 0: fails; before the first value it is 1. Arrays hold L1, L2, L3; a phase that is not measured keeps what
/// it begins with.
struct __monitor_data
{
    qint32 freqReady = 0; // 1: there is a 10-second frequency
    qint32 voltReady = 0; // 1: there are 10-minute values
    qint32 flickerReady = 0; // 1: there is a long-term flicker value

    float voltMax[kMonitorPhases] = {}; // V, of 10 minutes
    float voltMin[kMonitorPhases] = {}; // V; 0: none yet
    float voltWorstPartial[kMonitorPhases] = {}; // V, where the ratio is largest
    float voltWorstWhole[kMonitorPhases] = {};
    float voltPartialRatio[kMonitorPhases] = {};
    float voltWholeRatio[kMonitorPhases] = {};
    float voltPercentileNep[kMonitorPhases] = {}; // V
    float voltPercentileAll[kMonitorPhases] = {};
    qint32 voltPartialOk[kMonitorPhases] = { 1, 1, 1 };
    qint32 voltWholeOk[kMonitorPhases] = { 1, 1, 1 };

    float harmPartialRatio[kMonitorPhases][kMonitorHarmonics] = {}; // of the last 10 minutes
    float harmWholeRatio[kMonitorPhases][kMonitorHarmonics] = {}; // 0 where the limit is not applied
    qint32 harmOk[kMonitorPhases][kMonitorHarmonics];

    float pltValue[kMonitorPhases] = {};
    float pltPartialRatio[kMonitorPhases] = {}; // quotient
    float pltWholeRatio[kMonitorPhases] = {};
    float pltPercentileNep[kMonitorPhases] = {};
    float pltPercentileAll[kMonitorPhases] = {};
    qint32 pltOk[kMonitorPhases] = { 1, 1, 1 };

    float unbalPartialRatio = 0;
    float unbalWholeRatio = 0;
    qint32 unbalOk = 1;

    float freqMax = 0; // Hz, of 10 seconds; within nominal - 10 to nominal + 10
    float freqMin = 0;
    float freqWorstPartial = 0; // Hz, where the ratio is largest; 0: none yet
    float freqWorstWhole = 0;
    float freqPartialRatio = 0;
    float freqWholeRatio = 0;
    float freqPercentileNep = 0; // Hz
    float freqPercentileAll = 0;
    qint32 freqPartialOk = 1;
    qint32 freqWholeOk = 1;

    float signal1PercentileNep[kMonitorPhases] = {}; // of the nominal voltage, last 10 minutes
    float signal1PercentileAll[kMonitorPhases] = {};
    float signal2PercentileNep[kMonitorPhases] = {};
    float signal2PercentileAll[kMonitorPhases] = {};

    __monitor_data()
    {
        for (auto &phase : harmOk) {
            for (qint32 &row : phase)
                row = 1;
        }
    }
};
static_assert(sizeof(__monitor_data) == 4 * 301, "words of the record");
static_assert(offsetof(__monitor_data, voltMax) == 4 * 3 && offsetof(__monitor_data, voltWorstPartial) == 4 * 9
                  && offsetof(__monitor_data, voltPartialRatio) == 4 * 15
                  && offsetof(__monitor_data, voltPercentileNep) == 4 * 21
                  && offsetof(__monitor_data, voltPartialOk) == 4 * 27,
              "voltage: words 3 to 32");
static_assert(offsetof(__monitor_data, harmPartialRatio) == 4 * 33 && offsetof(__monitor_data, harmOk) == 4 * 183,
              "harmonics: words 33 to 257");
static_assert(offsetof(__monitor_data, pltValue) == 4 * 258 && offsetof(__monitor_data, pltOk) == 4 * 273
                  && offsetof(__monitor_data, unbalPartialRatio) == 4 * 276,
              "flicker and unbalance: words 258 to 278");
static_assert(offsetof(__monitor_data, freqMax) == 4 * 279 && offsetof(__monitor_data, freqWorstPartial) == 4 * 281
                  && offsetof(__monitor_data, freqPercentileNep) == 4 * 285
                  && offsetof(__monitor_data, freqPartialOk) == 4 * 287,
              "frequency: words 279 to 288");
static_assert(offsetof(__monitor_data, signal1PercentileNep) == 4 * 289
                  && offsetof(__monitor_data, signal2PercentileNep) == 4 * 295,
              "mains signals: words 289 to 300");
static_assert(std::is_trivially_copyable_v<__monitor_data>, "plain words");

/// Rows of the monitor's trend; where there are phases, L1 to L3 follow each other.
enum MonitorTrendRow {
    MonitorTrendVoltage = 4, // V, of 10 minutes
    MonitorTrendThd = 12, // percent of the fundamental, of 10 minutes
    MonitorTrendPlt = 20, // long-term flicker
    MonitorTrendUnbalance = 28, // percent, negative sequence, of 10 minutes
    MonitorTrendFrequency = 36 // Hz, mean of 10 minutes
};
constexpr int kMonitorTrendRows = 37;

/// Lists behind the monitor's trend pages, newest value last.
struct __monitor_trend
{
    QList<float> row[kMonitorTrendRows];

    /// Appends to a row, whose oldest value goes when it is full.
    void append(int place, float value)
    {
        QList<float> &list = row[place];
        if (list.size() >= kMonitorTrendValues)
            list.removeFirst();
        list.append(value);
    }
};
