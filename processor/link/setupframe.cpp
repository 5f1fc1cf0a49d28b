#include "link/setupframe.h"

#include <cstring>

namespace wire {

namespace {

// The older block, in words: frequency in the high half of word 1, offsets from 2, gains from 10, threshold, wiring.
constexpr std::size_t kOlderFrequency = 1;
constexpr std::size_t kOlderZeros = 2;
constexpr std::size_t kOlderGains = 10;
constexpr std::size_t kOlderThreshold = 18;
constexpr std::size_t kOlderWiring = 19;

quint32 bitsOf(float value)
{
    quint32 bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

/// The 21 words of the present form that say the same as the older block.
std::array<quint32, kSetupWords> present(const std::vector<quint32> &older, const processor::ProcessorSetup &now)
{
    std::array<quint32, kSetupWords> words = {};
    const quint32 flexible = (older[kOlderWiring] >> 24) ? 0x8000u : 0u;
    words[0] = (older[kOlderFrequency] & 0xFFFF0000u) | flexible | (older[kOlderWiring] & 0x7FFFu);
    std::copy_n(older.begin() + kOlderZeros, 8, words.begin() + 1);
    std::copy_n(older.begin() + kOlderGains, 8, words.begin() + 9);
    words[17] = older[kOlderThreshold];
    words[18] = quint32(now.flickerCurve);
    words[19] = bitsOf(now.signallingFrequency[0]);
    words[20] = bitsOf(now.signallingFrequency[1]);
    return words;
}

} // namespace

std::optional<processor::ProcessorSetup> setupOf(const Frame &frame, const processor::ProcessorSetup &now)
{
    processor::ProcessorSetup setup = now;
    bool good = false;
    if (frame.type == Frame::Type::Setup) {
        good = processor::decodeSetup(frame.words.data(), frame.words.size(), setup);
    } else if (frame.type == Frame::Type::OlderSetup && frame.words.size() == std::size_t(kOlderSetupBytes / 4)) {
        const auto words = present(frame.words, now);
        good = processor::decodeSetup(words.data(), words.size(), setup);
    }
    return good ? std::optional(setup) : std::nullopt;
}

} // namespace wire
