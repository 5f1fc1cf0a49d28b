#pragma once

#include <QtGlobal>

/// Where the scope picture starts: the rising zero crossing of the first channel inside its first cycle.
namespace TriggerSearch {

constexpr int kFirst = 3; // first and last sample looked at, inclusive
constexpr int kLast = 410;
constexpr int kShownSamples = 3687; // samples copied from the trigger on: nine cycles

/// Index of the start in \a samples (4096 of them), 0 to 4096 - kShownSamples. Without a crossing: 0.
int findTrigger(const qint16 *samples);

} // namespace TriggerSearch
