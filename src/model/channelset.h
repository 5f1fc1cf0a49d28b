#pragma once

#include <QtGlobal>

#include <iterator>

class QString;

/// What one wiring decides. Every page, writer and detector asks this table; none decides on the join mode itself.
/// Channel masks: bit 0 L1, bit 1 L2, bit 2 L3, bit 3 N; the same for the currents I1, I2, I3, IN.
struct ChannelSet
{
    int joinMode; // SettingConfig::__join_mode
    const char *name; // short, as pages and the system line show it
    const char *fullName;
    quint8 mask; // channels shown and recorded as waveform; also the flags of a trend chart
    quint8 taskPhases; // phases that the universal task measures
    quint8 eventPhases; // phases that the event detection compares; mode 6 differs from taskPhases on purpose
    quint8 inrushMask; // current inputs checked for inrush
    quint8 curveMask; // phases p whose r.m.s. curves p and 4 + p an event keeps
    quint8 recordMask; // channels of a recorder block
    quint8 writer; // 1 to 5: family of the recorder's and the logger's writers
    quint8 transientCodes; // channel codes 1 to this count as transients

    /// Phase to neutral (odd modes); otherwise line to line.
    constexpr bool star() const { return joinMode % 2 != 0; }
    constexpr bool has(int channel) const { return channel >= 0 && channel < 4 && (mask >> channel & 1); }
    constexpr bool hasNeutral() const { return has(3); }
    /// Flags of the trend charts: 15, 7, 9, 11 or 1.
    constexpr int trendFlags() const { return mask; }
    /// Flags of the r.m.s. trend chart of dips and swells: one curve where one phase is measured.
    constexpr int dipTrendFlags() const { return taskPhases == 1 ? 1 : mask; }
    /// Flags of the scope's curves in a display mode 0 to 5 (U, I, N, L1, L2, L3): voltages bits 0 to 3, currents
    /// bits 4 to 7. 0: the wiring has no such mode.
    int scopeFlags(int mode) const;
    /// The scope's display mode that follows `mode`.
    int nextScopeMode(int mode) const;
    /// The channel selector of the harmonics that follows `flag` (1 L1, 2 L2, 3 L3, 4 N, 5 all).
    int nextHarmonicChannel(int flag) const;
    /// Highest selector of the vector page: voltages, currents, then one for each phase.
    constexpr int vectorSelectors() const { return taskPhases + 2; }
    /// Wiring code of the processor's configuration word.
    constexpr int processorCode() const { return joinMode == 9 ? 3 : joinMode == 10 ? 4 : star() ? 0 : 1; }
    /// Caption of a channel column: "L1", "L2", "L3", "N" in star modes, else "L12", "L23", "L31" and nothing.
    QString caption(int channel) const;
};

inline constexpr ChannelSet kChannelSets[] = {
    { 1, "3P WYE", "3P WYE", 0b1111, 3, 3, 0b0111, 0b0111, 0b1111, 1, 3 },
    { 2, "3P IT", "3P IT", 0b0111, 3, 3, 0b0111, 0b0111, 0b1111, 2, 3 },
    { 3, "1P", "1P +NEUTRAL", 0b1001, 1, 1, 0b0001, 0b0001, 0b1001, 3, 1 },
    { 4, "3P DELTA", "3P DELTA", 0b0111, 3, 3, 0b0111, 0b0111, 0b1111, 2, 3 },
    { 5, "1P SPLIT", "1P SPLIT PHASE", 0b1011, 2, 2, 0b0011, 0b0011, 0b1011, 4, 2 },
    // Kept: the task measures one phase here, the event detection compares two.
    { 6, "1P IT", "1P IT NO NEUTRAL", 0b0001, 1, 2, 0b0011, 0b0001, 0b0001, 5, 1 },
    { 7, "H-LEG", "3P HIGH LEG", 0b1111, 3, 3, 0b0111, 0b0111, 0b1111, 1, 3 },
    { 8, "O-LEG", "3P OPEN LEG", 0b0111, 3, 3, 0b0111, 0b0111, 0b1111, 2, 3 },
    { 9, "2.5-ELMT", "2.5-ELEMENT", 0b1111, 3, 3, 0b0101, 0b0111, 0b1111, 1, 3 },
    { 10, "2-ELMT", "2-ELEMENT", 0b0111, 3, 3, 0b0111, 0b0111, 0b1111, 2, 3 },
};
static_assert(std::size(kChannelSets) == 10, "one row per wiring");

/// The row of a join mode; null for a number outside 1 to 10, which leaves everything as it is.
constexpr const ChannelSet *channelSet(int joinMode)
{
    return joinMode >= 1 && joinMode <= 10 ? &kChannelSets[joinMode - 1] : nullptr;
}

/// Whether a transient of channel code `code` counts. An unset mode counts 1 to 3.
constexpr bool transientCodeCounts(int joinMode, int code)
{
    const ChannelSet *set = channelSet(joinMode);
    return code >= 1 && code <= (set ? set->transientCodes : 3);
}
