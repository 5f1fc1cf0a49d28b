#pragma once

#include "model/transparam.h"
#include "model/datagramrecords.h"

#include <QList>

#include <cstddef>
#include <type_traits>

// Records that the pages show. LiveData owns them, the task writes them, the pages read them; all on the main thread.

constexpr int kTrendPoints = 600; // one a second: ten minutes

/// Trend of one quantity: a series per channel.
struct __trend_data
{
    QList<float> series[kChannels];
};

/// Live values of the Volts/Amps/Hertz pages. The first 33 words are floats in a fixed order.
struct __vif_data
{
    float voltage[kChannels] = {}; // V r.m.s.
    float voltagePeak[kChannels] = {}; // V
    float voltageOffset[kChannels] = {}; // V
    float voltageCrest[kChannels] = {};
    float current[kChannels] = {}; // A r.m.s.
    float currentPeak[kChannels] = {}; // A
    float currentOffset[kChannels] = {}; // A
    float currentCrest[kChannels] = {};
    float frequency = 0; // Hz, signed as sent: negative means no lock
    /// In the order of the records: U rms, U peak, U crest factor, U dc, I rms, I peak, I crest factor, I dc,
    /// frequency.
    __trend_data trend[9];
};
static_assert(offsetof(__vif_data, voltage) == 0 && offsetof(__vif_data, current) == 4 * 16
                  && offsetof(__vif_data, frequency) == 4 * 32,
              "words that a saved page begins with");

enum VifTrend {
    VifTrendURms,
    VifTrendUPeak,
    VifTrendUCrest,
    VifTrendUDc,
    VifTrendIRms,
    VifTrendIPeak,
    VifTrendICrest,
    VifTrendIDc,
    VifTrendFrequency
};

/// Power quantities of one row as the power page orders them: reactive before apparent.
struct PowerDisplayRow
{
    float active; // W
    float reactive; // var
    float apparent; // VA
    float factor;
    float fundamentalFactor;
    float tangent;
};

/// Live values of the power pages: 48 words, then trends.
struct __power_data
{
    float voltage[3] = {}; // V, L1 to L3
    float current[3] = {}; // A
    float activeEnergy[kChannels] = {}; // Wh, L1, L2, L3, Total
    float apparentEnergy[kChannels] = {}; // VAh
    float reactiveEnergy[kChannels] = {}; // varh
    float reserved = 0;
    PowerDisplayRow row[kChannels] = {};
    float reserved2[2] = {};
    qint32 hours = 0, minutes = 0, seconds = 0; // running time of the energy counters
    /// P, S, Q, PF, cos phi, tan phi (series 3: total), U rms, I rms.
    __trend_data trend[8];
};
static_assert(sizeof(PowerDisplayRow) == 24 && std::is_trivially_copyable_v<PowerDisplayRow>, "six words a row");
static_assert(offsetof(__power_data, voltage) == 0 && offsetof(__power_data, activeEnergy) == 4 * 6
                  && offsetof(__power_data, row) == 4 * 19 && offsetof(__power_data, hours) == 4 * 45,
              "words that a saved page begins with");

/// One harmonic of one channel for the display.
struct HarmLine
{
    float magnitude; // V or A r.m.s.
    float frequency; // Hz
    float phase; // radians
};

/// Spectrum of one input for the display (603 words).
struct HarmChannel
{
    float rms; // V or A
    float offset; // V or A
    float distortion; // V or A: root-sum-square of the harmonics
    HarmLine harmonic[kHarmonicOrders];
    HarmLine inter[kHarmonicOrders]; // phase unused
};
static_assert(sizeof(HarmLine) == 12 && sizeof(HarmChannel) == 603 * 4, "stored block");
static_assert(offsetof(HarmChannel, harmonic) == 4 * 3 && offsetof(HarmChannel, inter) == 4 * 303, "words 3 and 303");

/// Live spectra, 19300 bytes; the saved page holds them byte for byte.
struct harm_data
{
    qint32 reference; // 1: percent of r.m.s. ("%r"), 2: percent of the fundamental ("%f")
    HarmChannel channel[8]; // U1, U2, U3, UN, I1, I2, I3, IN
};
static_assert(sizeof(harm_data) == 19300 && offsetof(harm_data, channel) == 4, "saved page record");
static_assert(std::is_trivially_copyable_v<harm_data>, "saved byte for byte");

/// Live values of the unbalance pages (100 bytes).
struct __unbalance_data
{
    float frequency; // Hz, magnitude
    float voltageNegativeRatio; // percent
    float voltageZeroRatio; // percent
    float currentNegativeRatio; // percent
    float currentZeroRatio; // percent
    float voltageFundamental[kChannels]; // V
    float currentFundamental[kChannels]; // A
    float voltageAngle[kChannels]; // degrees
    float currentAngle[kChannels]; // degrees
    float angleDifference[kChannels]; // degrees
};
static_assert(sizeof(__unbalance_data) == 100, "saved page record");
static_assert(offsetof(__unbalance_data, voltageFundamental) == 4 * 5
                  && offsetof(__unbalance_data, voltageAngle) == 4 * 13
                  && offsetof(__unbalance_data, angleDifference) == 4 * 21,
              "words 5, 13 and 21");
static_assert(std::is_trivially_copyable_v<__unbalance_data>, "saved byte for byte");

/// Live waveforms, 65572 bytes.
struct __scope_data
{
    float frequency; // Hz
    float voltage[kChannels]; // V r.m.s.
    float current[kChannels]; // A r.m.s.
    qint16 voltageSamples[kChannels][kWaveSamples];
    qint16 currentSamples[kChannels][kWaveSamples];
};
static_assert(sizeof(__scope_data) == 65572 && offsetof(__scope_data, voltageSamples) == 36
                  && offsetof(__scope_data, currentSamples) == 36 + 32768,
              "head, voltages, currents");
static_assert(std::is_trivially_copyable_v<__scope_data>, "copied in blocks");

/// What the scope draws: the same shortened to 600 samples a channel, 9636 bytes.
struct __scope_data_ui
{
    float frequency;
    float voltage[kChannels];
    float current[kChannels];
    qint16 voltageSamples[kChannels][600];
    qint16 currentSamples[kChannels][600];
};
static_assert(sizeof(__scope_data_ui) == 9636 && offsetof(__scope_data_ui, voltageSamples) == 36
                  && offsetof(__scope_data_ui, currentSamples) == 36 + 4800,
              "head, voltages, currents");
static_assert(std::is_trivially_copyable_v<__scope_data_ui>, "copied in blocks");

/// Flicker values and trends of the three phases.
struct __flicker_data
{
    float flickerMax[3] = {};
    float pst[3] = {};
    float plt[3] = {};
    QList<float> pinstTrend[3]; // at most 600, one per 40 samples
    QList<float> pstTrend[3];
    QList<float> pltTrend[3];
};

/// Half-cycle r.m.s. trends: series 0 to 3 the voltages, 4 to 7 the currents.
struct __rms_trend_data
{
    QList<float> voltage[kChannels]; // V
    QList<float> current[kChannels]; // A
};

/// Mains-signalling values: 25 floats in a fixed order, then trends.
struct __mains_sig_data
{
    float signal1[kChannels] = {}; // of the nominal voltage
    float signal1Mean[kChannels] = {}; // V, mean of at most 15
    float signal2[kChannels] = {};
    float signal2Mean[kChannels] = {}; // V
    float rms1[kChannels] = {}; // V, mean half-cycle r.m.s. of the last datagram
    float rms2[kChannels] = {}; // A
    float frequency = 0; // Hz, signed
    QList<float> mean1[kChannels]; // the at most 15 values behind signal1Mean
    QList<float> mean2[kChannels];
    /// signal1 (percent), signal1Mean (V), signal2 (percent), signal2Mean (V), rms1 (V), rms2 (A).
    __trend_data trend[6];
    QList<float> frequencyTrend; // Hz, magnitude
};

/// Power inverter values, derived from the live records.
struct __pi_data
{
    float inputPower = 0; // W
    float outputPower[3] = {};
    float inputVoltage = 0; // V
    float outputVoltage[3] = {};
    float inputCurrent = 0; // A
    float outputCurrent[3] = {};
    float efficiency = 0; // percent
    float frequency = 0; // Hz
    __trend_data trend[6];
};

/// How far a waveform capture has come.
struct waveProgress
{
    qint32 percent = 0; // of the frames that were asked for
    qint32 seconds = 0; // still to come
    quint32 begin = 0; // s since 1970; 0: it has not begun
    bool refused = false; // the storage took no more: the capture ends there
};
