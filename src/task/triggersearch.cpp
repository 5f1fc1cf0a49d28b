#include "task/triggersearch.h"

#include "model/datagramrecords.h"

#include <cstdlib>

namespace TriggerSearch {

namespace {

/// Three samples on each side must rise over the crossing, so that noise around zero on the falling slope is no
/// trigger.
bool risesThrough(const qint16 *s, int i)
{
    return s[i - 1] < 0 && s[i] >= 0 && s[i + 2] > s[i - 3];
}

} // namespace

int findTrigger(const qint16 *samples)
{
    constexpr int lastStart = kWaveSamples - kShownSamples;

    int best = 0;
    int bestMagnitude = -1;
    const auto consider = [&](int index) {
        const int magnitude = std::abs(int(samples[index]));
        if (index <= lastStart && (bestMagnitude < 0 || magnitude < bestMagnitude)) {
            best = index;
            bestMagnitude = magnitude;
        }
    };

    // A crossing at the very first samples has no three samples before it to look at.
    if (samples[0] >= 0 && samples[0] < samples[1] && samples[1] < samples[2] && samples[2] < samples[3]
        && samples[0] < samples[1] - samples[0])
        consider(0);
    for (int i = kFirst; i <= kLast; ++i) {
        if (!risesThrough(samples, i))
            continue;
        consider(i - 1);
        consider(i);
    }
    return best;
}

} // namespace TriggerSearch
