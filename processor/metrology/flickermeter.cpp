#include "metrology/flickermeter.h"

#include "signal/synthesiser.h"

#include <algorithm>
#include <cmath>

namespace processor {

namespace {

constexpr double BlockRate = SampleRate / SampleStore::BlockLength; // 2048 a second
constexpr double BlocksPerOutput = BlockRate / FlickerRate; // 1.024
constexpr int SettleBlocks = 410; // 200 ms
constexpr int FadeBlocks = 4096; // 2 s
// A first-order lag rises from 10 to 90 percent in 2.197 time constants; block 1 takes a minute for it.
constexpr double ReferenceSeconds = 60.0 / 2.1972245773362196;
constexpr double ReferenceShare = 1.0 / (ReferenceSeconds * BlockRate);
constexpr double LeastReference = 1e-4; // mean square in converter units: 0.01 units r.m.s.; below nothing is connected

} // namespace

void FlickerMeter::setSetup(const ProcessorSetup &setup)
{
    m_filter = FlickerFilter(setup.flickerCurve, setup.nominalFrequency, BlockRate);
}

void FlickerMeter::restart(std::int64_t frame)
{
    m_firstBlock = (frame + SampleStore::BlockLength - 1) / SampleStore::BlockLength;
    m_block = m_firstBlock;
    m_output = 0;
    m_filled = 0;
    m_reference.fill(0.0);
    m_age.fill(0);
    m_last.fill(0.0);
    m_latest.fill(0.0);
    m_payload.samplesPerWindow = FlickerRate;
}

// Block 1: the mean square of phase k over its reference; 1 while there is nothing to compare.
double FlickerMeter::relativeSquare(std::size_t k, double square)
{
    if (m_age[k] == 0) {
        if (square < LeastReference)
            return 1.0; // nothing is connected
        m_reference[k] = 0.0;
        m_filter.settle(k, 1.0);
    }
    const std::int64_t age = ++m_age[k];
    if (age <= SettleBlocks) {
        m_reference[k] += (square - m_reference[k]) / static_cast<double>(age);
        return 1.0;
    }
    // A plain mean at first, which becomes the lag of one minute as soon as that is the slower one.
    m_reference[k] += (square - m_reference[k]) * std::max(1.0 / static_cast<double>(age), ReferenceShare);
    if (m_reference[k] < LeastReference) {
        m_age[k] = 0;
        return 1.0;
    }
    const double x = square / m_reference[k];
    if (age >= SettleBlocks + FadeBlocks)
        return x;
    const double part = static_cast<double>(age - SettleBlocks) / FadeBlocks;
    return 1.0 + part * part * (3.0 - 2.0 * part) * (x - 1.0);
}

void FlickerMeter::takeBlock(const SampleStore::Sums &square)
{
    FlickerFilter::Values values = { { 1.0, 1.0, 1.0, 1.0 } }; // the fourth is a spare
    for (std::size_t k = 0; k < 3; ++k)
        values[k] = relativeSquare(k, square[k]);
    m_filter.step(values);
    m_last = m_latest;
    for (std::size_t k = 0; k < 3; ++k)
        m_latest[k] = m_age[k] > SettleBlocks ? std::max(values[k], 0.0) : 0.0;
}

// Reads the values between the last two blocks that fall on the 2000-a-second grid. True when the payload is full.
bool FlickerMeter::deliver()
{
    // The latest block is number m_block - 1; a block stands for its middle.
    const auto latest = static_cast<double>(m_block - 1 - m_firstBlock);
    const double place = static_cast<double>(m_output) * BlocksPerOutput;
    if (place > latest)
        return false;
    if (m_filled == 0 || m_filled == FlickerValues) {
        m_filled = 0;
        m_payloadFrame = (static_cast<double>(m_firstBlock) + place + 0.5) * SampleStore::BlockLength;
    }
    const double part = 1.0 - (latest - place); // 0 at the block before, 1 at the latest
    for (std::size_t k = 0; k < 3; ++k) {
        m_payload.pinst[k][static_cast<std::size_t>(m_filled)]
            = static_cast<float>(m_last[k] + part * (m_latest[k] - m_last[k]));
    }
    ++m_filled;
    ++m_output;
    return m_filled == FlickerValues;
}

bool FlickerMeter::advance(const SampleStore &store)
{
    while (m_block < store.endBlock()) {
        takeBlock(store.blockMeanSquare(m_block));
        ++m_block;
        // Blocks come a little faster than values, so there is at most one value between two of them.
        if (deliver())
            return true;
    }
    return false;
}

} // namespace processor
