#pragma once

/// What a flickermeter of IEC 61000-4-15 shows, worked out without samples: the squared voltage of a modulated sine as
/// a sum of lines, each passed through the standard's analog filters, squared and averaged. It shares no code with the
/// meter.
///
/// The square of a sine holds a line at twice the mains frequency 2F. A modulation of rate f puts lines at n f and,
/// beside that one, at 2F - n f: some of these lie low enough to be seen, so the depth that a rectangular modulation
/// needs depends on how its edges lie on the wave. Here, as in the standard's tables, mains and modulation rise through
/// zero together.
namespace flickertheory {

enum class Shape { Sinusoidal, Rectangular };

/// Relative voltage change (peak to peak, percent) whose highest Pinst is 1. `curve` is the lamp: 230 V at 50 Hz or 120
/// V at 60 Hz.
double depthOfPinstOne(int curve, Shape shape, double rateHz);

} // namespace flickertheory
