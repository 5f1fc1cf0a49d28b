#include "config/config_data.h"
#include "device/aggregationpayload.h"
#include "device/cleanvalue.h"
#include "device/datatypes.h"

#include <algorithm>
#include <cmath>

using namespace AggregationPayload;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;
constexpr double kQuarterTurn = 1.5707963267948966;
constexpr float kPlainPhase = 6.283185f; // radians; the fast way below is exact up to here

/// What all eight inputs share in one datagram, by line.
struct SharedLines
{
    float frequency[kHarmonicOrders]; // Hz, harmonic
    float interFrequency[kHarmonicOrders]; // Hz, interharmonic
    double turn[kHarmonicOrders]; // radians that the L1 voltage stands ahead at this order
    float smallTurn[kHarmonicOrders]; // the same in -pi to pi
};

/// Where the lines of an input stand on the wire.
struct WireLines
{
    int orders;
    int firstLine;
    int lineStep;
};
constexpr WireLines kUsualLines = { kHarmonicOrders, 0, 1 };
constexpr WireLines kLines400 = { kHarmonicOrders400, kLineStep400 - 1, kLineStep400 };
static_assert(kSpectrumFirst + kLineWords * kLines400.firstLine + kMagnitude == 72, "first order at 400 Hz");

/// An angle brought into -pi to pi; at once for any number.
double wrapped(double x)
{
    x -= kTwoPi * std::trunc(x / kPi * 0.5);
    if (x > kPi)
        x -= kTwoPi;
    else if (x < -kPi)
        x += kTwoPi;
    return std::fabs(x) > kPi ? std::remainder(x, kTwoPi) : x; // an angle too large for the steps above
}

float clampedMagnitude(float value)
{
    return value < 0 ? 0.0f : value;
}

SharedLines sharedLines(double p0, float f, float nominal)
{
    SharedLines shared;
    // Adding and taking off 1.5 * 2^52 rounds to a whole number of turns.
    constexpr double kRound = 6755399441055744.0;
    for (int h = 0; h < kHarmonicOrders; ++h) {
        shared.frequency[h] = static_cast<float>(h + 1) * f;
        shared.interFrequency[h] = nominal * 0.5f + static_cast<float>(h) * f;
        shared.turn[h] = p0 * (h + 1) + h * kQuarterTurn;
        const double turns = (shared.turn[h] * (1 / kTwoPi) + kRound) - kRound;
        shared.smallTurn[h] = static_cast<float>(shared.turn[h] - turns * kTwoPi);
    }
    if (!(std::fabs(p0) <= double(kPlainPhase))) {
        for (int h = 0; h < kHarmonicOrders; ++h)
            shared.smallTurn[h] = static_cast<float>(wrapped(shared.turn[h]));
    }
    return shared;
}

/// Lines of one input at 50 or 60 Hz. Answers the sum of the squared magnitudes of orders 2 to 100.
float decodeInput(const float *wire, float scale, const SharedLines &shared, SpectrumLine *harmonics,
                  SpectrumLine *inter)
{
    alignas(16) float magnitude[kHarmonicOrders], phase[kHarmonicOrders], interMagnitude[kHarmonicOrders];
    int odd = 0;
    for (int h = 0; h < kHarmonicOrders; ++h) {
        magnitude[h] = clampedMagnitude(wire[kLineWords * h + kMagnitude] * scale);
        interMagnitude[h] = clampedMagnitude(wire[kLineWords * h + kInterMagnitude] * scale);
        const float raw = wire[kLineWords * h + kPhase];
        const float x = raw - shared.smallTurn[h];
        const float less = x > float(kPi) ? float(kTwoPi) : 0.0f;
        const float more = x < -float(kPi) ? float(kTwoPi) : 0.0f;
        phase[h] = x - less + more;
        odd |= !(std::fabs(raw) <= kPlainPhase);
    }
    if (odd) {
        for (int h = 0; h < kHarmonicOrders; ++h)
            phase[h] = static_cast<float>(wrapped(double(wire[kLineWords * h + kPhase]) - shared.turn[h]));
    }
    for (int h = 0; h < kHarmonicOrders; ++h) {
        harmonics[h].magnitude = magnitude[h];
        harmonics[h].frequency = shared.frequency[h];
        harmonics[h].phase = phase[h];
    }
    for (int h = 0; h < kHarmonicOrders; ++h) {
        inter[h].magnitude = interMagnitude[h];
        inter[h].frequency = shared.interFrequency[h];
        inter[h].phase = 0;
    }
    constexpr int kLanes = 4;
    float part[kLanes] = {};
    magnitude[0] = 0; // the fundamental is not distortion
    for (int h = 0; h < kHarmonicOrders; h += kLanes) {
        for (int lane = 0; lane < kLanes; ++lane)
            part[lane] += magnitude[h + lane] * magnitude[h + lane];
    }
    return (part[0] + part[1]) + (part[2] + part[3]);
}

/// The same for the twelve orders of a 400 Hz system; interharmonic magnitudes are not read.
float decodeInput400(const float *wire, float scale, const SharedLines &shared, SpectrumLine *harmonics,
                     SpectrumLine *inter)
{
    float squares = 0;
    for (int h = 0; h < kLines400.orders; ++h) {
        const float *line = wire + kLineWords * (kLines400.firstLine + kLines400.lineStep * h);
        harmonics[h].magnitude = clampedMagnitude(line[kMagnitude] * scale);
        harmonics[h].frequency = shared.frequency[h];
        harmonics[h].phase = static_cast<float>(wrapped(double(line[kPhase]) - shared.turn[h]));
        inter[h].frequency = shared.interFrequency[h];
        if (h > 0)
            squares += harmonics[h].magnitude * harmonics[h].magnitude;
    }
    return squares;
}

} // namespace

void DataTypes::aggregation_harm(__datagram_aggregation *record, const float *payload, const quint32 *)
{
    const double nominal = m_settingConfig_g.getNomFreq();
    const bool at400 = std::fabs(nominal - 400.0) <= 1.0;
    const WireLines &lines = at400 ? kLines400 : kUsualLines;
    const double p0 = double(payload[spectrumWord(0) + kLineWords * lines.firstLine + kPhase]);
    const SharedLines shared = sharedLines(p0, std::fabs(payload[kFrequency]), static_cast<float>(nominal));
    const auto decode = at400 ? decodeInput400 : decodeInput;
    for (int c = 0; c < kChannels; ++c) {
        ChannelSpectrum &to = record->spectrum[c];
        const float voltage = decode(payload + spectrumWord(c), k_v[c], shared, to.voltage, to.voltageInter);
        const float current
            = decode(payload + spectrumWord(kChannels + c), k_i[c], shared, to.current, to.currentInter);
        to.voltageDistortion = SafeMath::cleaned(std::sqrt(voltage));
        to.currentDistortion = SafeMath::cleaned(std::sqrt(current));
    }
}
