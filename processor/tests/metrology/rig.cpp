#include "rig.h"

#include <algorithm>
#include <cmath>

namespace rig {

void Recorder::aggregation(const AggregationPayload &payload, std::int64_t timeMs)
{
    order.push_back(Kind::Aggregation);
    aggregations.push_back({ payload, timeMs });
}

void Recorder::rms(const RmsPayload &payload, std::int64_t timeMs)
{
    order.push_back(Kind::Rms);
    rmsValues.push_back({ payload, timeMs });
}

void Recorder::wave(const WavePayload &payload, std::int64_t timeMs)
{
    order.push_back(Kind::Wave);
    waves.push_back({ payload, timeMs });
}

void Recorder::flicker(const FlickerPayload &payload, std::int64_t timeMs)
{
    order.push_back(Kind::Flicker);
    flickers.push_back({ payload, timeMs });
}

std::vector<HalfCycleEntry> Recorder::halfCycles(int phase) const
{
    std::vector<HalfCycleEntry> all;
    for (const Item<RmsPayload> &item : rmsValues) {
        const HalfCycleBlock &block = item.payload.phase[std::size_t(phase)];
        all.insert(all.end(), block.entry.begin(), block.entry.begin() + block.count / 2);
    }
    return all;
}

std::vector<float> Recorder::pinst(int phase, double second) const
{
    std::vector<float> all;
    for (const Item<FlickerPayload> &item : flickers) {
        const auto &values = item.payload.pinst[std::size_t(phase)];
        all.insert(all.end(), values.begin(), values.end());
    }
    const auto skipped = std::min(all.size(), std::size_t(second * FlickerRate));
    all.erase(all.begin(), all.begin() + std::ptrdiff_t(skipped));
    return all;
}

std::int64_t timeOf(const HalfCycleEntry &entry)
{
    return std::int64_t(entry.voltageSeconds) * 1000 + entry.voltageMilliseconds;
}

Rig::Rig(const SignalSpec &spec, const ProcessorSetup &setup, std::uint64_t seed)
    : synthesiser(spec, seed), frontEnd(seed), chain(setup, recorder)
{
    frontEnd.setSelector(FrontEnd::PhaseVoltage, 1);
    frontEnd.setSelector(FrontEnd::NeutralVoltage, 1);
    frontEnd.setNoise(0.0);
    frontEnd.setRogowski(setup.flexibleClamp, setup.nominalFrequency);
    chain.setTime(StartMs);
}

void Rig::run(double seconds, int step)
{
    m_target += std::int64_t(std::llround(seconds * SampleRate));
    std::vector<double> volts(std::size_t(8 * step));
    std::vector<std::int16_t> steps(std::size_t(8 * step));
    double *rendered[8];
    const double *input[8];
    std::int16_t *converted[8];
    const std::int16_t *samples[8];
    for (int c = 0; c < 8; ++c) {
        input[c] = rendered[c] = volts.data() + c * step;
        samples[c] = converted[c] = steps.data() + c * step;
    }
    while (synthesiser.position() < m_target) {
        const int n = int(std::min<std::int64_t>(step, m_target - synthesiser.position()));
        synthesiser.render(rendered, n);
        frontEnd.convert(input, converted, n);
        chain.process(samples, n);
    }
}

double shownPhase(double raw, double p0, int h)
{
    return wrapped(raw - p0 * (h + 1) - h * Pi / 2.0);
}

double wrapped(double angle)
{
    return std::remainder(angle, 2.0 * Pi);
}

double shortTermSeverity(std::vector<float> values)
{
    std::sort(values.begin(), values.end(), std::greater<float>());
    const auto exceeded = [&](double percent) {
        const double place = percent / 100.0 * double(values.size() - 1);
        const auto i = std::size_t(place);
        const double next = i + 1 < values.size() ? values[i + 1] : values[i];
        return values[i] + (place - double(i)) * (next - values[i]);
    };
    const double p1 = (exceeded(0.7) + exceeded(1.0) + exceeded(1.5)) / 3.0;
    const double p3 = (exceeded(2.2) + exceeded(3.0) + exceeded(4.0)) / 3.0;
    const double p10 = (exceeded(6.0) + exceeded(8.0) + exceeded(10.0) + exceeded(13.0) + exceeded(17.0)) / 5.0;
    const double p50 = (exceeded(30.0) + exceeded(50.0) + exceeded(80.0)) / 3.0;
    return std::sqrt(0.0314 * exceeded(0.1) + 0.0525 * p1 + 0.0657 * p3 + 0.28 * p10 + 0.08 * p50);
}

} // namespace rig
