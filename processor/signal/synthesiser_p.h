#pragma once

#include "signal/eventplay.h"
#include "signal/noise.h"
#include "signal/phaseclock.h"
#include "signal/synthesiser.h"
#include "signal/waveform.h"

#include <array>
#include <memory>
#include <vector>

namespace processor {

/// What a synthesiser has in hand, and the making of its blocks of 256 samples.
struct Synthesiser::Private
{
    static constexpr int BlockLength = NoiseBlock::Length;
    using Block = std::array<double, BlockLength>;

    SignalSpec spec;
    std::uint64_t seed = 1;
    double sampleRate = SampleRate;
    std::int64_t position = 0;
    PhaseClock commonClock;
    std::array<PhaseClock, InputCount> ownClock;
    std::array<std::shared_ptr<WaveTable>, InputCount> tables; // null: a pure sine
    std::vector<EventPlay> events;
    std::vector<std::size_t> current; // events that are running or still to come
    std::array<Block, InputCount> block;
    std::int64_t blockNumber = -1; // what `block` holds, -1: nothing

    bool hasOwnClock(int input) const { return spec.inputs[std::size_t(input)].frequencyHz > 0.0; }
    const PhaseClock &clock(int input) const { return hasOwnClock(input) ? ownClock[std::size_t(input)] : commonClock; }

    void takeSteadyPart();
    void takeEvents(const std::vector<SignalEvent> &list);
    double startOf(const SignalEvent &event) const;

    void renderBlock(std::int64_t number);

private:
    void renderInput(int input, std::int64_t first, const Block &commonCycles);
    void renderWave(int input, std::int64_t first, const Block &commonCycles, bool eventful);
    void applyEvents(int input, std::int64_t first);
    bool runs(const EventPlay &play, int input, std::int64_t first) const;
    void addSine(double frequencyHz, double phaseDeg, double amplitude, std::int64_t first, Block &out) const;
    void addBursts(int input, std::int64_t first, Block &out) const;
    void modulate(const ModulationSpec &m, std::int64_t first, Block &out) const;
};

/// Whether a telegram stands on the line at a moment.
bool burstOn(const SignallingSpec &signalling, double seconds);
/// Factor of a modulation at a moment.
double modulationAt(const ModulationSpec &modulation, double seconds);

} // namespace processor
