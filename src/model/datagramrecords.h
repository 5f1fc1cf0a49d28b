#pragma once

#include "model/pqaeventitem.h"

#include <QtGlobal>
#include <cstddef>
#include <type_traits>

// Decoded payloads. Files, Modbus and saved pages copy parts of these records as bytes, so their layout is fixed.

constexpr int kChannels = 4; // L1, L2, L3, N (power rows: L1, L2, L3, Total)
constexpr int kRmsEntries = 30; // entries of one channel in a half-cycle datagram
constexpr int kWaveSamples = 4096; // samples of one input in a wave datagram, ten cycles at 50 Hz
constexpr int kFlickerPhases = 3;
constexpr int kFlickerSamples = 500; // instantaneous values of one phase in a flicker datagram
constexpr int kHarmonicOrders = 100;
constexpr int kHarmonicOrders400 = 12; // orders of a 400 Hz system

#pragma pack(push, 4)

/// Aggregated quantities of one channel (52 bytes).
struct ChannelRms
{
    float voltage; // V r.m.s.
    float voltagePeak; // V
    float voltageOffset; // V
    float voltageCrest; // peak / r.m.s.
    float current; // A r.m.s.
    float currentPeak; // A
    float currentOffset; // A
    float currentCrest; // peak / r.m.s.
    float voltageFundamental; // V
    float currentFundamental; // A
    float voltageAngle; // degrees, -360 to 0, L1 voltage 0
    float currentAngle; // degrees, -360 to 0
    float angleDifference; // degrees, voltage minus current, -180 to 180
};
static_assert(sizeof(ChannelRms) == 52, "stored row");

/// Power quantities of one row: L1, L2, L3 or Total (24 bytes).
struct PowerRow
{
    float active; // W
    float apparent; // VA
    float reactive; // var
    float factor; // power factor
    float fundamentalFactor; // cosine of the fundamental phase difference
    float tangent; // reactive / active; 9999 without active power
};
static_assert(sizeof(PowerRow) == 24, "stored row");

/// Integrated energy of one row (24 bytes).
struct EnergyRow
{
    double active; // Wh
    double apparent; // VAh
    double reactive; // varh
};
static_assert(sizeof(EnergyRow) == 24, "stored row");

/// One line of a spectrum.
struct SpectrumLine
{
    float magnitude; // V or A r.m.s.
    float frequency; // Hz
    float phase; // radians against the L1 voltage fundamental; interharmonics: 0
};
static_assert(sizeof(SpectrumLine) == 12, "stride of the stored spectra");

/// Spectra of one channel. Index h of harmonics is order h + 1; index h of interharmonics lies between order h and h
/// + 1.
struct ChannelSpectrum
{
    float voltageDistortion; // V: root-sum-square of orders 2 to N
    float currentDistortion; // A
    SpectrumLine voltageInter[kHarmonicOrders];
    SpectrumLine voltage[kHarmonicOrders];
    SpectrumLine currentInter[kHarmonicOrders];
    SpectrumLine current[kHarmonicOrders];
};
static_assert(sizeof(ChannelSpectrum) == 4 * 1202, "stored block");

/// Symmetrical components of the fundamentals (20 bytes).
struct SequenceValues
{
    float positive; // V or A
    float negative; // V or A
    float negativeRatio; // percent of the positive sequence, at most 100
    float zero; // V or A
    float zeroRatio; // percent of the positive sequence, at most 100
};
static_assert(sizeof(SequenceValues) == 20, "stored group");

/// Mains-signalling voltages of one channel (24 bytes).
struct MainsSignalRow
{
    float ratio1; // first frequency, of the nominal voltage (1.0 is 100 percent)
    float volt1; // V
    float ratio2; // second frequency
    float volt2; // V
    float reserved[2];
};
static_assert(sizeof(MainsSignalRow) == 24, "stored row");

/// Decoded aggregation datagram, 4946 words.
struct __datagram_aggregation
{
    qint64 time; // ms since 1970
    float frequency; // Hz; negative on the wire means no lock
    ChannelRms channel[kChannels];
    PowerRow power[kChannels]; // L1, L2, L3, Total
    quint32 reserved;
    EnergyRow energy[kChannels]; // L1, L2, L3, Total; written by the task
    ChannelSpectrum spectrum[kChannels];
    SequenceValues voltageSequence;
    SequenceValues currentSequence;
    MainsSignalRow mainsSignal[kChannels];
};
static_assert(offsetof(__datagram_aggregation, frequency) == 4 * 2, "word 2");
static_assert(offsetof(__datagram_aggregation, channel) == 4 * 3, "word 3");
static_assert(offsetof(__datagram_aggregation, power) == 4 * 55, "word 55");
static_assert(offsetof(__datagram_aggregation, energy) == 4 * 80, "word 80");
static_assert(offsetof(__datagram_aggregation, spectrum) == 4 * 104, "word 104");
static_assert(offsetof(__datagram_aggregation, voltageSequence) == 4 * 4912, "word 4912");
static_assert(offsetof(__datagram_aggregation, mainsSignal) == 4 * 4922, "word 4922");
static_assert(sizeof(__datagram_aggregation) == 19784, "record that the recorder sweeps and stores");
static_assert(std::is_trivially_copyable_v<__datagram_aggregation>, "swept and stored byte for byte");

/// Half-cycle values of one input.
struct RmsSeries
{
    quint32 count; // entries in use, at most 30
    _value_with_time entry[kRmsEntries];
};
static_assert(sizeof(RmsSeries) == 4 * 91, "stored block");

/// Decoded half-cycle datagram. Room for four channels; three are filled.
struct __datagram_rms
{
    RmsSeries voltage[kChannels]; // V
    RmsSeries current[kChannels]; // A
};
static_assert(offsetof(__datagram_rms, current) == 4 * 364 && sizeof(__datagram_rms) == 4 * 728, "words 364 and 728");
static_assert(std::is_trivially_copyable_v<__datagram_rms>, "cleared byte for byte");

/// Decoded wave datagram: unscaled samples, 32768 is 10 processor units.
struct __datagram_wave
{
    qint64 time; // ms since 1970, of the first sample
    qint16 voltage[kChannels][kWaveSamples];
    qint16 current[kChannels][kWaveSamples];
    quint32 transient; // high 8 bits channel code (0: none), low 24 bits sample position
};
static_assert(offsetof(__datagram_wave, current) - offsetof(__datagram_wave, voltage) == 32768,
              "distance of the halves");
static_assert(sizeof(__datagram_wave) == 65548 && offsetof(__datagram_wave, voltage) == 8
                  && offsetof(__datagram_wave, transient) == 65544,
              "as on the wire");
static_assert(std::is_trivially_copyable_v<__datagram_wave>, "samples are copied in blocks");

/// Decoded flicker datagram.
struct __datagram_flicker
{
    qint64 time; // ms since 1970
    float pinst[kFlickerPhases][kFlickerSamples];
    quint32 samplesPerWindow;
};
static_assert(sizeof(__datagram_flicker) == 6012 && offsetof(__datagram_flicker, pinst) == 8
                  && offsetof(__datagram_flicker, samplesPerWindow) == 6008,
              "as on the wire");
static_assert(std::is_trivially_copyable_v<__datagram_flicker>, "copied in blocks");

#pragma pack(pop)
