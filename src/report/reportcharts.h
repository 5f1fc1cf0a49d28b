#pragma once

#include "report/drawing.h"
#include "report/reporttext.h"

/// Where an event stands in the report's table.
QString eventAnchor(int number);
/// Where the pictures of an event stand.
QString momentAnchor(int number);

/// Highest and lowest values of a quantity over the recording, all phases in one picture, with its limits. Without
/// values it is empty.
Drawing trendChart(Quantity quantity, const Judgement &judgement, const Report &text);
/// What the harmonics of voltage reach in their share of time, beside the limits.
Drawing harmonicChart(const Judgement &judgement, const Report &text);
/// Dips, swells and interruptions by what was left of the voltage and how long they lasted.
Drawing depthChart(const Judgement &judgement, const Report &text);
/// Half-cycle values around an event; empty without any.
Drawing curveChart(const Moment &moment, bool currents, const Report &text);
/// Samples around an event; empty without any.
Drawing waveChart(const Moment &moment, bool currents, const Report &text);
