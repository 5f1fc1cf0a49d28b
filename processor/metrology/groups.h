#pragma once

namespace processor {

// Groupings of IEC 61000-4-7, 5.5.1 and 5.6 and annex A, on the squared r.m.s. values of spectral lines some 5 Hz
// apart. `power[k]` is line k, `lines` their number, `spacing` the lines from one harmonic to the next: the cycles in
// the window (10 at 50 Hz, 12 at 60 Hz). Lines past the end count as 0. Results are r.m.s. values.

/// Harmonic subgroup: the line of the order and its two neighbours.
double harmonicSubgroup(const double *power, int lines, int spacing, int order);

/// Harmonic group: all lines around the order up to half way to its neighbours, the two half-way lines with half
/// weight.
double harmonicGroup(const double *power, int lines, int spacing, int order);

/// Interharmonic centred subgroup above `order` (0 to 99): the lines between two harmonics without the neighbours of
/// either.
double interharmonicSubgroup(const double *power, int lines, int spacing, int order);

/// Interharmonic group above `order`: all lines between two harmonics.
double interharmonicGroup(const double *power, int lines, int spacing, int order);

/// Mains-signalling voltage of IEC 61000-4-30, 5.10: the line itself when the frequency falls on one, else the r.m.s.
/// of the four nearest lines. `place` is the frequency in line spacings; 0 when it lies outside of the spectrum.
double signallingVoltage(const double *power, int lines, double place);

} // namespace processor
