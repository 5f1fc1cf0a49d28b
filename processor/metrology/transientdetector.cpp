#include "metrology/transientdetector.h"

#include "signal/vectorcode.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace processor {

namespace {

// The wave at a fixed distance, read by Lagrange's cubic between samples: three phases at once. The fourth channel is
// carried along so that the four fill a vector register.
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

    std::array<float, 4> at(const SampleStore::Frame *frame) const
    {
        std::array<float, 4> value {};
        for (std::size_t j = 0; j < 4; ++j) {
            const SampleStore::Frame &x = frame[m_whole - 1 + static_cast<std::int64_t>(j)];
            for (std::size_t c = 0; c < 4; ++c)
                value[c] += m_weight[j] * x[c];
        }
        return value;
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
        const std::array<float, 4> expected = before.at(frame);
        float largest = 0.0f;
        for (std::size_t c = 0; c < 3; ++c)
            largest = std::max(largest, std::fabs((*frame)[c] - expected[c]));
        if (largest <= threshold)
            continue;
        const std::array<float, 4> older = twoBefore.at(frame);
        const std::array<float, 4> later = after.at(frame);
        for (std::size_t c = 0; c < 3; ++c) {
            const float x = (*frame)[c];
            if (std::fabs(x - expected[c]) > threshold && std::fabs(x - older[c]) > threshold
                && std::fabs(x - later[c]) > threshold)
                return (static_cast<std::uint32_t>(c + 1) << 24) | static_cast<std::uint32_t>(n - first);
        }
    }
    return 0;
}

} // namespace processor
