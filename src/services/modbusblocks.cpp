#include "services/modbusblocks.h"

#include "model/displayrecords.h"

#include <algorithm>
#include <cstring>

// Constants at load time: the slave adds them to its map before main, whatever the order of the static objects.
ModbusVif mb_data_vif;
ModbusPower mb_data_power;
ModbusSpectrum mb_data_ufft = { { 1000, 612 } };
ModbusSpectrum mb_data_ifft = { { 2000, 612 } };
ModbusFlicker mb_data_flicker;
ModbusUnbalance mb_data_unbalance;
ModbusHwInfo mb_data_hwinfo;
ModbusSwInfo mb_data_swinfo;
ModbusEventTable mb_data_events;
ModbusScope mb_data_scope;
ModbusTransient mb_data_trans;

static_assert(sizeof(monitor_limit) >= sizeof(ModbusSwInfo) - sizeof(__modbus_data_header),
              "the block is filled with leading bytes of the limit set");

namespace {

constexpr float kStep = 10.0f / 32768.0f; // processor units per step of a sample

__modbus_data_header *headOf(void *block)
{
    return static_cast<__modbus_data_header *>(block);
}

} // namespace

const std::array<__modbus_data_header *, 11> &modbusBlocks()
{
    static const std::array<__modbus_data_header *, 11> blocks
        = { headOf(&mb_data_vif),     headOf(&mb_data_power),     headOf(&mb_data_ufft),   headOf(&mb_data_ifft),
            headOf(&mb_data_flicker), headOf(&mb_data_unbalance), headOf(&mb_data_hwinfo), headOf(&mb_data_swinfo),
            headOf(&mb_data_events),  headOf(&mb_data_scope),     headOf(&mb_data_trans) };
    return blocks;
}

void fillModbus(ModbusVif *block, const __datagram_aggregation &record)
{
    block->frequency = record.frequency;
    for (int c = 0; c < kChannels; ++c) {
        const ChannelRms &channel = record.channel[c];
        block->voltage[c] = channel.voltage;
        block->voltagePeak[c] = channel.voltagePeak;
        block->voltageCrest[c] = channel.voltageCrest;
        block->current[c] = channel.current;
        block->currentPeak[c] = channel.currentPeak;
        block->currentCrest[c] = channel.currentCrest;
    }
}

void fillModbus(ModbusPower *block, const __datagram_aggregation &record)
{
    for (int c = 0; c < kChannels; ++c) {
        const PowerRow &power = record.power[c];
        const float quantities[]
            = { power.active, power.apparent, power.reactive, power.factor, power.fundamentalFactor, power.tangent };
        static_assert(std::size(quantities) == std::size(ModbusPower().quantity), "one group each");
        for (size_t q = 0; q < std::size(quantities); ++q)
            block->quantity[q][c] = quantities[q];
        const EnergyRow &energy = record.energy[c];
        block->energy[0][c] = float(energy.active);
        block->energy[1][c] = float(energy.apparent);
        block->energy[2][c] = float(energy.reactive);
    }
}

void fillModbus(ModbusUnbalance *block, const __datagram_aggregation &record)
{
    block->ratio[0] = record.voltageSequence.negativeRatio;
    block->ratio[1] = record.voltageSequence.zeroRatio;
    block->ratio[2] = record.currentSequence.negativeRatio;
    block->ratio[3] = record.currentSequence.zeroRatio;
    for (int c = 0; c < kChannels; ++c) {
        const ChannelRms &channel = record.channel[c];
        block->voltage[c] = channel.voltageFundamental;
        block->current[c] = channel.currentFundamental;
        block->voltageAngle[c] = channel.voltageAngle;
        block->currentAngle[c] = channel.currentAngle;
        block->angleDifference[c] = channel.angleDifference;
    }
}

void fillModbus(ModbusSpectrum *block, const __datagram_aggregation &record, bool voltages)
{
    for (int p = 0; p < 3; ++p) {
        ModbusSpectrum::Phase &phase = block->phase[p];
        const ChannelSpectrum &spectrum = record.spectrum[p];
        phase.rms = voltages ? record.channel[p].voltage : record.channel[p].current;
        phase.distortion = voltages ? spectrum.voltageDistortion : spectrum.currentDistortion;
        const SpectrumLine *lines = voltages ? spectrum.voltage : spectrum.current;
        for (int h = 0; h < kModbusSpectrumLines; ++h)
            phase.harmonic[h] = lines[h].magnitude;
    }
    // The groups of L2 and L3 would begin at registers 712 and 1112, beyond the block.
    const SpectrumLine *inter = voltages ? record.spectrum[0].voltageInter : record.spectrum[0].currentInter;
    for (int h = 0; h < kModbusInterLines; ++h)
        block->inter[h] = inter[h].magnitude;
}

void fillModbus(ModbusFlicker *block, const __flicker_data &data)
{
    std::copy_n(data.flickerMax, 3, block->maximum);
    std::copy_n(data.pst, 3, block->pst);
    std::copy_n(data.plt, 3, block->plt);
}

void fillModbus(ModbusSwInfo *block, const monitor_limit &limits, const ModbusSettings &settings)
{
    std::memcpy(static_cast<void *>(&block->limits), &limits, sizeof *block - sizeof block->head);
    std::copy_n(settings.version, 3, block->version);
    block->joinMode = quint16(settings.joinMode);
    block->nominalFrequency = settings.nominalFrequency;
    block->nominalVolt = settings.nominalVolt;
    block->clampRange = settings.clampRange;
    if (settings.clampRatio >= 1000) {
        block->clampRatio = quint16(settings.clampRatio / 1000);
        block->clampRatioUnit = 1;
    }
    std::copy_n(settings.currentRatio, 2, block->currentRatio);
    std::copy_n(settings.voltageRatio, 2, block->voltageRatio);
}

void fillModbus(ModbusScope *block, const __datagram_wave &record, const float *wvi)
{
    constexpr int kStride = kWaveSamples / kModbusSamples;
    static_assert(kStride == 10, "every tenth sample");
    for (int c = 0; c < kChannels; ++c) {
        block->voltageScale[c] = wvi[4 + c] * kStep;
        block->currentScale[c] = wvi[8 + c] * kStep;
        for (int i = 0; i < kModbusSamples; ++i) {
            block->voltage[c][i] = record.voltage[c][i * kStride];
            block->current[c][i] = record.current[c][i * kStride];
        }
    }
}

void fillModbus(ModbusTransient *block, const __trans_data &record, const float *wvi)
{
    // The time comes as a double; what no 64-bit integer holds is sent as 0.
    const bool sane = record.time > -9.0e18 && record.time < 9.0e18;
    block->time = sane ? qint64(record.time) : 0;
    block->number = quint32(record.number);
    for (int c = 0; c < kChannels; ++c) {
        block->scale[c] = wvi[4 + c] * kStep;
        block->rms[c] = record.rms[c];
        std::copy_n(record.samples[c], kModbusSamples, block->samples[c]);
    }
}
