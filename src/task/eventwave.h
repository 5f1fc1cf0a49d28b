#pragma once

#include "model/datagramrecords.h"

#include <QByteArray>
#include <QList>

#include <memory>

/// The waveform around one event on its way into the recorder's file: it waits in a queue until it holds the datagram
/// of the event's moment and the one behind it. Events of the same moment share their datagrams.
struct EventWave
{
    qint64 time; // ms since 1970
    QList<std::shared_ptr<const __datagram_wave>> samples; // at most two
};

/// The waveforms that events asked for, oldest first, on their way to a file.
class EventWaveQueue
{
public:
    /// \a time in ms since 1970.
    void want(qint64 time) { m_waiting.append({ time, {} }); }
    /// Takes in a wave datagram; what is complete with it leaves the queue.
    QList<EventWave> take(const __datagram_wave &record);

private:
    QList<EventWave> m_waiting;
};

/// Cuts the 100 ms around an event out of two wave datagrams. Pure functions of records.
namespace EventWaveCutter {

constexpr int kDatagrams = 2; // behind one event
constexpr int kSamples = 2048; // of a channel: 100 ms
constexpr int kLead = 810; // samples in front of the event
constexpr int kLastStart = kDatagrams * kWaveSamples - kSamples; // 6144
constexpr double kSampleTime = 200.0 * 0.000244140625; // ms: 4096 samples in 200 ms

/// Place of the event's window in the two datagrams, as counted from the first; may lie outside of both.
/// \a eventTime and \a firstTime in ms since 1970.
int windowIndex(qint64 eventTime, qint64 firstTime);

/// Payload of the block: time of the first sample (double, ms since 1970), then for each channel of \a channels (bit 0
/// L1 to bit 3 N) 2048 samples of its voltage and 2048 of its current. Empty unless there are two datagrams.
QByteArray block(const EventWave &wave, quint8 channels);

} // namespace EventWaveCutter
