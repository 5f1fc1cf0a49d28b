#include "signal/wiredsupply.h"

namespace processor {

namespace {

constexpr double SquareRootOfThree = 1.7320508075688772;

/// How the lines of a wiring stand. A line that stands as in the star has its own angle.
struct Lines
{
    bool moved; ///< angle and factor count
    double angleDeg[3]; ///< of the voltages
    double factor[3]; ///< of the voltages, beside those of the supply
    InputMask connected; ///< leads and clamps that are plugged in
};

// The lead and the clamp of a line.
constexpr InputMask L1 = maskOf(U1) | maskOf(I1);
constexpr InputMask L2 = maskOf(U2) | maskOf(I2);
constexpr InputMask L3 = maskOf(U3) | maskOf(I3);
constexpr InputMask N = maskOf(UN) | maskOf(IN);
constexpr InputMask Delta = L1 | L2 | L3;
constexpr InputMask Star = Delta | N;

constexpr Lines kWirings[] = {
    { false, {}, {}, Star }, // star
    { false, {}, {}, Delta }, // isolated star
    { false, {}, {}, L1 | N }, // one phase with neutral
    { false, {}, {}, Delta }, // delta
    { true, { 0.0, 180.0, 0.0 }, { 1.0, 1.0, 1.0 }, L1 | L2 | N }, // split phase
    { false, {}, {}, L1 | L2 }, // two lines without neutral
    { true, { 0.0, 90.0, 180.0 }, { 1.0, SquareRootOfThree, 1.0 }, Star }, // high leg
    { false, {}, {}, Delta }, // open delta
    { false, {}, {}, Star & ~maskOf(U2) }, // two and a half elements: the voltage of L2 is worked out
    { false, {}, {}, Delta & ~maskOf(I2) }, // two elements: the current of L2 is worked out
};
constexpr int kWiringCount = int(sizeof kWirings / sizeof kWirings[0]);

} // namespace

SignalSpec wiredSupply(SignalSpec supply, int wiring)
{
    if (wiring < 1 || wiring > kWiringCount)
        return supply;
    const Lines &lines = kWirings[wiring - 1];
    for (std::size_t line = 0; lines.moved && line < 3; ++line) {
        InputSpec &voltage = supply.inputs[U1 + line];
        InputSpec &current = supply.inputs[I1 + line];
        current.phaseDeg += lines.angleDeg[line] - voltage.phaseDeg;
        voltage.phaseDeg = lines.angleDeg[line];
        voltage.rms *= lines.factor[line];
    }
    for (int input = 0; input < InputCount; ++input) {
        if (!(lines.connected & maskOf(input)))
            supply.inputs[std::size_t(input)] = InputSpec();
    }
    // An open clamp sees no neutral current either.
    supply.neutralCarriesPhaseCurrents = supply.neutralCarriesPhaseCurrents && (lines.connected & maskOf(IN)) != 0;
    return supply;
}

} // namespace processor
