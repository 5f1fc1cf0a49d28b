#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace processor {

constexpr int Channels = 8; ///< four voltages, four currents

/// The latest samples of all channels in converter units, frame by frame, with running sums of their squares.
///
/// Frames are numbered from the start of the measurement. The eight values of a frame stand together, so that every
/// loop over frames works on all channels in vector registers. Squares are summed in blocks of ten frames; with the
/// blocks' running sum the r.m.s. over any stretch costs two look-ups.
class SampleStore
{
public:
    using Frame = std::array<float, Channels>;
    using Sums = std::array<double, Channels>;
    static constexpr int Capacity = 16384;
    static constexpr int BlockLength = 10;

    SampleStore();

    void clear();
    /// Number of the oldest frame held, and of the next frame to come.
    std::int64_t first() const { return m_first; }
    std::int64_t end() const { return m_first + m_count; }

    /// Room for n frames (at most Capacity) at the end; fill it, then commit. Oldest frames give way where needed.
    Frame *append(int n);
    void commit(int n);
    /// Frames before `number` are needed no longer.
    void discardBefore(std::int64_t number);

    /// Frame `number`, which must be held.
    const Frame &frame(std::int64_t number) const { return m_frames[static_cast<std::size_t>(number - m_first)]; }

    /// Mean squares of all channels over the stretch from a to b, in frames with fractions, a < b. A sample counts for
    /// the unit interval around its number. What is no longer, or not yet, held counts as its nearest end.
    Sums meanSquare(double a, double b) const;

    /// Blocks of ten frames whose mean squares are known, by block number (frame number / 10): from firstBlock() up to,
    /// not including, endBlock().
    std::int64_t endBlock() const { return m_firstBlock + static_cast<std::int64_t>(m_blockCount); }
    Sums blockMeanSquare(std::int64_t block) const;

private:
    Sums integral(double x) const;
    void makeRoom(int n);
    void sumBlocks();

    std::vector<Frame> m_frames;
    std::int64_t m_first = 0; // always a multiple of BlockLength
    int m_count = 0;
    std::vector<Sums> m_running; // m_running[j]: sum of squares of all frames before block m_firstBlock + j
    std::int64_t m_firstBlock = 0;
    std::size_t m_blockCount = 0; // whole blocks held
    std::int64_t m_wanted = 0;
};

} // namespace processor
