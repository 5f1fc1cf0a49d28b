// Decoding an aggregation datagram, beside one pass that only scales its 3250 words: word by word, and as the compiler
// does it with vectors. The decoder places each word anew, so the second is a limit that no decoder reaches.
#include "bench/ratios.h"
#include "device/datatypes.h"
#include "settings/config_data.h"

#include <QByteArray>

#include <cmath>
#include <cstring>

namespace {

/// A plausible payload: 230 V, 10 A, falling spectra, phases all over the circle.
QByteArray payload()
{
    QByteArray bytes(4 * Link::kAggregationWords, '\0');
    const auto put = [&bytes](int word, float value) { memcpy(bytes.data() + 4 * word, &value, 4); };
    put(2, 50.01f);
    for (int word = 5; word < 41; ++word)
        put(word, 1.5f + 0.01f * float(word));
    for (int input = 0; input < 8; ++input) {
        for (int h = 0; h < 100; ++h) {
            const int word = 42 + 400 * input + 4 * h;
            put(word, 0.001f / float(h + 1));
            put(word + 2, 3.0f / float((h + 1) * (h + 1)));
            put(word + 3, float(std::fmod(0.7 * input + 1.3 * h, 6.28) - 3.14));
        }
    }
    for (int word = 3242; word < 3250; ++word)
        put(word, 0.02f);
    return bytes;
}

void decodeAggregation(benchmark::State &state)
{
    const QByteArray bytes = payload();
    static __datagram_aggregation record;
    benchmark::DoNotOptimize(&record);
    const DecodeSettings by(m_settingConfig_g.derived().scales, m_settingConfig_g.derived());
    for (auto _ : state) {
        DataTypes::datagramAggregation(&record, bytes.constData(), by);
        benchmark::ClobberMemory();
    }
}

/// One pass over the words. Out of line, so that each form keeps its own way.
template <typename Loop> void scaleWords(benchmark::State &state, Loop loop)
{
    const QByteArray bytes = payload();
    static float scaled[Link::kAggregationWords];
    benchmark::DoNotOptimize(&scaled[0]);
    static volatile float scale = 79.25f; // not known while compiling
    for (auto _ : state) {
        loop(scaled, reinterpret_cast<const float *>(bytes.constData()), float(scale));
        benchmark::ClobberMemory();
    }
}

void scaleWordByWord(benchmark::State &state)
{
    scaleWords(state, [](float *to, const float *from, float factor) {
        for (int i = 0; i < Link::kAggregationWords; ++i) {
            to[i] = from[i] * factor;
            asm volatile("" ::: "memory"); // keeps the compiler from taking several at once
        }
    });
}

void scaleFourByFour(benchmark::State &state)
{
    scaleWords(state, [](float *to, const float *from, float factor) {
        for (int i = 0; i < Link::kAggregationWords; ++i)
            to[i] = from[i] * factor;
    });
}

BENCHMARK(decodeAggregation);
BENCHMARK(scaleWordByWord);
BENCHMARK(scaleFourByFour);

} // namespace

int main(int argc, char **argv)
{
    return Ratios::run(
        argc, argv, Ratios::ProcessorTime,
        { { "decode aggregation / scale its words", "decodeAggregation", "scaleWordByWord", 2.5 },
          { "decode aggregation / scale its words with vectors", "decodeAggregation", "scaleFourByFour", 0 } });
}
