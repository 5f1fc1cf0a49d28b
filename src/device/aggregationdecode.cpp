#include "device/aggregationpayload.h"
#include "device/cleanvalue.h"
#include "device/datatypes.h"

#include <cmath>
#include <complex>

using namespace AggregationPayload;
using SafeMath::cleaned;
using SafeMath::div_sn;

namespace {

constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;
constexpr double kSmallSequence = 0.001; // V or A: below it a sequence counts as none
constexpr float kMaxRatio = 100.0f; // percent
constexpr float kNoTangent = 9999.0f; // without active power
constexpr int kTotal = 3; // row of the totals

/// How the rows of a wiring make their totals.
enum class PowerRule {
    ThreeRows, // each phase by itself
    LineRows, // rows between lines: only the totals are apparent powers
    TwoRows,
    OneRow,
};

PowerRule powerRule(const ChannelSet *wiring)
{
    if (wiring && wiring->taskPhases == 1)
        return PowerRule::OneRow;
    if (wiring && wiring->taskPhases == 2)
        return PowerRule::TwoRows;
    return wiring && !wiring->star() ? PowerRule::LineRows : PowerRule::ThreeRows;
}

int measuredRows(PowerRule rule)
{
    return rule == PowerRule::OneRow ? 1 : rule == PowerRule::TwoRows ? 2 : 3;
}

/// Apparent power of the rows together: root of the product of the sums of squares.
float jointApparent(const __datagram_aggregation &record, int rows, double divisor)
{
    double voltages = 0, currents = 0;
    for (int c = 0; c < rows; ++c) {
        voltages += double(record.channel[c].voltage) * record.channel[c].voltage;
        currents += double(record.channel[c].current) * record.channel[c].current;
    }
    return cleaned(static_cast<float>(std::sqrt(voltages * currents / divisor)));
}

void finishFactors(PowerRow &row)
{
    row.factor = div_sn(row.active, row.apparent);
    row.tangent = std::fabs(row.active) < SafeMath::kSmallest ? kNoTangent : row.reactive / row.active;
}

/// Percent of the positive sequence.
float sequenceRatio(double part, double positive)
{
    if (positive < kSmallSequence)
        return part < kSmallSequence ? 0.0f : kMaxRatio;
    const float ratio = static_cast<float>(part / positive * 100.0);
    return ratio > kMaxRatio ? kMaxRatio : ratio;
}

/// One quantity's three fundamentals as complex numbers.
struct Fundamentals
{
    std::complex<double> phase[3];
};

/// Positive sequence; its magnitude and the other values go to `out`. `turn` is the operator a of the rotation.
/// Symmetrical components: Fortescue; IEC 61000-4-30, 5.7.1.
std::complex<double> sequences(const Fundamentals &in, const std::complex<double> &turn, SequenceValues *out)
{
    const std::complex<double> back = std::conj(turn);
    const auto &p = in.phase;
    const std::complex<double> zero = (p[0] + p[1] + p[2]) / 3.0;
    const std::complex<double> positive = (p[0] + turn * p[1] + back * p[2]) / 3.0;
    const std::complex<double> negative = (p[0] + back * p[1] + turn * p[2]) / 3.0;
    const auto magnitude
        = [](const std::complex<double> &z) { return std::sqrt(z.real() * z.real() + z.imag() * z.imag()); };
    out->positive = static_cast<float>(magnitude(positive));
    out->negative = static_cast<float>(magnitude(negative));
    out->negativeRatio = sequenceRatio(magnitude(negative), magnitude(positive));
    out->zero = static_cast<float>(magnitude(zero));
    out->zeroRatio = sequenceRatio(magnitude(zero), magnitude(positive));
    return positive;
}

std::complex<double> fundamental(float magnitude, double phase)
{
    return { double(magnitude) * std::cos(phase), double(magnitude) * std::sin(phase) };
}

/// A phase of L2 or L3 as an angle behind L1.
double behind(double phase)
{
    return phase > 0 ? phase - kTwoPi : phase;
}

/// Angle against the L1 voltage, -360 to 0.
float angleDegrees(float phase, double reference)
{
    double angle = double(phase) * 180.0 / kPi - reference;
    if (angle > 0)
        angle -= 360.0;
    return static_cast<float>(angle);
}

} // namespace

void DataTypes::aggregation_vif(__datagram_aggregation *record, const float *payload, const DecodeSettings &by)
{
    for (int c = 0; c < kChannels; ++c) {
        ChannelRms &to = record->channel[c];
        const float *from = payload + channelWord(c, 0);
        to.voltage = cleaned(from[kVoltage] * by.scales.voltage[c]);
        to.voltagePeak = cleaned(from[kVoltagePeak] * by.scales.voltage[c]);
        to.voltageOffset = cleaned(from[kVoltageOffset] * by.scales.voltage[c]);
        to.current = cleaned(from[kCurrent] * by.scales.current[c]);
        to.currentPeak = cleaned(from[kCurrentPeak] * by.scales.current[c]);
        to.currentOffset = cleaned(from[kCurrentOffset] * by.scales.current[c]);
        to.voltageCrest = cleaned(div_sn(to.voltagePeak, to.voltage));
        to.currentCrest = cleaned(div_sn(to.currentPeak, to.current));
    }
}

void DataTypes::aggregation_unbalance(__datagram_aggregation *record)
{
    Fundamentals voltage, current;
    double voltagePhase[3];
    for (int c = 0; c < 3; ++c) {
        const SpectrumLine &u = record->spectrum[c].voltage[0];
        const SpectrumLine &i = record->spectrum[c].current[0];
        voltagePhase[c] = c == 0 ? double(u.phase) : behind(double(u.phase));
        const double currentPhase = c == 0 ? double(i.phase) : behind(double(i.phase));
        voltage.phase[c] = fundamental(u.magnitude, voltagePhase[c]);
        current.phase[c] = fundamental(i.magnitude, currentPhase);
    }
    // The voltages tell the rotation, so that the positive sequence is the one of the supply for either.
    const bool forward = voltagePhase[1] > voltagePhase[2];
    const std::complex<double> turn(-0.5, forward ? 0.8660254 : -0.8660254);
    const std::complex<double> positiveVoltage = sequences(voltage, turn, &record->voltageSequence);
    const std::complex<double> positiveCurrent = sequences(current, turn, &record->currentSequence);

    const double reference = double(record->spectrum[0].voltage[0].phase) * 180.0 / kPi;
    for (int c = 0; c < kChannels; ++c) {
        ChannelRms &to = record->channel[c];
        const ChannelSpectrum &from = record->spectrum[c];
        to.voltageFundamental = from.voltage[0].magnitude;
        to.currentFundamental = from.current[0].magnitude;
        to.voltageAngle = angleDegrees(from.voltage[0].phase, reference);
        to.currentAngle = angleDegrees(from.current[0].phase, reference);
        to.angleDifference = iu_pahse_difference(to.voltageAngle, to.currentAngle);
    }
    record->power[kTotal].reactive
        = cleaned(static_cast<float>(3.0 * (positiveVoltage * std::conj(positiveCurrent)).imag()));
}

void DataTypes::aggregation_power(__datagram_aggregation *record, const float *payload, const DecodeSettings &by)
{
    PowerRow(&row)[kChannels] = record->power;
    for (int c = 0; c < kChannels; ++c) {
        row[c].active = cleaned(by.scales.power[c] * payload[channelWord(c, kActivePower)]);
        row[c].apparent = cleaned(by.scales.power[c] * payload[channelWord(c, kApparentPower)]);
    }

    const PowerRule rule = powerRule(by.wiring);
    const int rows = measuredRows(rule);
    for (int c = 0; c < rows; ++c) {
        // Between lines a row is no load by itself.
        row[c].apparent
            = rule == PowerRule::LineRows ? 0.0f : cleaned(record->channel[c].voltage * record->channel[c].current);
    }
    if (rule == PowerRule::LineRows)
        row[kTotal].active = cleaned(row[0].active + row[2].active); // two wattmeters
    else if (rule != PowerRule::OneRow)
        row[kTotal].active = cleaned(row[0].active + row[1].active + (rows == 3 ? row[2].active : 0.0f));
    row[kTotal].apparent = jointApparent(*record, rows, rule == PowerRule::LineRows ? 3.0 : 1.0);
    for (int c = rows; c < kTotal; ++c)
        row[c] = {};

    double active = 0, reactive = 0; // of the fundamentals together
    for (int c = 0; c < rows; ++c) {
        const SpectrumLine &u = record->spectrum[c].voltage[0];
        const SpectrumLine &i = record->spectrum[c].current[0];
        const double product = double(u.magnitude) * i.magnitude;
        const double difference = double(u.phase) - i.phase;
        const double sine = std::sin(difference), cosine = std::cos(difference);
        active += product * cosine;
        reactive += product * sine;
        row[c].reactive = cleaned(static_cast<float>(product * sine));
        row[c].fundamentalFactor = static_cast<float>(std::cos(double(record->channel[c].angleDifference) * kPi / 180));
        finishFactors(row[c]);
    }
    if (rule == PowerRule::OneRow) {
        row[kTotal] = row[0];
        return;
    }
    // Between lines no row is a phase: there the value of the positive sequences stays.
    if (rule != PowerRule::LineRows)
        row[kTotal].reactive = cleaned(static_cast<float>(reactive));
    row[kTotal].fundamentalFactor
        = div_sn(static_cast<float>(active), static_cast<float>(std::hypot(active, double(row[kTotal].reactive))));
    finishFactors(row[kTotal]);
}

void DataTypes::aggregation_mainssig(__datagram_aggregation *record, const float *payload, const DecodeSettings &by)
{
    const float nominal = static_cast<float>(by.nominalVolt);
    for (int c = 0; c < kChannels; ++c) {
        MainsSignalRow &to = record->mainsSignal[c];
        to.volt1 = by.scales.voltage[c] * payload[kMainsSignal + 2 * c];
        to.volt2 = by.scales.voltage[c] * payload[kMainsSignal + 2 * c + 1];
        to.ratio1 = div_sn(to.volt1, nominal);
        to.ratio2 = div_sn(to.volt2, nominal);
        to.reserved[0] = 0;
        to.reserved[1] = 0;
    }
}
