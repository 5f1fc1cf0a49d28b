#include "model/channelset.h"

#include <QString>

namespace {
constexpr int kScopeModes = 6; // U, I, N, L1, L2, L3
constexpr int kAllHarmonicChannels = 5;
}

int ChannelSet::scopeFlags(int mode) const
{
    switch (mode) {
    case 0:
        return mask;
    case 1:
        return mask << 4;
    case 2:
        return hasNeutral() ? 0x88 : 0;
    case 3:
    case 4:
    case 5:
        return has(mode - 3) ? 0x11 << (mode - 3) : 0;
    default:
        return 0;
    }
}

int ChannelSet::nextScopeMode(int mode) const
{
    for (int step = 1; step <= kScopeModes; ++step) {
        const int next = (qBound(0, mode, kScopeModes - 1) + step) % kScopeModes;
        if (scopeFlags(next) != 0)
            return next;
    }
    return 0;
}

int ChannelSet::nextHarmonicChannel(int flag) const
{
    if (mask == 0b0001) // a single channel: nothing to step to
        return flag;
    for (int step = 0; step < kAllHarmonicChannels; ++step) {
        const int next = (qBound(1, flag, kAllHarmonicChannels) + step) % kAllHarmonicChannels + 1;
        if (next == kAllHarmonicChannels ? taskPhases > 1 : has(next - 1))
            return next;
    }
    return flag;
}

QString ChannelSet::caption(int channel) const
{
    static const char *const starCaptions[] = { "L1", "L2", "L3", "N" };
    static const char *const deltaCaptions[] = { "L12", "L23", "L31", "" };
    if (channel < 0 || channel > 3)
        return {};
    return QLatin1String(star() ? starCaptions[channel] : deltaCaptions[channel]);
}
