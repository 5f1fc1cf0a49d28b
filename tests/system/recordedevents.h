#pragma once

#include "recordedrun.h"
#include "truechannels.h"

#include "record/pqa2format.h"

#include <numeric>

/// What a recording holds of events: their heads, curves and waveforms, and of transients. The comparisons give what is
/// not as in the signal.
namespace SystemTest {

struct RecordedEvent
{
    int channel, type;
    bool finished;
    double value, start, end; // V or A, s, s
};

/// An event may stand twice; what was found before the recording is among them.
inline QList<RecordedEvent> recordedEvents(const RecordedRun &run)
{
    QList<RecordedEvent> events;
    for (const QByteArray &payload : run.of(Pqa2EventCurves)) {
        const auto seconds
            = [&payload](int place) { return double(valueAt<qint64>(payload, place) - LiveGraph::startMs()) / 1000; };
        const RecordedEvent event { valueAt<qint32>(payload, 0),
                                    valueAt<qint32>(payload, 4),
                                    valueAt<qint32>(payload, 8) != 0,
                                    double(valueAt<float>(payload, 12)),
                                    seconds(16),
                                    seconds(24) };
        const bool isThere = std::any_of(events.begin(), events.end(), [&event](const RecordedEvent &other) {
            return other.type == event.type && other.channel == event.channel && other.start == event.start;
        });
        if (!isThere)
            events.append(event);
    }
    return events;
}

/// Samples of one input from a moment on beside the true values: r.m.s. of the difference, V or A.
inline double sampleError(const RecordedRun &run, const TrueChannels &channels, int channel, bool current, double from,
                          const QByteArray &payload, int offset, int count)
{
    constexpr double kSampleRate = 20480;
    const double factor = double(valueAt<float>(run.of(Pqa2ChannelFactor).value(0), 4 * (channel + (current ? 4 : 0))));
    const QVector<double> wanted = channels.values(channel, current, from, from + count / kSampleRate, count);
    double sum = 0;
    for (int i = 0; i < count; ++i)
        sum += std::pow(factor * valueAt<qint16>(payload, offset + 2 * i) - wanted[i], 2) / count;
    return std::sqrt(sum);
}

/// The time in front of a block of samples, s of the signal.
inline double firstSample(const QByteArray &payload)
{
    return (valueAt<double>(payload, 0) - double(LiveGraph::startMs())) / 1000;
}

/// A tenth of a second of each input around events.
inline QStringList waveFaults(const RecordedRun &run, const TrueChannels &channels, double nominalVolts)
{
    constexpr int kSamples = 2048;
    QStringList faults;
    for (const QByteArray &payload : run.of(Pqa2EventWave)) {
        int offset = 8;
        for (int row = 0; row < 2 * TrueChannels::kChannels; ++row) {
            const int channel = row / 2;
            const bool current = row % 2;
            if (!channels.set().has(channel))
                continue;
            const double from = firstSample(payload), noise = channels.noise(channel, current, from);
            const double error = sampleError(run, channels, channel, current, from, payload, offset, kSamples);
            if (error > (current ? 0.01 : 0.002 * nominalVolts) + 1.5 * noise)
                faults << QStringLiteral("wave at %1 s, input %2: %3 off").arg(from).arg(row).arg(error);
            offset += 2 * kSamples;
        }
        if (offset != payload.size())
            faults << QStringLiteral("a wave of %1 bytes").arg(payload.size());
    }
    return faults;
}

/// Transients by time, channel and samples; each one of the signal is there.
inline QStringList transientFaults(const RecordedRun &run, const TrueChannels &channels, double nominalVolts,
                                   double begin, double end)
{
    constexpr int kSamples = 600, kSamplesAt = 16;
    QStringList faults;
    QVector<double> found;
    for (const QByteArray &payload : run.of(Pqa2Transient)) {
        const quint32 position = valueAt<quint32>(payload, 12);
        const int channel = int(position >> 24) - 1;
        const double from = firstSample(payload), at = from + (position & 0xFFFFFF) / 20480.0;
        const double error = sampleError(run, channels, channel, false, from, payload, kSamplesAt, kSamples);
        found << at;
        if (error > 0.01 * nominalVolts)
            faults << QStringLiteral("transient at %1 s on L%2: %3 V off").arg(at).arg(channel + 1).arg(error);
    }
    for (const TrueSignal::Event &event : channels.signal().events()) {
        const bool isThere = std::any_of(found.begin(), found.end(),
                                         [&event](double at) { return std::fabs(at - event.start) < 0.001; });
        if (event.adds() && event.start > begin && event.end < end && !isThere)
            faults << QStringLiteral("transient at %1 s is missing").arg(event.start);
    }
    return faults;
}

/// The half cycles around events, for each voltage and then its current; a curve ends where the time goes back.
inline QStringList curveFaults(const RecordedRun &run, const TrueChannels &channels)
{
    constexpr int kFirst = 36, kSample = 12;
    const TrueSignal &signal = channels.signal();
    QMap<QPair<int, qint64>, double> known; // squares by curve and half cycle: events share them
    QStringList faults;
    for (const QByteArray &payload : run.of(Pqa2EventCurves)) {
        const int bytes = valueAt<qint32>(payload, 32);
        qint64 before = 0;
        int curve = 0;
        for (int at = kFirst; at < kFirst + bytes; at += kSample) {
            const qint64 time = valueAt<qint64>(payload, at);
            curve += time < before;
            before = time;
            const double half = std::round(2 * signal.turns(double(time - LiveGraph::startMs()) / 1000));
            const auto square = [&](double place) {
                const QPair<int, qint64> key { curve, qint64(place) };
                if (known.contains(key))
                    return known.value(key);
                const double from = signal.momentOf((place - 1) / 2), to = signal.momentOf((place + 1) / 2);
                return *known.insert(key, std::pow(channels.cycleRms(curve / 2, curve % 2, from, to), 2));
            };
            if (signal.isQuiet(signal.momentOf((half - 1) / 2), signal.momentOf((half + 1) / 2)))
                continue;
            // Where something begins or ends, the turn of a cycle counts: it is known to a fiftieth of a cycle.
            const std::array<double, 3> squares { square(half - 1), square(half), square(half + 1) };
            const double most = *std::max_element(squares.begin(), squares.end()),
                         least = *std::min_element(squares.begin(), squares.end());
            const double found = double(valueAt<float>(payload, at + 8)),
                         noise
                = (curve % 2 ? 0.01 : 0.1) + 0.4 * std::sqrt(most) * channels.noise(curve / 2, curve % 2, 0);
            if (std::fabs(found * found - squares[1]) > 0.004 * most + 0.02 * (most - least) + noise)
                faults << QStringLiteral("curve %1 at %2 ms: %3 instead of %4")
                              .arg(curve)
                              .arg(time - LiveGraph::startMs())
                              .arg(found)
                              .arg(std::sqrt(squares[1]));
        }
    }
    return faults;
}

} // namespace SystemTest
