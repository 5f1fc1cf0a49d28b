#pragma once

#include "model/datagramrecords.h"

/// Word numbers of the aggregation payload, the time stamp's two words counted (docs/link-protocol.md).
namespace AggregationPayload {

constexpr int kFrequency = 2; // Hz; negative without lock
constexpr int kChannelFirst = 5;
constexpr int kChannelWords = 9;
// Offsets in the nine words of a channel; raw, converter units or their square.
constexpr int kActivePower = 0;
constexpr int kApparentPower = 1;
constexpr int kVoltage = 3;
constexpr int kCurrent = 4;
constexpr int kVoltagePeak = 5;
constexpr int kVoltageOffset = 6;
constexpr int kCurrentPeak = 7;
constexpr int kCurrentOffset = 8;

constexpr int kSpectrumFirst = 42;
constexpr int kSpectrumWords = 400; // of one input
constexpr int kLineWords = 4;
// Offsets in the four words of a line; word 0 is the magnitude of the interharmonic, word 1 is not read.
constexpr int kMagnitude = 2;
constexpr int kPhase = 3; // radians
constexpr int kLineStep400 = 8; // lines from one order of a 400 Hz system to the next; the first is line 7

constexpr int kMainsSignal = 3242; // two words a channel

constexpr int channelWord(int channel, int offset)
{
    return kChannelFirst + kChannelWords * channel + offset;
}

/// First word of the spectrum of an input: 0 to 3 voltages, 4 to 7 currents.
constexpr int spectrumWord(int input)
{
    return kSpectrumFirst + kSpectrumWords * input;
}

static_assert(channelWord(3, kCurrentOffset) == 40, "word 41 is not read");
static_assert(spectrumWord(8) == kMainsSignal && kMainsSignal + 2 * kChannels == 3250, "the payload's end");

} // namespace AggregationPayload
