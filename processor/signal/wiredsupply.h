#pragma once

#include "signal/signalspec.h"

namespace processor {

/// What a three-phase supply becomes for an instrument that is set to another wiring: the leads that this wiring leaves
/// open carry nothing, a split phase has two halves in opposition, a high leg stands across them. Each load keeps its
/// angle to the voltage of its line.
/// `wiring` counts as the instrument's setting does, 1 to 10; any other number leaves the supply as it is.
SignalSpec wiredSupply(SignalSpec supply, int wiring);

} // namespace processor
