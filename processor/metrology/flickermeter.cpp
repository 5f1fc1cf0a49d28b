#include "metrology/flickermeter.h"

#include "signal/synthesiser.h"

#include <algorithm>
#include <cmath>

namespace processor {

namespace {

constexpr double BlockRate = SampleRate / SampleStore::BlockLength; // 2048 a second
constexpr double BlocksPerOutput = BlockRate / FlickerRate; // 1.024
constexpr int SettleBlocks = 410; // 200 ms
// A first-order lag rises from 10 to 90 percent in 2.197 time constants; block 1 takes a minute for it.
constexpr double ReferenceSeconds = 60.0 / 2.1972245773362196;
constexpr double LeastReference = 1e-4; // mean square in converter units: 0.01 units r.m.s.; below nothing is connected

} // namespace

void FlickerMeter::setSetup(const ProcessorSetup &setup)
{
    m_filters.assign(3, FlickerFilter(setup.flickerCurve, setup.nominalFrequency, BlockRate));
}

void FlickerMeter::restart(std::int64_t frame)
{
    m_firstBlock = (frame + SampleStore::BlockLength - 1) / SampleStore::BlockLength;
    m_block = m_firstBlock;
    m_output = 0;
    m_filled = 0;
    m_reference.fill(0.0);
    m_last.fill(0.0);
    m_latest.fill(0.0);
    m_payload.samplesPerWindow = FlickerRate;
}

// After the first 200 ms the mean so far becomes the reference and the filters stand as if it had been there for ever;
// otherwise connecting the instrument would show as flicker for the first minute.
void FlickerMeter::settle()
{
    for (std::size_t k = 0; k < 3; ++k) {
        m_reference[k] /= SettleBlocks;
        m_filters[k].settle(1.0);
    }
}

void FlickerMeter::takeBlock(const SampleStore::Sums &square)
{
    const std::int64_t age = m_block - m_firstBlock;
    m_last = m_latest;
    if (age < SettleBlocks) {
        for (std::size_t k = 0; k < 3; ++k)
            m_reference[k] += square[k];
        if (age == SettleBlocks - 1)
            settle();
        return;
    }
    constexpr double share = 1.0 / (ReferenceSeconds * BlockRate);
    for (std::size_t k = 0; k < 3; ++k) {
        if (m_reference[k] < LeastReference) {
            // Nothing was connected so far: no sensation, and the voltage that appears is the new reference at once.
            m_reference[k] += (square[k] - m_reference[k]) / SettleBlocks;
            m_latest[k] = 0.0;
            m_filters[k].settle(1.0);
            continue;
        }
        m_reference[k] += (square[k] - m_reference[k]) * share;
        m_latest[k] = std::max(m_filters[k].step(square[k] / m_reference[k]), 0.0);
    }
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
