#include "signal/signalspec.h"

#include <algorithm>
#include <cmath>

namespace processor {

namespace {

constexpr double DegreesPerRadian = 57.29577951308232;
constexpr InputMask AllInputs = (1u << InputCount) - 1;
constexpr double TopFrequency = 10240.0; // half the sample rate
constexpr double TopValue = 1e6; // V or A; what is above is a slip of the pen

struct Range
{
    const char *name;
    double value;
    double low;
    double high;
};

std::string number(double value)
{
    std::string text = std::to_string(value);
    text.erase(text.find_last_not_of('0') + 1);
    if (!text.empty() && text.back() == '.')
        text.pop_back();
    return text;
}

template <typename Ranges> std::string firstOutside(const std::string &where, const Ranges &ranges)
{
    for (const Range &r : ranges) {
        if (!(r.value >= r.low && r.value <= r.high))
            return where + r.name + ": " + number(r.low) + " to " + number(r.high) + " expected";
    }
    return {};
}

std::string validateInput(const InputSpec &input, const std::string &where)
{
    const Range own[] = { { "rms", input.rms, 0.0, TopValue },
                          { "phaseDeg", input.phaseDeg, -TopValue, TopValue },
                          { "frequencyHz", input.frequencyHz, 0.0, 1000.0 },
                          { "driftHzPerSecond", input.driftHzPerSecond, -100.0, 100.0 },
                          { "noiseRms", input.noiseRms, 0.0, TopValue },
                          { "dc", input.dc, -TopValue, TopValue },
                          { "modulation.rateHz", input.modulation.rateHz, 0.0, TopFrequency },
                          { "modulation.depthPercent", input.modulation.depthPercent, 0.0, 200.0 } };
    std::string problem = firstOutside(where, own);
    for (std::size_t i = 0; problem.empty() && i < input.harmonics.size(); ++i) {
        const HarmonicSpec &h = input.harmonics[i];
        const Range ranges[] = { { "order", double(h.order), 2.0, 100.0 },
                                 { "percent", h.percent, 0.0, 1000.0 },
                                 { "phaseDeg", h.phaseDeg, -TopValue, TopValue } };
        problem = firstOutside(where + "harmonics[" + std::to_string(i) + "].", ranges);
    }
    for (std::size_t i = 0; problem.empty() && i < input.interharmonics.size(); ++i) {
        const InterharmonicSpec &h = input.interharmonics[i];
        const Range ranges[] = { { "frequencyHz", h.frequencyHz, 0.0, TopFrequency },
                                 { "percent", h.percent, 0.0, 1000.0 },
                                 { "phaseDeg", h.phaseDeg, -TopValue, TopValue } };
        problem = firstOutside(where + "interharmonics[" + std::to_string(i) + "].", ranges);
    }
    return problem;
}

} // namespace

SignalSpec SignalSpec::threePhase(double volts, double frequencyHz, double amps, double powerFactor, bool capacitive)
{
    SignalSpec spec;
    spec.frequencyHz = frequencyHz;
    for (int line = 0; line < 3; ++line) {
        InputSpec &voltage = spec.inputs[static_cast<std::size_t>(U1 + line)];
        voltage.rms = volts;
        voltage.phaseDeg = line == 2 ? 120.0 : -120.0 * line;
        setLoad(spec, line, amps, powerFactor, capacitive);
    }
    return spec;
}

double loadAngle(double powerFactor)
{
    return std::acos(std::clamp(powerFactor, -1.0, 1.0)) * DegreesPerRadian;
}

void setLoad(SignalSpec &spec, int line, double amps, double powerFactor, bool capacitive)
{
    if (line < 0 || line > 2)
        return;
    const double shift = loadAngle(powerFactor);
    InputSpec &current = spec.inputs[static_cast<std::size_t>(I1 + line)];
    current.rms = amps;
    current.phaseDeg = spec.inputs[static_cast<std::size_t>(U1 + line)].phaseDeg + (capacitive ? shift : -shift);
}

std::string validate(const SignalEvent &event)
{
    const bool decays = event.kind == EventKind::Inrush || event.kind == EventKind::ImpulsiveTransient
        || event.kind == EventKind::OscillatoryTransient;
    const double phase = std::isnan(event.startPhaseDeg) ? 0.0 : event.startPhaseDeg;
    const double powerFactor = std::isnan(event.powerFactor) ? 1.0 : event.powerFactor;
    const Range ranges[] = { { "inputs", double(event.inputs), 1.0, double(AllInputs) },
                             { "startSeconds", event.startSeconds, 0.0, 1e9 },
                             { "durationSeconds", event.durationSeconds, 0.0, 1e9 },
                             { "percent", event.percent, event.kind == EventKind::RapidChange ? -100.0 : 0.0,
                               event.kind == EventKind::Dip ? 100.0 : 10000.0 },
                             { "amplitude", event.amplitude, -TopValue, TopValue },
                             { "frequencyHz", event.frequencyHz, 0.0, TopFrequency },
                             { "angleDeg", event.angleDeg, -360.0, 360.0 },
                             { "powerFactor", powerFactor, -1.0, 1.0 },
                             { "riseSeconds", event.riseSeconds, 0.0, 1e6 },
                             { "decaySeconds", event.decaySeconds, decays ? 1e-6 : 0.0, 1e6 },
                             { "startPhaseDeg", phase, -360.0, 360.0 } };
    return firstOutside(std::string(), ranges);
}

std::string validate(const SignalSpec &spec)
{
    const Range common[] = { { "frequencyHz", spec.frequencyHz, 1.0, 1000.0 },
                             { "driftHzPerSecond", spec.driftHzPerSecond, -100.0, 100.0 },
                             { "driftLimitHz", spec.driftLimitHz, 0.0, 1000.0 } };
    std::string problem = firstOutside(std::string(), common);
    for (std::size_t i = 0; problem.empty() && i < spec.inputs.size(); ++i)
        problem = validateInput(spec.inputs[i], "inputs[" + std::to_string(i) + "].");
    for (std::size_t i = 0; problem.empty() && i < spec.signalling.size(); ++i) {
        const SignallingSpec &s = spec.signalling[i];
        const Range ranges[] = { { "inputs", double(s.inputs), 1.0, double(AllInputs) },
                                 { "frequencyHz", s.frequencyHz, 0.0, TopFrequency },
                                 { "percent", s.percent, 0.0, 1000.0 },
                                 { "startSeconds", s.startSeconds, 0.0, 1e9 },
                                 { "onSeconds", s.onSeconds, 0.0, 1e9 },
                                 { "periodSeconds", s.periodSeconds, 0.0, 1e9 } };
        problem = firstOutside("signalling[" + std::to_string(i) + "].", ranges);
    }
    for (std::size_t i = 0; problem.empty() && i < spec.events.size(); ++i) {
        problem = validate(spec.events[i]);
        if (!problem.empty())
            problem.insert(0, "events[" + std::to_string(i) + "].");
    }
    return problem;
}

} // namespace processor
