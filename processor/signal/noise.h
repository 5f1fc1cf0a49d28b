#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace processor {

/// Random bits of a counter: the same key and index give the same bits in any order of asking, so a run can be repeated
/// and a block can be made twice. The mixing is that of splitmix64.
inline std::uint64_t randomBits(std::uint64_t key, std::uint64_t index)
{
    std::uint64_t z = key + (index + 1) * 0x9e3779b97f4a7c15u;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
}

/// A key of its own for each input of a run.
inline std::uint64_t noiseKey(std::uint64_t seed, int stream)
{
    return randomBits(seed, 0x5157u + static_cast<std::uint64_t>(stream));
}

/// White noise in blocks of 256 samples. A block is a function of key and number alone. Each of 16 lanes runs a short
/// xorshift sequence from a seed of its own, which keeps the loop in vector registers; a sample is the sum of four even
/// numbers of eight bits, nearly Gaussian and cut at 3.46 times its r.m.s.
class NoiseBlock
{
public:
    static constexpr int Length = 256;

    /// Samples of block `number`, of r.m.s. value 1.
    const std::array<double, Length> &samples(std::uint64_t key, std::uint64_t number)
    {
        if (!m_valid || key != m_key || number != m_number)
            fill(key, number);
        return m_samples;
    }

private:
    void fill(std::uint64_t key, std::uint64_t number)
    {
        constexpr std::size_t lanes = 16;
        std::uint32_t state[lanes];
        for (std::size_t j = 0; j < lanes; j += 2) {
            const std::uint64_t bits = randomBits(key, number * (lanes / 2) + j / 2);
            state[j] = static_cast<std::uint32_t>(bits) | 1u;
            state[j + 1] = static_cast<std::uint32_t>(bits >> 32) | 1u;
        }
        // An even number of 0..255 has the variance (256^2 - 1) / 12, the sum of four a third of 65535.
        constexpr double scale = 1.0 / 147.80054127099803;
        for (std::size_t i = 0; i < Length; i += lanes) {
            for (std::size_t j = 0; j < lanes; ++j) {
                std::uint32_t x = state[j];
                x ^= x << 13;
                x ^= x >> 17;
                x ^= x << 5;
                state[j] = x;
                const std::uint32_t sum = (x & 0xff) + ((x >> 8) & 0xff) + ((x >> 16) & 0xff) + (x >> 24);
                m_samples[i + j] = (static_cast<std::int32_t>(sum) - 510) * scale;
            }
        }
        m_key = key;
        m_number = number;
        m_valid = true;
    }

    std::array<double, Length> m_samples;
    std::uint64_t m_key = 0;
    std::uint64_t m_number = 0;
    bool m_valid = false;
};

} // namespace processor
