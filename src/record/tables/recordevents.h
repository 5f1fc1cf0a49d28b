#pragma once

#include "record/pqa2reader.h"
#include "record/tables/recordsink.h"

#include <vector>

/// The events of a recording: where each stands, in the order of their starts. One that is stored twice counts once.
class RecordEvents
{
public:
    static constexpr std::size_t kMost = 65536; // blocks; a measurement finds some 10000 events and stores each twice

    struct Place
    {
        int part = 0; // of the recording
        Pqa2Block block;
        EventHead head {};
        bool hasWave = false;
    };

    /// False: there are more than can be kept.
    bool add(const Place &place);
    /// Brings them into their order, and takes out those that a longer block of the same event makes needless.
    void sort();
    const std::vector<Place> &places() const { return m_places; }
    int count() const { return int(m_places.size()); }
    /// The event, from 1, that a waveform was cut out around, 0 where there is none; the next waveform of the same
    /// moment gets the next event. Times in ms.
    int ofWave(double start, double length);
    qint64 startOf(int number) const { return m_places[std::size_t(number - 1)].head.startTime; }

private:
    std::vector<Place> m_places;
};

/// An event as it stands in a block of Pqa2EventHead or Pqa2EventCurves; what lies behind the bytes or is no curve is
/// left out. \a voltages: the inputs that have curves, bit by channel.
PQAEventItem eventOf(const QByteArray &payload, quint8 voltages);

/// "dip", "harmonic of order 7"
QByteArray eventKindName(int kind);
/// Unit of an event's value.
QByteArray eventUnit(int kind);
/// "L1", "L12", "N": the input of an event, as its value is of the voltages or the currents; nothing where it is of
/// all.
QByteArray eventChannel(const __event_item &item, int joinMode);
/// The table of the events and the cells of one, for takers that want nothing but tables.
RecordTable eventTable();
struct EventCells
{
    std::vector<double> numbers;
    std::vector<QByteArray> texts;
};
EventCells eventCells(const RecordedEvent &event, int joinMode);
