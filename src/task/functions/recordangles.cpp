#include "task/functions/recordangles.h"

#include <cmath>
#include <cstring>

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr float kRadians = float(kPi / 180.0); // of a degree

void add(__angle_vector &sum, float radians)
{
    sum.cosine += double(std::cos(radians));
    sum.sine += double(std::sin(radians));
}

/// Voltage minus current of a harmonic, in radians.
float difference(const ChannelSpectrum &spectrum, int order)
{
    return spectrum.voltage[order - 1].phase - spectrum.current[order - 1].phase;
}

} // namespace

float averageAngles(const __angle_vector &sum, int count)
{
    return count > 0 ? float(std::atan2(sum.sine, sum.cosine) * 180.0 / kPi) : 0.0f;
}

void RecordAngles::clear()
{
    std::memset(m_sum, 0, sizeof m_sum);
    m_count = 0;
}

void RecordAngles::take(const __datagram_aggregation &record)
{
    ++m_count;
    for (int c = 0; c < kChannels; ++c) {
        const ChannelRms &rms = record.channel[c];
        const ChannelSpectrum &spectrum = record.spectrum[c];
        add(m_sum[Voltage][c], rms.voltageAngle * kRadians);
        add(m_sum[Current][c], rms.currentAngle * kRadians);
        add(m_sum[Difference][c], rms.angleDifference * kRadians);
        add(m_sum[ThirdOrder][c], difference(spectrum, 3));
        add(m_sum[FifthOrder][c], difference(spectrum, 5));
        add(m_sum[SeventhOrder][c], difference(spectrum, 7));
    }
}

float RecordAngles::mean(Group group, int channel) const
{
    const float angle = averageAngles(m_sum[group][channel], m_count);
    const bool belowZero = group == Voltage || group == Current;
    return belowZero && angle > 0 ? angle - 360.0f : angle;
}

void RecordAngles::putInto(__datagram_aggregation &record) const
{
    for (int c = 0; c < kChannels; ++c) {
        record.channel[c].voltageAngle = mean(Voltage, c);
        record.channel[c].currentAngle = mean(Current, c);
        record.channel[c].angleDifference = mean(Difference, c);
    }
}
