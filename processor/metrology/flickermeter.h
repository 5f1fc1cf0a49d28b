#pragma once

#include "metrology/flickerfilter.h"
#include "metrology/measurementsink.h"
#include "metrology/samplestore.h"
#include "metrology/setup.h"
#include "signal/synthesiser.h"

#include <cstdint>

namespace processor {

/// The flickermeter of IEC 61000-4-15, blocks 1 to 4, for the three phase voltages.
///
/// The squares of the samples are averaged in blocks of ten, which leaves 2048 values a second: the sidebands of the
/// squared voltage below 42 Hz pass unchanged, and the filters run at a tenth of the rate. Block 1 divides by a mean
/// square with a one-minute response; block 4's output is read off at 2000 values a second.
///
/// Connecting a voltage is no flicker: the mean square of its first 200 ms is the reference, and what differs from it
/// is let into the filters little by little over the next two seconds.
class FlickerMeter
{
public:
    void setSetup(const ProcessorSetup &setup);
    /// Starts anew at the sample `frame`.
    void restart(std::int64_t frame);

    /// Takes all blocks that the store has. True when a payload has become full: its values and the frame of the first
    /// one are then valid until the next call. Call until it gives false.
    bool advance(const SampleStore &store);
    const FlickerPayload &payload() const { return m_payload; }
    double payloadFrame() const { return m_payloadFrame; }
    /// First frame that will still be looked at.
    std::int64_t needs() const { return m_block * SampleStore::BlockLength; }

private:
    double relativeSquare(std::size_t k, double square);
    void takeBlock(const SampleStore::Sums &square);
    bool deliver();

    FlickerFilter m_filter { 230, 50, SampleRate / SampleStore::BlockLength };
    std::array<double, 3> m_reference {}; // mean square that block 1 divides by
    std::array<std::int64_t, 3> m_age {}; // blocks since a voltage appeared
    std::array<double, 3> m_last {}; // Pinst of the last two blocks
    std::array<double, 3> m_latest {};
    std::int64_t m_block = 0; // next block to take
    std::int64_t m_firstBlock = 0; // block of the start
    std::int64_t m_output = 0; // next value to deliver, counted at 2000 a second from the start
    int m_filled = 0; // values in the payload
    FlickerPayload m_payload {};
    double m_payloadFrame = 0.0;
};

} // namespace processor
