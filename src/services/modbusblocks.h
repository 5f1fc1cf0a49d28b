#pragma once

#include "settings/limits.h"
#include "model/datagramrecords.h"
#include "detect/eventtable.h"
#include "services/modbusregisters.h"

#include <array>
#include <cstddef>
#include <type_traits>

struct __flicker_data;
struct __trans_data;

// The register blocks as a master reads them: plain memory images on a little-endian machine, a float in two registers
// with its low half first, a 64-bit time in four. docs/modbus.md is the map for integrators; a test holds it to this.

static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "the blocks are memory images");

constexpr int kModbusSpectrumLines = 50; // harmonics of a phase
constexpr int kModbusInterLines = 15; // interharmonics of L1
constexpr int kModbusSamples = 409; // samples of a channel in the big blocks

/// Volts, amperes, hertz.
struct ModbusVif
{
    __modbus_data_header head = { 0, 50 };
    float frequency = 0; // Hz
    float voltage[kChannels] = {}; // V r.m.s.
    float voltagePeak[kChannels] = {}; // V
    float voltageCrest[kChannels] = {};
    float current[kChannels] = {}; // A r.m.s.
    float currentPeak[kChannels] = {}; // A
    float currentCrest[kChannels] = {};
};

/// Power quantities and energies: L1, L2, L3, total.
struct ModbusPower
{
    __modbus_data_header head = { 100, 172 };
    float quantity[6][kChannels] = {}; // W, VA, var, power factor, cos phi, tan phi
    float energy[3][kChannels] = {}; // Wh, VAh, varh
    quint16 reserved[100] = {};
};

/// Spectrum of the voltages or of the currents of L1, L2, L3.
struct ModbusSpectrum
{
    /// One phase: 104 registers.
    struct Phase
    {
        float rms; // V or A
        float distortion; // V or A: root-sum-square of orders 2 and up
        float harmonic[kModbusSpectrumLines]; // V or A, orders 1 to 50
    };

    __modbus_data_header head;
    Phase phase[3] = {};
    float inter[kModbusInterLines] = {}; // V or A, interharmonics of L1
    quint16 unused[270] = {};
};

/// Flicker of L1, L2, L3; the fourth float of a group is unused.
struct ModbusFlicker
{
    __modbus_data_header head = { 3000, 24 };
    float maximum[4] = {}; // one-second maximum of the instantaneous flicker
    float pst[4] = {};
    float plt[4] = {};
};

/// Symmetrical components and phasors.
struct ModbusUnbalance
{
    __modbus_data_header head = { 3500, 48 };
    float ratio[4] = {}; // percent: voltage negative, voltage zero, current negative, current zero
    float voltage[kChannels] = {}; // V, fundamental
    float current[kChannels] = {}; // A, fundamental
    float voltageAngle[kChannels] = {}; // degrees
    float currentAngle[kChannels] = {}; // degrees
    float angleDifference[kChannels] = {}; // degrees
};

/// Reserved: reads as zeros.
struct ModbusHwInfo
{
    __modbus_data_header head = { 11000, 10 };
    quint16 reserved[10] = {};
};

/// Limit set in use, with the settings written over its places from register 200 on.
struct ModbusSwInfo
{
    __modbus_data_header head = { 11100, 232 };
    quint16 limits[200] = {}; // leading bytes of the limit set
    quint16 version[3] = {};
    quint16 joinMode = 0;
    float nominalFrequency = 0; // Hz
    float nominalVolt = 0; // V
    quint16 limitsToo[16] = {};
    qint32 clampRange = 0; // A
    quint16 clampRatio = 0; // mV/A, where it is at least 1
    quint16 clampRatioUnit = 0; // 1 with it
    quint16 currentRatio[2] = {}; // numerator, denominator
    quint16 voltageRatio[2] = {};
};

/// Waveforms: value = sample x scale.
struct ModbusScope
{
    __modbus_data_header head = { kScopeStart, kScopeRegisters };
    float voltageScale[kChannels] = {}; // V per step
    float currentScale[kChannels] = {}; // A per step
    qint16 voltage[kChannels][kModbusSamples] = {};
    qint16 current[kChannels][kModbusSamples] = {};
};

#pragma pack(push, 2)
/// The last transient: value = sample x scale.
struct ModbusTransient
{
    __modbus_data_header head = { kTransientStart, kTransientRegisters };
    qint64 time = 0; // ms since 1970, of the first sample
    quint32 number = 0; // running, first is 1
    float scale[kChannels] = {}; // V per step
    float rms[kChannels] = {}; // V
    qint16 samples[kChannels][kModbusSamples] = {};
};
#pragma pack(pop)

/// Register of a field inside its block.
#define MODBUS_REGISTER(Block, field) ((offsetof(Block, field) - sizeof(__modbus_data_header)) / sizeof(quint16))
static_assert(sizeof(ModbusVif) == 8 + 2 * 50 && MODBUS_REGISTER(ModbusVif, voltage) == 2
                  && MODBUS_REGISTER(ModbusVif, current) == 26 && MODBUS_REGISTER(ModbusVif, currentCrest) == 42,
              "register map");
static_assert(sizeof(ModbusPower) == 8 + 2 * 172 && MODBUS_REGISTER(ModbusPower, energy) == 48
                  && MODBUS_REGISTER(ModbusPower, reserved) == 72,
              "register map");
static_assert(sizeof(ModbusSpectrum) == 8 + 2 * 612 && sizeof(ModbusSpectrum::Phase) == 2 * 104
                  && MODBUS_REGISTER(ModbusSpectrum, inter) == 312,
              "register map");
static_assert(sizeof(ModbusFlicker) == 8 + 2 * 24 && MODBUS_REGISTER(ModbusFlicker, pst) == 8
                  && MODBUS_REGISTER(ModbusFlicker, plt) == 16,
              "register map");
static_assert(sizeof(ModbusUnbalance) == 8 + 2 * 48 && MODBUS_REGISTER(ModbusUnbalance, voltage) == 8
                  && MODBUS_REGISTER(ModbusUnbalance, angleDifference) == 40,
              "register map");
static_assert(sizeof(ModbusHwInfo) == 8 + 20, "register map");
static_assert(sizeof(ModbusSwInfo) == 8 + 2 * 232 && MODBUS_REGISTER(ModbusSwInfo, version) == 200
                  && MODBUS_REGISTER(ModbusSwInfo, joinMode) == 203
                  && MODBUS_REGISTER(ModbusSwInfo, nominalFrequency) == 204
                  && MODBUS_REGISTER(ModbusSwInfo, nominalVolt) == 206
                  && MODBUS_REGISTER(ModbusSwInfo, limitsToo) == 208 && MODBUS_REGISTER(ModbusSwInfo, clampRange) == 224
                  && MODBUS_REGISTER(ModbusSwInfo, clampRatio) == 226
                  && MODBUS_REGISTER(ModbusSwInfo, clampRatioUnit) == 227
                  && MODBUS_REGISTER(ModbusSwInfo, currentRatio) == 228
                  && MODBUS_REGISTER(ModbusSwInfo, voltageRatio) == 230,
              "register map");
static_assert(sizeof(ModbusScope) == 8 + 2 * kScopeRegisters && MODBUS_REGISTER(ModbusScope, currentScale) == 8
                  && MODBUS_REGISTER(ModbusScope, voltage) == 16 && MODBUS_REGISTER(ModbusScope, current) == 1652,
              "register map");
static_assert(sizeof(ModbusTransient) == 8 + 2 * kTransientRegisters && MODBUS_REGISTER(ModbusTransient, number) == 4
                  && MODBUS_REGISTER(ModbusTransient, scale) == 6 && MODBUS_REGISTER(ModbusTransient, rms) == 14
                  && MODBUS_REGISTER(ModbusTransient, samples) == 22,
              "register map");
#undef MODBUS_REGISTER
template <typename... Blocks> constexpr bool kCopiedAsBytes = (std::is_trivially_copyable_v<Blocks> && ...);
static_assert(kCopiedAsBytes<ModbusVif, ModbusPower, ModbusSpectrum, ModbusFlicker, ModbusUnbalance, ModbusHwInfo,
                             ModbusSwInfo, ModbusScope, ModbusTransient>,
              "the slave copies the blocks as they lie in memory");

/// What the information block takes from the settings.
struct ModbusSettings
{
    quint16 version[3];
    int joinMode; // 1 to 10
    float nominalFrequency; // Hz
    float nominalVolt; // V, with the transformer ratio
    int clampRange; // A
    int clampRatio; // uV/A
    int currentRatio[2]; // numerator, denominator
    int voltageRatio[2];
};

// The writers: records in, registers out. Main thread, as the blocks are.
void fillModbus(ModbusVif *block, const __datagram_aggregation &record);
void fillModbus(ModbusPower *block, const __datagram_aggregation &record);
void fillModbus(ModbusUnbalance *block, const __datagram_aggregation &record);
/// Voltages or currents.
void fillModbus(ModbusSpectrum *block, const __datagram_aggregation &record, bool voltages);
void fillModbus(ModbusFlicker *block, const __flicker_data &data);
void fillModbus(ModbusSwInfo *block, const monitor_limit &limits, const ModbusSettings &settings);
/// wvi: the twelve channel scales of the settings, power, voltage, current by four channels. Every tenth sample is
/// taken.
void fillModbus(ModbusScope *block, const __datagram_wave &record, const float *wvi);
/// The first 409 of the record's 600 samples are taken.
void fillModbus(ModbusTransient *block, const __trans_data &record, const float *wvi);

extern ModbusVif mb_data_vif;
extern ModbusPower mb_data_power;
extern ModbusSpectrum mb_data_ufft;
extern ModbusSpectrum mb_data_ifft;
extern ModbusFlicker mb_data_flicker;
extern ModbusUnbalance mb_data_unbalance;
extern ModbusHwInfo mb_data_hwinfo;
extern ModbusSwInfo mb_data_swinfo;
extern ModbusEventTable mb_data_events;
extern ModbusScope mb_data_scope;
extern ModbusTransient mb_data_trans;

/// All blocks, in the order in which they are added to the map.
const std::array<__modbus_data_header *, 11> &modbusBlocks();
