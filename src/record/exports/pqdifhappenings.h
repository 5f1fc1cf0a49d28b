#pragma once

#include "record/exports/pqdiftrends.h"

#include <QMap>
#include <QVector>

/// Events and waveforms as observations: the r.m.s. curves of each event, its waveform, transients, captures in pieces,
/// and a list of all events by time, value and duration.
class PqdifHappenings
{
public:
    static constexpr int kMostSamples = 512 * 1024; // of all channels of a waveform, in one observation

    PqdifHappenings(PqdifChannels *channels, PqdifKeep keep) : m_channels(channels), m_keep(std::move(keep)) { }

    void begin(const RecordFacts &facts) { m_facts = facts; }
    bool event(const RecordedEvent &event);
    bool waveformBegin(const RecordedWaveform &waveform);
    bool waveformSamples(const qint16 *samples, int count);
    bool waveformEnd();
    /// The list of the events since the last call.
    bool flush();

private:
    struct Entry
    {
        qint64 start; // ms
        float value;
        float duration; // s
    };
    bool listEvent(const RecordedEvent &event, const QByteArray &name, const QByteArray &input, double seconds);
    bool keepCurves(const RecordedEvent &event, const QByteArray &name, double seconds);
    bool keepSamples();
    QByteArray waveformName() const;

    PqdifChannels *m_channels;
    PqdifKeep m_keep;
    RecordFacts m_facts;
    QMap<int, QVector<Entry>> m_list; // by the definition of their channel
    int m_listed = 0;
    QMap<int, PqdifId> m_categories; // of events, by number

    RecordedWaveform m_waveform; // the one that goes on
    QVector<int> m_definitions; // of its channels; none when its clock cannot be told
    QVector<QVector<qint16>> m_samples; // of its channels, not yet kept
    qint64 m_first = 0; // sample of the waveform that stands first among them
};
