#include "model/nominalfrequency.h"
#include "device/aggregationpayload.h"
#include "device/cleanvalue.h"
#include "device/datatypes.h"

#include <cmath>
#include <cstring>
#include <limits>

using namespace AggregationPayload;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;
constexpr double kQuarterTurn = 1.5707963267948966;
constexpr float kPlainPhase = 6.283185f; // radians; the fast way below is exact up to here

// Four neighbouring words at once; the compiler maps them to the processor's own vectors. The loops below come to some
// three instructions a word, which plain code misses by far (tests/bench/bench_decode.cpp).
typedef float Four __attribute__((vector_size(16)));
typedef int FourBits __attribute__((vector_size(16)));

Four load(const float *from)
{
    Four value;
    memcpy(&value, from, sizeof(value));
    return value;
}

void store(float *to, Four value)
{
    memcpy(to, &value, sizeof(value));
}

Four masked(Four value, FourBits mask)
{
    return (Four)((FourBits)value & mask);
}

Four either(Four a, Four b)
{
    return (Four)((FourBits)a | (FourBits)b);
}

/// What all eight inputs share in one datagram, by line.
struct SharedLines
{
    alignas(16) float harmonic[kHarmonicOrders][3]; // 0, frequency in Hz, 0: as the record's lines
    alignas(16) float inter[kHarmonicOrders][4]; // frequency of the interharmonic in Hz, 0, 0, 0
    alignas(16) float smallTurn[kHarmonicOrders]; // turn in -pi to pi
    double turn[kHarmonicOrders]; // radians that the L1 voltage stands ahead at this order
};
static_assert(kHarmonicOrders % 4 == 0, "four lines at once");

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

/// A raw phase less its turn; what is no number counts as 0.
float shiftedPhase(float raw, double turn)
{
    return static_cast<float>(wrapped((std::isfinite(raw) ? double(raw) : 0.0) - turn));
}

float clampedMagnitude(float value)
{
    return value < 0 ? 0.0f : value;
}

void fillSharedLines(SharedLines *shared, double p0, float f, float nominal)
{
    // Adding and taking off 1.5 * 2^52 rounds to a whole number of turns.
    constexpr double kRound = 6755399441055744.0;
    for (int h = 0; h < kHarmonicOrders; ++h) {
        const double turn = p0 * (h + 1) + h * kQuarterTurn;
        const double turns = (turn * (1 / kTwoPi) + kRound) - kRound;
        shared->turn[h] = turn;
        shared->smallTurn[h] = static_cast<float>(turn - turns * kTwoPi);
    }
    for (int h = 0; h < kHarmonicOrders; ++h) {
        float *harmonic = shared->harmonic[h];
        harmonic[0] = 0;
        harmonic[1] = static_cast<float>(h + 1) * f;
        harmonic[2] = 0;
        store(shared->inter[h], Four { nominal * 0.5f + static_cast<float>(h) * f, 0, 0, 0 });
    }
    if (!(std::fabs(p0) <= double(kPlainPhase))) {
        for (int h = 0; h < kHarmonicOrders; ++h)
            shared->smallTurn[h] = static_cast<float>(wrapped(shared->turn[h]));
    }
}

/// Raw phases less their turn, in -pi to pi; `*plain` keeps whether a single turn is enough for all of them.
Four plainPhases(Four raw, Four turn, FourBits *plain)
{
    constexpr FourBits kMagnitudeBits = { 0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF };
    constexpr float pi = float(kPi), full = float(kTwoPi);
    constexpr Four kUp = { pi, pi, pi, pi }, kFull = { full, full, full, full };
    constexpr Four kPlain = { kPlainPhase, kPlainPhase, kPlainPhase, kPlainPhase };
    *plain &= masked(raw, kMagnitudeBits) <= kPlain;
    const Four x = raw - turn;
    return x - masked(kFull, x > kUp) + masked(kFull, x < -kUp);
}

/// Writes four lines of a harmonic spectrum.
void storeLines(float *to, Four magnitude, Four phase, const float *frequency)
{
    constexpr FourBits kPlace0 = { -1, 0, -1, -1 }, kPlace1 = { 0, -1, -1, 0 }, kPlace2 = { -1, -1, 0, -1 };
    const Four first = __builtin_shufflevector(magnitude, phase, 0, 4, 1, 5);
    const Four second = __builtin_shufflevector(magnitude, phase, 2, 6, 3, 7);
    store(to, either(masked(__builtin_shufflevector(first, first, 0, 0, 1, 2), kPlace0), load(frequency)));
    store(to + 4, either(masked(__builtin_shufflevector(first, second, 3, 3, 4, 4), kPlace1), load(frequency + 4)));
    store(to + 8, either(masked(__builtin_shufflevector(second, second, 1, 2, 2, 3), kPlace2), load(frequency + 8)));
}

/// Lines of one input at 50 or 60 Hz. Answers the sum of the squared magnitudes of orders 2 to 100.
float decodeInput(const float *wire, float scale, const SharedLines &shared, SpectrumLine *harmonics,
                  SpectrumLine *inter)
{
    // The second word of a line is not read. The fourth, the phase, is no magnitude: nothing scales or clamps it.
    const Four scales = { scale, 0, scale, 1 };
    constexpr Four kLeast = { 0, 0, 0, -std::numeric_limits<float>::infinity() };
    FourBits plain = { -1, -1, -1, -1 };
    FourBits counted = { 0, -1, -1, -1 }; // the fundamental is not distortion
    Four squares = { 0, 0, 0, 0 };
    for (int h = 0; h < kHarmonicOrders; h += 4) {
        Four line[4];
        for (int i = 0; i < 4; ++i) {
            const Four scaled = load(wire + kLineWords * (h + i)) * scales;
            line[i] = masked(scaled, scaled > kLeast); // 0 for what is no number, too
            const Four interLine = __builtin_shufflevector(line[i], load(shared.inter[h + i]), 0, 4, 1, 5);
            // Four words for a line of three: the line behind is written next.
            if (h + i < kHarmonicOrders - 1)
                store(&inter[h + i].magnitude, interLine);
            else
                memcpy(&inter[h + i], &interLine, sizeof(inter[h + i]));
        }
        const Four upper = __builtin_shufflevector(line[0], line[1], 2, 6, 3, 7);
        const Four lower = __builtin_shufflevector(line[2], line[3], 2, 6, 3, 7);
        const Four magnitude = __builtin_shufflevector(upper, lower, 0, 1, 4, 5);
        const Four raw = __builtin_shufflevector(upper, lower, 2, 3, 6, 7);
        squares += masked(magnitude * magnitude, counted);
        counted = FourBits { -1, -1, -1, -1 };
        storeLines(&harmonics[h].magnitude, magnitude, plainPhases(raw, load(shared.smallTurn + h), &plain),
                   shared.harmonic[h]);
    }
    if (!(plain[0] & plain[1] & plain[2] & plain[3])) {
        for (int h = 0; h < kHarmonicOrders; ++h) {
            const float raw = wire[kLineWords * h + kPhase];
            harmonics[h].phase = shiftedPhase(raw, shared.turn[h]);
        }
    }
    return squares[0] + squares[1] + squares[2] + squares[3];
}

/// The same for the twelve orders of a 400 Hz system; interharmonic magnitudes are not read.
float decodeInput400(const float *wire, float scale, const SharedLines &shared, SpectrumLine *harmonics,
                     SpectrumLine *inter)
{
    float squares = 0;
    for (int h = 0; h < kLines400.orders; ++h) {
        const float *line = wire + kLineWords * (kLines400.firstLine + kLines400.lineStep * h);
        harmonics[h].magnitude = clampedMagnitude(line[kMagnitude] * scale);
        harmonics[h].frequency = shared.harmonic[h][1];
        harmonics[h].phase = shiftedPhase(line[kPhase], shared.turn[h]);
        inter[h].frequency = shared.inter[h][0];
        if (h > 0)
            squares += harmonics[h].magnitude * harmonics[h].magnitude;
    }
    return squares;
}

} // namespace

void DataTypes::aggregation_harm(__datagram_aggregation *record, const float *payload, const DecodeSettings &by)
{
    const double nominal = by.nominalFrequency;
    const bool at400 = isNominal(nominal, 400.0);
    const WireLines &lines = at400 ? kLines400 : kUsualLines;
    const float reference = payload[spectrumWord(0) + kLineWords * lines.firstLine + kPhase];
    const double p0 = std::isfinite(reference) ? double(reference) : 0.0;
    SharedLines shared;
    fillSharedLines(&shared, p0, std::fabs(payload[kFrequency]), static_cast<float>(nominal));
    const auto decode = at400 ? decodeInput400 : decodeInput;
    for (int c = 0; c < kChannels; ++c) {
        ChannelSpectrum &to = record->spectrum[c];
        const float voltage
            = decode(payload + spectrumWord(c), by.scales.voltage[c], shared, to.voltage, to.voltageInter);
        const float current
            = decode(payload + spectrumWord(kChannels + c), by.scales.current[c], shared, to.current, to.currentInter);
        to.voltageDistortion = SafeMath::cleaned(std::sqrt(voltage));
        to.currentDistortion = SafeMath::cleaned(std::sqrt(current));
    }
}
