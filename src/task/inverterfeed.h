#pragma once

#include "model/displayrecords.h"

/// How the inverter's output is wired: 0 three-phase, 1 single-phase.
extern int singleOrThree;

/// Derives the inverter's values from the live ones: the direct-current side is measured on the fourth channel (N, IN),
/// the alternating side on L1 to L3. Plain functions of records; docs/power-inverter.md tells the rules.
namespace InverterFeed {

enum Trend { InputVoltage, OutputVoltage, InputCurrent, OutputCurrent, Efficiency, OutputPower };

/// Output phases, bit 0 L1 to bit 2 L3: those of the wiring \a channelMask, L1 alone with \a single.
int outputMask(int channelMask, bool single);

/// Fills the values; the trends stay. \a outputs as of outputMask.
void feed(const __vif_data &live, const __power_data &power, bool single, int outputs, __pi_data &to);
/// Appends one point to each trend; each keeps its newest 600.
void appendTrends(int outputs, __pi_data &data);

} // namespace InverterFeed
