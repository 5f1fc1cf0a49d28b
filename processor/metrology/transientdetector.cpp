#include "metrology/transientdetector.h"

#include "signal/vectorcode.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>

namespace processor {

namespace {

// The four voltages of a frame in a vector register. The neutral is carried along and never judged.
typedef float Voltages __attribute__((vector_size(16)));
constexpr std::size_t Judged = 3;

__attribute__((always_inline)) inline void load(const SampleStore::Frame &frame, Voltages &out)
{
    std::memcpy(&out, frame.data(), sizeof(out));
}

// The wave at a fixed distance, read by Lagrange's cubic between samples.
class Delayed
{
public:
    explicit Delayed(double frames) : m_whole(static_cast<std::int64_t>(std::floor(frames)))
    {
        const double t = frames - static_cast<double>(m_whole); // 0 up to 1
        m_weight = { { static_cast<float>(t * (t - 1.0) * (t - 2.0) / -6.0),
                       static_cast<float>((t + 1.0) * (t - 1.0) * (t - 2.0) / 2.0),
                       static_cast<float>((t + 1.0) * t * (t - 2.0) / -2.0),
                       static_cast<float>((t + 1.0) * t * (t - 1.0) / 6.0) } };
    }
    /// First and last frame that the value at distance 0 looks at.
    std::int64_t low() const { return m_whole - 1; }
    std::int64_t high() const { return m_whole + 2; }

    /// Distance of each voltage of `x` from this wave.
    __attribute__((always_inline)) inline void distance(const SampleStore::Frame *frame, const Voltages &x,
                                                        Voltages &out) const
    {
        Voltages wave = {};
        for (std::size_t j = 0; j < 4; ++j) {
            Voltages y;
            load(frame[m_whole - 1 + static_cast<std::int64_t>(j)], y);
            wave += m_weight[j] * y;
        }
        const Voltages d = x - wave;
        out = d < 0.0f ? -d : d;
    }

private:
    std::int64_t m_whole;
    std::array<float, 4> m_weight;
};

} // namespace

PROCESSOR_VECTOR_CODE std::uint32_t TransientDetector::find(const SampleStore &store, std::int64_t first, int count,
                                                            double period, float threshold)
{
    if (!(threshold > 0.0f) || !(period >= 4.0))
        return 0;
    const Delayed before(-period);
    const Delayed twoBefore(-2.0 * period);
    const Delayed after(period);
    const std::int64_t from = std::max(first, store.first() - twoBefore.low());
    const std::int64_t to = std::min(first + count, store.end() - after.high());
    for (std::int64_t n = from; n < to; ++n) {
        const SampleStore::Frame *frame = &store.frame(n);
        Voltages x, distance;
        load(*frame, x);
        before.distance(frame, x, distance);
        if (!(std::max({ distance[0], distance[1], distance[2] }) > threshold))
            continue;
        Voltages older, later;
        twoBefore.distance(frame, x, older);
        after.distance(frame, x, later);
        for (std::size_t c = 0; c < Judged; ++c) {
            if (distance[c] > threshold && older[c] > threshold && later[c] > threshold)
                return (static_cast<std::uint32_t>(c + 1) << 24) | static_cast<std::uint32_t>(n - first);
        }
    }
    return 0;
}

} // namespace processor
