#include "task/eventwave.h"

#include <algorithm>

QList<EventWave> EventWaveQueue::take(const __datagram_wave &record)
{
    QList<EventWave> complete;
    if (m_waiting.isEmpty())
        return complete;
    const auto datagram = std::make_shared<const __datagram_wave>(record);
    QList<EventWave> waiting;
    for (EventWave &wave : m_waiting) {
        wave.samples.append(datagram);
        (wave.samples.size() < EventWaveCutter::kDatagrams ? waiting : complete).append(wave);
    }
    m_waiting = waiting;
    return complete;
}

namespace EventWaveCutter {

namespace {

void appendBytes(QByteArray *out, const void *data, int samples)
{
    out->append(static_cast<const char *>(data), samples * int(sizeof(qint16)));
}

/// A window that may lie in the first datagram, in the second, or across both.
void appendWindow(QByteArray *out, const qint16 *first, const qint16 *second, int start)
{
    const int fromFirst = std::clamp(kWaveSamples - start, 0, kSamples);
    appendBytes(out, first + std::min(start, kWaveSamples), fromFirst);
    appendBytes(out, second + std::max(start - kWaveSamples, 0), kSamples - fromFirst);
}

} // namespace

int windowIndex(qint64 eventTime, qint64 firstTime)
{
    // As doubles: a step of the clock may have put the two any time apart.
    const double samples = (double(eventTime) - double(firstTime)) / 200.0 * kWaveSamples;
    return int(std::clamp(samples, -1e9, 1e9)) - kLead;
}

QByteArray block(const EventWave &wave, quint8 channels)
{
    QByteArray payload;
    if (wave.samples.size() < kDatagrams)
        return payload;
    const __datagram_wave &first = *wave.samples.at(0);
    const __datagram_wave &second = *wave.samples.at(1);
    const int start = std::clamp(windowIndex(wave.time, first.time), 0, kLastStart);
    const double time = double(first.time) + start * kSampleTime;
    payload.reserve(int(sizeof time) + 2 * kChannels * kSamples * int(sizeof(qint16)));
    payload.append(reinterpret_cast<const char *>(&time), int(sizeof time));
    for (int c = 0; c < kChannels; ++c) {
        if (!(channels & (1u << c)))
            continue;
        appendWindow(&payload, first.voltage[c], second.voltage[c], start);
        appendWindow(&payload, first.current[c], second.current[c], start);
    }
    return payload;
}

} // namespace EventWaveCutter
