#pragma once

#include "truesignal.h"

#include "model/channelset.h"

#include <QMap>

#include <array>
#include <complex>

/// What an instrument of one wiring must measure of a supply, worked out from the values of the signal: voltages
/// between the lines or to the neutral, mean products, lines of the spectrum.
class TrueChannels
{
public:
    static constexpr int kChannels = 4;
    static constexpr int kTotal = 3; // row of the power of all phases

    /// Means over a stretch of time.
    struct Means
    {
        double volts[kChannels], amps[kChannels]; // r.m.s.
        double watts[kChannels]; // L1, L2, L3, total
    };

    TrueChannels(const TrueSignal &signal, int wiring) : m_signal(signal), m_set(*channelSet(wiring)) { }

    const ChannelSet &set() const { return m_set; }
    const TrueSignal &signal() const { return m_signal; }
    /// Values of the voltage of a channel, or of its current, at so many moments.
    QVector<double> values(int channel, bool current, double from, double to, int places) const;
    /// Of the window of whole cycles between two moments.
    Means means(double from, double to) const;
    /// Lines of a window, r.m.s., of the voltage of a channel or of its current: line k makes k turns in it.
    QVector<std::complex<double>> lines(int channel, bool current, double from, double to,
                                        const QVector<int> &numbers) const;
    /// R.m.s. of one cycle that begins at a moment.
    double cycleRms(int channel, bool current, double from, double to) const;

    /// R.m.s. of what has no formula.
    double noise(int channel, bool current, double t) const;

private:
    Means meansOf(double from, double to) const;

    const TrueSignal &m_signal;
    const ChannelSet &m_set;
    mutable QMap<double, Means> m_uniform; // by the moment from which the supply holds
    mutable QMap<double, Means> m_others; // by the beginning of the window
};
