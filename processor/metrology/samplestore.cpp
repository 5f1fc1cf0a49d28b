#include "metrology/samplestore.h"

#include "signal/vectorcode.h"

#include <algorithm>
#include <cmath>

namespace processor {

SampleStore::SampleStore() : m_frames(Capacity), m_running(Capacity / BlockLength + 2)
{
    clear();
}

void SampleStore::clear()
{
    m_first = 0;
    m_count = 0;
    m_firstBlock = 0;
    m_blockCount = 0;
    m_wanted = 0;
    m_running[0].fill(0.0);
}

void SampleStore::discardBefore(std::int64_t number)
{
    m_wanted = std::max(m_wanted, number);
}

// Moves what is still wanted to the front. The sums start anew there, so that they never grow out of their precision.
void SampleStore::makeRoom(int n)
{
    const std::int64_t must = end() + n - Capacity; // what has to go in any case
    std::int64_t keep = std::clamp(std::max(m_wanted, must + BlockLength), m_first, end());
    keep -= keep % BlockLength;
    const auto frames = static_cast<std::size_t>(keep - m_first);
    const std::size_t blocks = frames / BlockLength;
    std::copy(m_frames.begin() + std::ptrdiff_t(frames), m_frames.begin() + m_count, m_frames.begin());
    const Sums base = m_running[blocks];
    for (std::size_t j = 0; j + blocks <= m_blockCount; ++j) {
        for (std::size_t c = 0; c < Channels; ++c)
            m_running[j][c] = m_running[j + blocks][c] - base[c];
    }
    m_first = keep;
    m_count -= static_cast<int>(frames);
    m_firstBlock += static_cast<std::int64_t>(blocks);
    m_blockCount -= blocks;
}

SampleStore::Frame *SampleStore::append(int n)
{
    if (m_count + n > Capacity)
        makeRoom(n);
    return m_frames.data() + m_count;
}

void SampleStore::commit(int n)
{
    m_count += n;
    sumBlocks();
}

PROCESSOR_VECTOR_CODE void SampleStore::sumBlocks()
{
    const std::size_t whole = static_cast<std::size_t>(m_count) / BlockLength;
    for (; m_blockCount < whole; ++m_blockCount) {
        Sums sum {};
        const Frame *frame = m_frames.data() + m_blockCount * BlockLength;
        for (int i = 0; i < BlockLength; ++i) {
            for (std::size_t c = 0; c < Channels; ++c)
                sum[c] += static_cast<double>(frame[i][c]) * static_cast<double>(frame[i][c]);
        }
        for (std::size_t c = 0; c < Channels; ++c)
            m_running[m_blockCount + 1][c] = m_running[m_blockCount][c] + sum[c];
    }
}

// Integral of the squares from the store's first frame to x.
SampleStore::Sums SampleStore::integral(double x) const
{
    const double place = std::clamp(x + 0.5 - static_cast<double>(m_first), 0.0, static_cast<double>(m_count));
    const auto whole = static_cast<std::size_t>(place);
    const std::size_t block = std::min(whole / BlockLength, m_blockCount);
    Sums sum = m_running[block];
    for (std::size_t i = block * BlockLength; i < whole; ++i) {
        for (std::size_t c = 0; c < Channels; ++c)
            sum[c] += static_cast<double>(m_frames[i][c]) * static_cast<double>(m_frames[i][c]);
    }
    const double part = place - static_cast<double>(whole);
    if (part > 0.0 && whole < static_cast<std::size_t>(m_count)) {
        for (std::size_t c = 0; c < Channels; ++c)
            sum[c] += part * static_cast<double>(m_frames[whole][c]) * static_cast<double>(m_frames[whole][c]);
    }
    return sum;
}

SampleStore::Sums SampleStore::meanSquare(double a, double b) const
{
    const Sums low = integral(a);
    Sums result = integral(b);
    for (std::size_t c = 0; c < Channels; ++c)
        result[c] = b > a ? std::max((result[c] - low[c]) / (b - a), 0.0) : 0.0;
    return result;
}

SampleStore::Sums SampleStore::blockMeanSquare(std::int64_t block) const
{
    const auto j = static_cast<std::size_t>(block - m_firstBlock);
    Sums result;
    for (std::size_t c = 0; c < Channels; ++c)
        result[c] = std::max((m_running[j + 1][c] - m_running[j][c]) / BlockLength, 0.0);
    return result;
}

} // namespace processor
