// Payloads of any words through all decoders, in every wiring and at each nominal frequency.
// Input: byte 0 the wiring, byte 1 the frequency, byte 2 the scales; the rest fills the payload again and again.
#include "settings/config_data.h"
#include "device/datatypes.h"
#include "fuzz/fuzztarget.h"

#include <QList>

#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

using FuzzTarget::expect;

namespace {

/// The setters store the file at once, so a value is set only where it changes.
void setUp(int joinMode, int frequency)
{
    if (m_settingConfig_g.getJoinMode() != joinMode)
        m_settingConfig_g.setJoinMode(joinMode);
    if (m_settingConfig_g.getNomFreqSelect() != frequency)
        m_settingConfig_g.setNomFreq(frequency);
}

void checkAggregation(const __datagram_aggregation &record)
{
    for (const ChannelRms &row : record.channel) {
        expect(std::isfinite(row.voltage) && std::isfinite(row.currentOffset) && std::isfinite(row.voltageCrest),
               "a channel value that is no number");
        expect(row.voltageAngle <= 0 && row.voltageAngle >= -360, "a voltage angle out of range");
        expect(row.currentAngle <= 0 && row.currentAngle >= -360, "a current angle out of range");
        expect(std::fabs(row.angleDifference) <= 180, "an angle difference out of range");
    }
    for (const PowerRow &row : record.power)
        expect(std::isfinite(row.active) && std::isfinite(row.apparent) && std::isfinite(row.reactive),
               "a power that is no number");
    for (const ChannelSpectrum &spectrum : record.spectrum) {
        for (int h = 0; h < kHarmonicOrders; ++h) {
            expect(std::fabs(spectrum.voltage[h].phase) <= 3.1415930f, "a phase out of range");
            expect(!(spectrum.voltage[h].magnitude < 0), "a negative magnitude");
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 4)
        return 0;
    setUp(1 + data[0] % 10, 1 + data[1] % 3);
    const float scale = data[2] % 4 == 3 ? 1e30f : float(data[2]);
    DecodeSettings by(ScaleTable(), m_settingConfig_g.derived());
    for (int c = 0; c < kChannels; ++c)
        by.scales.voltage[c] = by.scales.current[c] = by.scales.power[c] = scale;
    data += 3;
    size -= 3;

    // Each decoder gets an array of exactly its length, so that a read behind the end shows.
    const auto filled = [data, size](int words) {
        std::vector<char> payload(size_t(words) * 4);
        for (size_t at = 0; at < payload.size(); at += size)
            memcpy(payload.data() + at, data, std::min(size, payload.size() - at));
        return payload;
    };
    static auto aggregation = std::make_unique<__datagram_aggregation>();
    static auto rms = std::make_unique<__datagram_rms>();
    static auto wave = std::make_unique<__datagram_wave>();
    static auto flicker = std::make_unique<__datagram_flicker>();
    DataTypes::datagramAggregation(aggregation.get(), filled(Link::kAggregationWords).data(), by);
    checkAggregation(*aggregation);
    DataTypes::datagramRMS_1_2(rms.get(), filled(Link::kRmsWords).data(), m_settingConfig_g.derived().scales);
    for (int c = 0; c < 3; ++c)
        expect(rms->voltage[c].count <= kRmsEntries && rms->current[c].count <= kRmsEntries,
               "a count beyond the record");
    DataTypes::datagramWave(wave.get(), filled(Link::kWaveWords).data());
    DataTypes::datagramFlicker(flicker.get(), filled(Link::kFlickerWords).data());

    QList<float> pinst;
    for (float value : flicker->pinst[0])
        pinst << value;
    DataTypes::pst10min(&pinst, 500);
    DataTypes::plt(&pinst, 12);
    DataTypes::percentiles(flicker->pinst[1][0], &pinst, data[0]);
    float out[600];
    DataTypes::lineInterpolation(out, flicker->pinst[2], kFlickerSamples);
    short samples[600];
    DataTypes::lineInterpolation(samples, wave->voltage[0], data[0] % 601, kWaveSamples);
    expect(!(std::fabs(DataTypes::iu_pahse_difference(flicker->pinst[0][0], flicker->pinst[0][1])) > 180),
           "a difference out of range");
    return 0;
}
